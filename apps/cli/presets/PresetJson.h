// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "presets/PresetRows.h"

namespace LumetraCli {

/// Presets as JSON, the same in every language: names as the catalogue has them, with their
/// translations beside them.
class PresetJson
{
public:
    /// Name, id, marks, intensity and sliders.
    static void Write(Zorvik::Brassel::ISerializer& node, const PresetRow& row);
    static void WriteWithoutSliders(Zorvik::Brassel::ISerializer& node, const PresetRow& row);
    static void WriteSlider(Zorvik::Brassel::ISerializer& node,
                            const Zorvik::Lumetra::LumetraPresets::SliderSetting& slider);
    /// "names", an object by language; nothing without translations.
    static void WriteNames(Zorvik::Brassel::ISerializer& node,
                           const LumetraHost::LocalNames& names);
};

} // namespace LumetraCli
