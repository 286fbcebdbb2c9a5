// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EffectPresets/EffectPresetModel.h"

namespace LumetraGallery {

enum class Language
{
    English,
    German
};

/// The real preset model, filled with some groups of named presets that have a blending intensity
/// and a painted thumbnail. They are drawn on no photo.
class GalleryPresets : public Zorvik::Lumetra::LumetraPresets::EffectPresetModel
{
public:
    explicit GalleryPresets(Language language);

    QModelIndex Group(int group) const;
    QModelIndex Preset(int group, int preset) const;
};

} // namespace LumetraGallery
