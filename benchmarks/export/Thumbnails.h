// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QStringList>

#include <vector>

namespace LumetraBench {

/// The longer side of a thumbnail, in pixels.
constexpr int ThumbnailSide = 256;

/// Thumbnails of a photo from its file, one to a thread, as a panel makes them. `files`: the photo,
/// and optionally where some of the looks are stored below each other, to compare them; no others
/// are made then.
using Looks = std::vector<Zorvik::Quindle::EffectsSettings>;

/// The photo is read at 1/8 of its size and scaled, each look is drawn on the small picture.
void MakeThumbnails(const QStringList& files, const Looks& looks);
/// Draws with OpenColorIO's processors instead of our engine, one made for each look.
void MakeOcioThumbnails(const QStringList& files, const Looks& looks);
/// Draws each look on the whole photo with OpenColorIO and scales it then.
void MakeWholeOcioThumbnails(const QStringList& files, const Looks& looks);

} // namespace LumetraBench
