// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/mapping/MappingTable.h"

#include "core/foreign/mapping/MappingRules.h"

#include <algorithm>
#include <map>

namespace LumetraPlugin {
namespace {

using namespace MappingRules;
using Rows = std::vector<MappingRow>;

constexpr const char* Hues[] = {"Red",  "Orange", "Yellow", "Green",
                                "Aqua", "Blue",   "Purple", "Magenta"};

QString Text(const char* text)
{
    return QString::fromUtf8(text);
}

/// A number that is carried approximately.
MappingRow Like(const char* setting, LookStep step, const char* parameter, double scale = 1,
                double neutral = 0, const char* note = "")
{
    return {Text(setting), Carry::Approximate, SetDifference, step, parameter, scale,
            neutral,       Text(note)};
}

/// A number that another setting's rule reads.
MappingRow Part(const char* setting, LookStep step, const char* parameter, double neutral,
                const char* note)
{
    return {Text(setting), Carry::Approximate, TellOnly, step, parameter, 1, neutral, Text(note)};
}

MappingRow With(MappingRow row, MappingRow::Rule rule)
{
    row.rule = rule;
    return row;
}

MappingRow Exactly(MappingRow row)
{
    row.carry = Carry::Exact;
    return row;
}

void AddLight(Rows& rows)
{
    const LookStep tones = LookStep::ToneRegions;
    rows.push_back(Exactly(Like("Exposure2012", LookStep::Exposure, "stops")));
    rows.push_back(With(Like("Contrast2012", LookStep::Contrast, "", 1, 0,
                             "an S: 1 and 0.6 times that up for `highlights` and `lights`, down "
                             "for `shadows` and `darks`; negative 0.5 and 0.4 times"),
                        SetContrast));
    rows.push_back(Like("Highlights2012", tones, "highlights", 0.8));
    rows.push_back(Like("Shadows2012", tones, "shadows", 0.8));
    rows.push_back(Like("Whites2012", tones, "whites"));
    rows.push_back(Like("Blacks2012", tones, "blacks"));
    rows.push_back(Like("Texture", LookStep::Texture, "amount"));
    rows.push_back(Like("Clarity2012", LookStep::Clarity, "amount", 0.8));
    rows.push_back(Like("Dehaze", LookStep::Dehaze, "amount"));
}

void AddOlderLight(Rows& rows)
{
    const LookStep tones = LookStep::ToneRegions;
    const char* const older = "older processes";
    rows.push_back(Like("Exposure", LookStep::Exposure, "stops", 1, 0, older));
    rows.push_back(With(Like("Contrast", LookStep::Contrast, "", 1, 25,
                             "older processes; as `Contrast2012`, from 25"),
                        SetContrast));
    rows.push_back(Like("Brightness", tones, "midtones", 1, 50, "older processes; from 50"));
    rows.push_back(Like("Shadows", tones, "blacks", -2, 5, "older processes; from 5"));
    rows.push_back(Like("HighlightRecovery", tones, "highlights", -0.6, 0, older));
    rows.push_back(Like("FillLight", tones, "shadows", 0.8, 0, older));
    rows.push_back(Like("Clarity", LookStep::Clarity, "amount", 0.6, 0, older));
}

void AddCurves(Rows& rows)
{
    const LookStep regions = LookStep::ParametricCurve;
    rows.push_back(Like("ParametricShadows", regions, "shadows"));
    rows.push_back(Like("ParametricDarks", regions, "darks"));
    rows.push_back(Like("ParametricLights", regions, "lights"));
    rows.push_back(Like("ParametricHighlights", regions, "highlights"));
    rows.push_back(With(Like("ParametricShadowSplit", regions, "shadowSplit", 1, 25), SetValue));
    rows.push_back(With(Like("ParametricMidtoneSplit", regions, "midtoneSplit", 1, 50), SetValue));
    rows.push_back(
        With(Like("ParametricHighlightSplit", regions, "highlightSplit", 1, 75), SetValue));
    for (const char* name : {"ToneCurvePV2012", "ToneCurve"})
        for (const char* channel : {"", "Red", "Green", "Blue"}) {
            const std::string parameter = QByteArray(channel).toLower().toStdString();
            MappingRow row = Like("", LookStep::ToneCurve, parameter.c_str());
            row.setting = Text(name) + Text(channel);
            row.note = Text("the points, from 0 to 255; the 16 that bend it most");
            rows.push_back(Exactly(With(row, SetCurve)));
        }
}

void AddWhiteBalance(Rows& rows)
{
    const LookStep step = LookStep::WhiteBalance;
    rows.push_back(With(Like("Temperature", step, "temperature", 1, 0,
                             "the difference from daylight, 5500 K, in reciprocal kelvins; with a "
                             "sign or below 1000 it is that difference"),
                        SetTemperature));
    rows.push_back(Like("Tint", step, "tint"));
    rows.push_back(
        With(Like("IncrementalTemperature", step, "temperature", 0.6, 0, "reciprocal kelvins"),
             SetTemperatureStep));
    rows.push_back(Like("IncrementalTint", step, "tint", 0.6));
    MappingRow named = With(Like("WhiteBalance", step, "temperature", 1, 0,
                                 "the name of a light without its numbers is not carried; `As "
                                 "Shot` takes the numbers out"),
                            CheckWhiteBalance);
    named.carry = Carry::LeftOut;
    rows.push_back(named);
}

void AddColour(Rows& rows)
{
    rows.push_back(Like("Saturation", LookStep::Saturation, "amount"));
    rows.push_back(Like("Vibrance", LookStep::Vibrance, "amount"));
    for (const char* hue : Hues) {
        const std::string lower = QByteArray(hue).toLower().toStdString();
        const QByteArray name(hue);
        const LookStep mixer = LookStep::ColourMixer;
        rows.push_back(Like("HueAdjustment" + name, mixer, (lower + "Hue").c_str()));
        rows.push_back(Like("SaturationAdjustment" + name, mixer, (lower + "Saturation").c_str()));
        rows.push_back(Like("LuminanceAdjustment" + name, mixer, (lower + "Luminance").c_str()));
        rows.push_back(Like("GrayMixer" + name, LookStep::GreyMixer, lower.c_str()));
    }
    for (const char* primary : {"Red", "Green", "Blue"}) {
        const std::string lower = QByteArray(primary).toLower().toStdString();
        const QByteArray name(primary);
        rows.push_back(Like(name + "Hue", LookStep::Primaries, (lower + "Hue").c_str(), 0.7));
        rows.push_back(
            Like(name + "Saturation", LookStep::Primaries, (lower + "Saturation").c_str()));
    }
    rows.push_back(Like("ShadowTint", LookStep::Primaries, "shadowTint"));
}

void AddGrey(Rows& rows)
{
    const LookStep step = LookStep::GreyMixer;
    rows.push_back(
        Exactly(With(Like("ConvertToGrayscale", step, "amount", 1, 0, "`True` is 100"), SetGrey)));
    rows.push_back(With(Like("Look", step, "amount", 1, 0,
                             "the nested look `crs:Look`: 100 where its name ends in Monochrome; "
                             "any other is left out and named"),
                        SetNestedLook));
    rows.push_back(With(
        Like("Look/ConvertToGrayscale", step, "amount", 1, 0, "from the parameters of `crs:Look`"),
        SetGrey));
    MappingRow profile = With(Like("CameraProfile", step, "amount", 1, 0,
                                   "100 where its name ends in Monochrome, else left out"),
                              SetProfile);
    profile.carry = Carry::LeftOut;
    rows.push_back(profile);
}

void AddGrading(Rows& rows)
{
    const LookStep step = LookStep::ColourGrading;
    for (const char* range : {"Shadow", "Midtone", "Highlight", "Global"}) {
        const QByteArray name = QByteArray("ColorGrade") + range;
        const std::string lower = QByteArray(range).toLower().toStdString();
        rows.push_back(With(Like(name + "Hue", step, (lower + "Hue").c_str()), SetHue));
        rows.push_back(
            With(Like(name + "Sat", step, (lower + "Saturation").c_str()), SetGradeSaturation));
        rows.push_back(Like(name + "Lum", step, (lower + "Luminance").c_str()));
    }
    rows.push_back(With(Like("ColorGradeBlending", step, "blending", 0.5, 50,
                             "and 50, for our ranges overlap less"),
                        SetBlending));
    rows.push_back(Like("ColorGradeBalance", step, "balance"));
}

void AddSplitToning(Rows& rows)
{
    const LookStep step = LookStep::SplitToning;
    const char* const together = "of `colourGrading` beside `ColorGradeBlending`";
    for (const char* range : {"Shadow", "Highlight"}) {
        const QByteArray name = QByteArray("SplitToning") + range;
        const std::string lower = QByteArray(range).toLower().toStdString();
        rows.push_back(
            With(Like(name + "Hue", step, (lower + "Hue").c_str(), 1, 0, together), SetSplitHue));
        rows.push_back(
            With(Like(name + "Saturation", step, (lower + "Saturation").c_str(), 1, 0, together),
                 SetSplitNumber));
    }
    rows.push_back(
        With(Like("SplitToningBalance", step, "balance", 1, 0, together), SetSplitNumber));
}

void AddFinish(Rows& rows)
{
    const LookStep sharpen = LookStep::Sharpen;
    rows.push_back(With(Like("Sharpness", sharpen, "amount", 1.5), SetSharpness));
    for (const char* name : {"SharpenRadius", "SharpnessRadius"})
        rows.push_back(
            With(Like(name, sharpen, "radius", 0.015, 1, "pixels of 24 megapixels"), SetValue));
    rows.push_back(
        Part("SharpenDetail", sharpen, "amount", 25, "times 0.75 to 1.75; 25 leaves it as it is"));
    rows.push_back(With(Like("SharpenEdgeMasking", sharpen, "threshold", 0.08), SetValue));
    const LookStep vignette = LookStep::Vignette;
    rows.push_back(With(Like("PostCropVignetteAmount", vignette, "amount", 0.025, 0,
                             "two thirds of that where it brightens"),
                        SetVignette));
    rows.push_back(Part("PostCropVignetteMidpoint", vignette, "size", 50, "times 0.7"));
    rows.push_back(Part("PostCropVignetteFeather", vignette, "feather", 50, "40, and 0.6 times"));
    rows.push_back(Part("PostCropVignetteRoundness", vignette, "roundness", 0, "from 0 up"));
    const LookStep grain = LookStep::Grain;
    rows.push_back(With(Like("GrainAmount", grain, "amount", 0.5), SetGrain));
    rows.push_back(Part("GrainSize", grain, "size", 25, "0.1, and 0.013 times"));
    rows.push_back(Part("GrainFrequency", grain, "roughness", 50, ""));
}

void AddProfileLight(Rows& rows)
{
    const LookStep tones = LookStep::ToneRegions;
    rows.push_back(Exactly(Like("Exposure/Compensation", LookStep::Exposure, "stops")));
    rows.push_back(Like("Exposure/Brightness", tones, "midtones"));
    rows.push_back(With(
        Like("Exposure/Contrast", LookStep::Contrast, "", 1, 0, "as `Contrast2012`"), SetContrast));
    rows.push_back(
        With(Like("Exposure/Saturation", LookStep::Saturation, "amount"), AddDifference));
    rows.push_back(Like("Exposure/Black", tones, "blacks", -0.0125));
    rows.push_back(With(Like("Exposure/HighlightCompr", tones, "highlights", -0.3), AddDifference));
    const auto addCurve = [&rows](const char* setting, const char* channel) {
        rows.push_back(With(Like(setting, LookStep::ToneCurve, channel, 1, 0,
                                 "points, or four regions; control cages become points"),
                            SetTypedCurve));
    };
    addCurve("Exposure/Curve", "");
    addCurve("RGB Curves/rCurve", "red");
    addCurve("RGB Curves/gCurve", "green");
    addCurve("RGB Curves/bCurve", "blue");
    rows.push_back(
        With(Like("Shadows & Highlights/Highlights", tones, "highlights", -0.8), AddDifference));
    rows.push_back(
        With(Like("Shadows & Highlights/Shadows", tones, "shadows", 0.8), AddDifference));
}

void AddProfileColour(Rows& rows)
{
    rows.push_back(With(Like("White Balance/Temperature", LookStep::WhiteBalance, "temperature", 1,
                             0, "as `Temperature`, except for the camera's own"),
                        SetTemperature));
    rows.push_back(Like("White Balance/Green", LookStep::WhiteBalance, "tint", -150, 1));
    rows.push_back(Like("Vibrance/Pastels", LookStep::Vibrance, "amount"));
    rows.push_back(
        With(Like("Vibrance/Saturated", LookStep::Saturation, "amount", 0.5), AddDifference));
    rows.push_back(With(Like("Black & White/Method", LookStep::BlackAndWhite, "amount", 1, 0,
                             "100, with the channels' mixture where that is free"),
                        SetGreyMethod));
    rows.push_back(With(Like("Film Simulation/ClutFilename", LookStep::Table, "", 1, 0,
                             "a HaldCLUT, found beside the file or in folders that the user names"),
                        SetTable));
    rows.push_back(Exactly(Part("Film Simulation/Strength", LookStep::Table, "strength", 100, "")));
    rows.push_back(Like("Sharpening/Amount", LookStep::Sharpen, "amount", 0.4));
    rows.push_back(With(
        Like("Sharpening/Radius", LookStep::Sharpen, "radius", 0.015, 0, "pixels of 24 megapixels"),
        SetValue));
    rows.push_back(Like("PCVignette/Strength", LookStep::Vignette, "amount", -1));
    rows.push_back(With(Like("PCVignette/Feather", LookStep::Vignette, "feather"), SetValue));
    rows.push_back(With(Like("PCVignette/Roundness", LookStep::Vignette, "roundness"), SetValue));
}

void AddWithoutRule(Rows& rows, Carry carry, std::initializer_list<const char*> settings)
{
    for (const char* setting : settings)
        rows.push_back({Text(setting), carry});
}

/// These have no effect here, and a look that has them says so.
void AddLeftOut(Rows& rows)
{
    AddWithoutRule(rows, Carry::LeftOut,
                   {"LuminanceSmoothing",
                    "ColorNoiseReduction",
                    "PostCropVignetteHighlightContrast",
                    "LensProfileEnable",
                    "LensManualDistortionAmount",
                    "VignetteAmount",
                    "AutoLateralCA",
                    "ChromaticAberrationR",
                    "ChromaticAberrationB",
                    "Defringe",
                    "DefringePurpleAmount",
                    "DefringeGreenAmount",
                    "PerspectiveUpright",
                    "PerspectiveVertical",
                    "PerspectiveHorizontal",
                    "PerspectiveRotate",
                    "PerspectiveAspect",
                    "PerspectiveX",
                    "PerspectiveY",
                    "HasCrop",
                    "CropAngle",
                    "AutoTone",
                    "AutoExposure",
                    "AutoContrast",
                    "AutoBrightness",
                    "AutoShadows",
                    "AutoGrayscaleMix",
                    "HDREditMode",
                    "PointColors",
                    "LensBlur",
                    "RGBTable",
                    "LookTable",
                    "MaskGroupBasedCorrections",
                    "GradientBasedCorrections",
                    "CircularGradientBasedCorrections",
                    "PaintBasedCorrections",
                    "RetouchAreas",
                    "RetouchInfo",
                    "RedEyeInfo",
                    "Exposure/Auto"});
    const auto scale = [&rows](const char* setting, double neutral) {
        MappingRow row{Text(setting), Carry::LeftOut};
        row.neutral = neutral;
        rows.push_back(row);
    };
    scale("PerspectiveScale", 100);
    scale("CurveRefineSaturation", 100);
}

/// These describe the file, or how a setting is meant that is left out.
void AddSilent(Rows& rows)
{
    AddWithoutRule(rows, Carry::Silent,
                   {"SupportsAmount",
                    "SupportsAmount2",
                    "SupportsColor",
                    "SupportsMonochrome",
                    "SupportsHighDynamicRange",
                    "SupportsNormalDynamicRange",
                    "SupportsSceneReferred",
                    "SupportsOutputReferred",
                    "RequiresRGBTables",
                    "ShowInPresets",
                    "ShowInQuickActions",
                    "CameraModelRestriction",
                    "Copyright",
                    "ContactInfo",
                    "Version",
                    "CompatibleVersion",
                    "ProcessVersion",
                    "PresetType",
                    "Cluster",
                    "UUID",
                    "HasSettings",
                    "AlreadyApplied",
                    "RawFileName",
                    "ShortName",
                    "SortName",
                    "Description",
                    "CameraProfileDigest",
                    "ToneCurveName",
                    "ToneCurveName2012",
                    "AutoWhiteVersion",
                    "PostCropVignetteStyle",
                    "LuminanceNoiseReductionDetail",
                    "LuminanceNoiseReductionContrast",
                    "ColorNoiseReductionDetail",
                    "ColorNoiseReductionSmoothness",
                    "LensProfileSetup",
                    "LensProfileName",
                    "LensProfileFilename",
                    "LensProfileDigest",
                    "LensProfileDistortionScale",
                    "LensProfileVignettingScale",
                    "LensProfileChromaticAberrationScale",
                    "VignetteMidpoint",
                    "DefringePurpleHueLo",
                    "DefringePurpleHueHi",
                    "DefringeGreenHueLo",
                    "DefringeGreenHueHi",
                    "CropTop",
                    "CropLeft",
                    "CropBottom",
                    "CropRight",
                    "CropConstrainToWarp",
                    "UprightVersion",
                    "GrainSeed",
                    "HDRMaxValue",
                    "RGBTableAmount",
                    "OverrideLookVignette",
                    "EnableColorAdjustments",
                    "EnableCalibration",
                    "EnableDetail",
                    "EnableEffects",
                    "EnableLensCorrections",
                    "EnableSplitToning",
                    "EnableGrayscaleMix",
                    "EnableToneCurve",
                    "EnableTransform",
                    "orientation",
                    "Black & White/Setting",
                    "Black & White/MixerRed",
                    "Black & White/MixerGreen",
                    "Black & White/MixerBlue",
                    "White Balance/Setting"});
}

Rows MakeRows()
{
    Rows rows;
    AddLight(rows);
    AddOlderLight(rows);
    AddCurves(rows);
    AddWhiteBalance(rows);
    AddColour(rows);
    AddGrey(rows);
    AddGrading(rows);
    AddSplitToning(rows);
    AddFinish(rows);
    AddProfileLight(rows);
    AddProfileColour(rows);
    AddLeftOut(rows);
    AddSilent(rows);
    return rows;
}

std::map<QString, const MappingRow*> MakeIndex()
{
    std::map<QString, const MappingRow*> index;
    for (const MappingRow& row : MappingTable::GetRows())
        index[row.setting] = &row;
    return index;
}

} // namespace

const char* GetEffectId(LookStep step)
{
    static constexpr const char* ids[LookSteps] = {
        "primaries",   "whiteBalance",    "exposure",        "dehaze",
        "toneRegions", "parametricCurve", "texture",         "clarity",
        "greyMixer",   "blackAndWhite",   "parametricCurve", "toneCurve",
        "colourMixer", "vibrance",        "saturation",      "lut3d",
        "splitToning", "colourGrading",   "sharpen",         "vignette",
        "grain"};
    return ids[static_cast<int>(step)];
}

const std::vector<MappingRow>& MappingTable::GetRows()
{
    static const Rows rows = MakeRows();
    return rows;
}

const MappingRow* MappingTable::Find(const QString& setting)
{
    static const auto index = MakeIndex();
    const auto found = index.find(setting);
    return found == index.end() ? nullptr : found->second;
}

bool MappingTable::HasSection(const QString& section)
{
    const auto& rows = GetRows();
    return std::any_of(rows.begin(), rows.end(), [&](const MappingRow& row) {
        return row.setting.startsWith(section + QLatin1Char('/'));
    });
}

} // namespace LumetraPlugin
