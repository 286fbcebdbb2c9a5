// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// Keys of a catalogue's presets and intensities that the platform does not name. Whoever loads
/// presets reads them under the same keys; a test of the presets holds both to each other.
struct CatalogueKeys
{
    // Keys of a preset.
    static constexpr char Id[] = "id";
    static constexpr char Names[] = "names"; // of a group too: translations, by language
    static constexpr char Popular[] = "popular";
    static constexpr char Image[] = "image";
    static constexpr char CropPolicy[] = "previewCropPolicy";
    static constexpr char FitPolicy[] = "previewFitPolicy";
    static constexpr char Resource[] = "resource";
    static constexpr char Sliders[] = "sliders";
    static constexpr char Author[] = "author";
    static constexpr char Licence[] = "licence";

    // Keys of an intensity: its type, and a node for each type.
    static constexpr char Type[] = "type";
    static constexpr char None[] = "intensityNone";
    static constexpr char Blending[] = "blendSetting";
    static constexpr char Slider[] = "sliderSetting";

    // Keys of the node of a type. Begin and End also belong to a slider's variables.
    static constexpr char Title[] = "title";
    static constexpr char Value[] = "value";
    static constexpr char Begin[] = "begin";
    static constexpr char End[] = "end";
    static constexpr char Variables[] = "variables";
    static constexpr char EffectId[] = "effectID";
    static constexpr char Setting[] = "setting";
};

/// The numbers under CatalogueKeys::Type.
enum class CatalogueIntensity
{
    None = 0,
    Blending = 1,
    Slider = 2
};

} // namespace LumetraHost
