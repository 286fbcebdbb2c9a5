// SPDX-License-Identifier: MIT
#pragma once

namespace Zorvik::Lumetra::LumetraPresets {

/// These are the keys of the intensity settings' stored forms.
struct SettingKeys
{
    static constexpr char Type[] = "type";

    // The class identifiers name the node of each kind beside "type".
    static constexpr char IntensityNone[] = "intensityNone";
    static constexpr char BlendSetting[] = "blendSetting";
    static constexpr char SliderSetting[] = "sliderSetting";

    static constexpr char BlendValue[] = "value";
    static constexpr char BlendBegin[] = "begin";
    static constexpr char BlendEnd[] = "end";

    static constexpr char SliderTitle[] = "title";
    static constexpr char SliderBegin[] = "begin";
    static constexpr char SliderEnd[] = "end";
    static constexpr char SliderVariables[] = "variables";
    static constexpr char SliderEffectID[] = "effectID";
    static constexpr char SliderParameter[] = "setting";
};

} // namespace Zorvik::Lumetra::LumetraPresets
