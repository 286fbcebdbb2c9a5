// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugin/core/foreign/SettingExamples.h"

#include <map>

namespace LumetraTest {
namespace {

constexpr char Curve[] = "0, 0; 64, 80; 255, 255";
constexpr char TypedCurve[] = "1;0;0;0.25;0.3;1;1;";

bool StartsWith(const std::string& text, const std::string& start)
{
    return text.rfind(start, 0) == 0;
}

/// Settings that need a value of their own, or others beside them.
const std::map<std::string, SettingExample>& GetSpecial()
{
    const Setting sharp = Setting("Sharpness", "40");
    const Setting grain = Setting("GrainAmount", "30");
    const Setting vignette = Setting("PostCropVignetteAmount", "-40");
    const Setting darks = Setting("ParametricDarks", "30");
    const Setting shadows = Setting("ColorGradeShadowSat", "20");
    static const std::map<std::string, SettingExample> examples = {
        {"Exposure2012", {"+0.75", {}}},
        {"Exposure", {"0.5", {}}},
        {"Contrast", {"60", {}}},
        {"Brightness", {"90", {}}},
        {"Temperature", {"+400", {}}},
        {"WhiteBalance", {"Tungsten", {}}},
        {"CameraProfile", {"Camera Neutral", {}}},
        {"Look", {"Adobe Monochrome", {}}},
        {"ConvertToGrayscale", {"True", {}}},
        {"SharpenRadius", {"2.0", {sharp}}},
        {"SharpnessRadius", {"2.0", {sharp}}},
        {"SharpenDetail", {"60", {sharp}}},
        {"SharpenEdgeMasking", {"50", {sharp}}},
        {"PostCropVignetteMidpoint", {"30", {vignette}}},
        {"PostCropVignetteFeather", {"80", {vignette}}},
        {"PostCropVignetteRoundness", {"40", {vignette}}},
        {"GrainSize", {"60", {grain}}},
        {"GrainFrequency", {"70", {grain}}},
        {"ParametricShadowSplit", {"30", {darks}}},
        {"ParametricMidtoneSplit", {"55", {darks}}},
        {"ParametricHighlightSplit", {"80", {darks}}},
        {"ColorGradeShadowHue", {"220", {shadows}}},
        {"ColorGradeMidtoneHue", {"220", {Setting("ColorGradeMidtoneSat", "20")}}},
        {"ColorGradeHighlightHue", {"40", {Setting("ColorGradeHighlightSat", "20")}}},
        {"ColorGradeGlobalHue", {"40", {Setting("ColorGradeGlobalSat", "20")}}},
        {"ColorGradeBlending", {"80", {shadows}}},
        {"ColorGradeBalance", {"-30", {shadows}}},
        {"SplitToningShadowHue", {"220", {Setting("SplitToningShadowSaturation", "20")}}},
        {"SplitToningHighlightHue", {"40", {Setting("SplitToningHighlightSaturation", "20")}}},
        {"SplitToningBalance", {"-38", {Setting("SplitToningShadowSaturation", "20")}}},
        {"Exposure/Compensation", {"1.5", {}}},
        {"Exposure/Black", {"1500", {}}},
        {"Exposure/HighlightCompr", {"120", {}}},
        {"Exposure/Auto", {"true", {}}},
        {"Exposure/Curve", {TypedCurve, {}}},
        {"RGB Curves/rCurve", {TypedCurve, {}}},
        {"RGB Curves/gCurve", {TypedCurve, {}}},
        {"RGB Curves/bCurve", {TypedCurve, {}}},
        {"White Balance/Temperature", {"6200", {Setting("White Balance/Setting", "Custom")}}},
        {"White Balance/Green", {"1.08", {Setting("White Balance/Setting", "Custom")}}},
        {"Black & White/Method", {"Desaturation", {}}},
        {"Sharpening/Radius", {"2", {Setting("Sharpening/Amount", "200")}}},
        {"PCVignette/Strength", {"1.5", {}}},
        {"PCVignette/Feather", {"70", {Setting("PCVignette/Strength", "1.5")}}},
        {"PCVignette/Roundness", {"70", {Setting("PCVignette/Strength", "1.5")}}}};
    return examples;
}

} // namespace

SettingExample FindExample(const std::string& setting)
{
    const auto special = GetSpecial().find(setting);
    if (special != GetSpecial().end())
        return special->second;
    if (StartsWith(setting, "ToneCurve") && !StartsWith(setting, "ToneCurveName"))
        return {Curve, {}};
    if (StartsWith(setting, "GrayMixer"))
        return {"30", {Setting("ConvertToGrayscale", "True")}};
    return {"30", {}};
}

} // namespace LumetraTest
