// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/EffectExamples.h"

#include "host/engine/TestPictures.h"
#include "host/engine/TestTables.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;
using Parameters = std::initializer_list<std::pair<const char*, double>>;

/// Teal shadows and orange highlights, as a cube.
EffectPtr MakeTable(double strength)
{
    auto cube = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, 17, {0, 0, 0}, {1, 1, 1});
    for (std::size_t i = 0; i < cube.GetCount(); ++i) {
        float* const c = &cube.values[LookUpTable::Stride * i];
        const float luma = 0.2126f * c[0] + 0.7152f * c[1] + 0.0722f * c[2];
        const float warmth = 0.25f * (luma - 0.45f);
        c[0] = std::clamp(c[0] + warmth, 0.0f, 1.0f);
        c[2] = std::clamp(c[2] - warmth, 0.0f, 1.0f);
    }
    const EffectPtr effect = MakeLut3d(nullptr, &cube);
    effect->SetParameter("strength", strength);
    return effect;
}

} // namespace

std::vector<EffectExample> MakeEffectExamples()
{
    std::vector<EffectExample> examples;
    const auto add = [&examples](const char* effectID, const Parameters& gentle,
                                 const Parameters& strong, const Parameters& neutral) {
        examples.push_back({MakeEffect(effectID, gentle), MakeEffect(effectID, strong),
                            MakeEffect(effectID, neutral)});
    };
    add("exposure", {{"stops", 0.5}}, {{"stops", -1.5}}, {{"stops", 0}});
    add("whiteBalance", {{"temperature", 7200}}, {{"temperature", 4000}, {"tint", 30}},
        {{"temperature", 6500}, {"tint", 0}});
    add("contrast", {{"amount", 20}}, {{"amount", 80}}, {{"amount", 0}});
    add("toneRegions", {{"shadows", 30}, {"highlights", -30}},
        {{"blacks", -60}, {"shadows", 100}, {"highlights", -100}, {"whites", 60}},
        {{"shadows", 0}, {"whites", 0}});
    add("toneCurve",
        {{"points", 4}, {"x1", 25}, {"y1", 22}, {"x2", 75}, {"y2", 79}, {"x3", 100}, {"y3", 100}},
        {{"points", 4},
         {"y0", 10},
         {"x1", 30},
         {"y1", 20},
         {"x2", 70},
         {"y2", 85},
         {"x3", 100},
         {"y3", 94},
         {"bluePoints", 2},
         {"blueY0", 15},
         {"blueX1", 100},
         {"blueY1", 85}},
        {{"points", 4}, {"x1", 25}, {"y1", 25}, {"x2", 60}, {"y2", 60}, {"x3", 100}, {"y3", 100}});
    add("parametricCurve", {{"darks", -20}, {"lights", 20}},
        {{"shadows", 80},
         {"darks", -60},
         {"lights", 70},
         {"highlights", -40},
         {"shadowSplit", 15},
         {"midtoneSplit", 40}},
        {{"shadows", 0}, {"shadowSplit", 40}, {"highlightSplit", 85}});
    add("saturation", {{"amount", 25}}, {{"amount", -80}}, {{"amount", 0}});
    add("vibrance", {{"amount", 40}}, {{"amount", 100}}, {{"amount", 0}});
    add("colourMixer",
        {{"blueHue", -20}, {"blueLuminance", -30}, {"orangeSaturation", 25}, {"greenHue", 25}},
        {{"redHue", 60},
         {"orangeLuminance", 40},
         {"yellowHue", -80},
         {"greenSaturation", -90},
         {"aquaHue", 60},
         {"blueSaturation", 80},
         {"blueLuminance", -80},
         {"magentaHue", 100}},
        {{"redHue", 0}, {"blueLuminance", 0}});
    add("channelMixer", {{"rr", 0.9}, {"rg", 0.1}}, {{"rr", 0}, {"rb", 1}, {"bb", 0}, {"br", 1}},
        {{"rr", 1}, {"gb", 0}});
    add("primaries", {{"redHue", 15}, {"blueSaturation", 25}, {"greenHue", 20}},
        {{"redHue", 50},
         {"redSaturation", -30},
         {"greenHue", 60},
         {"blueHue", -80},
         {"blueSaturation", 40},
         {"shadowTint", -60}},
        {{"redHue", 0}, {"shadowTint", 0}});
    add("blackAndWhite", {{"amount", 50}},
        {{"amount", 100}, {"red", 0.9}, {"green", 0.3}, {"blue", -0.2}},
        {{"amount", 0}, {"red", 1}, {"green", -1}});
    add("greyMixer", {{"amount", 60}, {"blue", -40}, {"orange", 30}},
        {{"amount", 100},
         {"red", -80},
         {"orange", 60},
         {"green", 40},
         {"aqua", -60},
         {"blue", -100}},
        {{"amount", 0}, {"red", 50}, {"blue", -100}});
    add("splitToning",
        {{"shadowHue", 220},
         {"shadowSaturation", 20},
         {"highlightHue", 45},
         {"highlightSaturation", 20}},
        {{"shadowHue", 200},
         {"shadowSaturation", 80},
         {"highlightHue", 30},
         {"highlightSaturation", 90},
         {"balance", 20}},
        {{"shadowHue", 200}, {"highlightHue", 40}, {"balance", 50}});
    add("colourGrading",
        {{"shadowHue", 215},
         {"shadowSaturation", 15},
         {"highlightHue", 40},
         {"highlightSaturation", 12},
         {"midtoneLuminance", 15}},
        {{"shadowHue", 190},
         {"shadowSaturation", 70},
         {"shadowLuminance", -60},
         {"midtoneHue", 320},
         {"midtoneSaturation", 30},
         {"highlightHue", 45},
         {"highlightSaturation", 80},
         {"highlightLuminance", 50},
         {"globalHue", 60},
         {"globalSaturation", 10},
         {"blending", 80},
         {"balance", -30}},
        {{"shadowHue", 215}, {"globalHue", 40}, {"blending", 90}, {"balance", 60}});
    add("liftGammaGain", {{"slopeRed", 1.05}, {"offsetBlue", 0.03}, {"saturation", 0.9}},
        {{"slopeRed", 1.3}, {"powerGreen", 1.2}, {"powerBlue", 0.7}, {"offsetRed", -0.05}},
        {{"slopeRed", 1}, {"powerBlue", 1}, {"saturation", 1}});
    examples.push_back({MakeTable(40), MakeTable(100), MakeTable(0)});
    add("vignette", {{"amount", -1}}, {{"amount", -3}, {"size", 20}, {"roundness", 100}},
        {{"amount", 0}, {"size", 10}, {"roundness", 100}});
    add("grain", {{"amount", 25}, {"size", 5}}, {{"amount", 100}, {"size", 5}, {"roughness", 80}},
        {{"amount", 0}, {"size", 3}, {"seed", 9}});
    add("dehaze", {{"amount", 40}}, {{"amount", -100}}, {{"amount", 0}});
    add("gaussianBlur", {{"radius", 0.5}}, {{"radius", 3}}, {{"radius", 0}});
    add("sharpen", {{"amount", 150}, {"radius", 0.2}}, {{"amount", 500}, {"radius", 0.2}},
        {{"amount", 0}, {"radius", 0.2}, {"threshold", 5}});
    add("texture", {{"amount", 40}, {"radius", 0.3}}, {{"amount", -100}, {"radius", 0.3}},
        {{"amount", 0}, {"radius", 0.3}});
    add("clarity", {{"amount", 30}}, {{"amount", 100}}, {{"amount", 0}, {"radius", 3}});
    return examples;
}

} // namespace LumetraHost
