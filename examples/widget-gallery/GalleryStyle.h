// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "GalleryPresets.h"
#include "style/StyleColours.h"

class QSlider;

namespace LumetraGallery {

/// Dresses the whole application; may be called again.
void UseStyle(LumetraHost::PaletteKind kind);

/// Translates the library's texts; may be called again.
void UseLanguage(Language language);

/// Keeps a slider's bipolar groove up to date with its value.
void FollowWithGroove(QSlider& slider, LumetraHost::PaletteKind kind);

} // namespace LumetraGallery
