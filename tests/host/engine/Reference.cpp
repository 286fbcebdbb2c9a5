// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/Reference.h"

#include "host/engine/TestPictures.h"

#include "engine/run/Blend.h"
#include "engine/run/Renderer.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

constexpr int Width = 301;
constexpr int Height = 67;

Colour DecodePixel(const Image& source, int x, int y)
{
    Colour colour{};
    for (int c = 0; c < 3; ++c)
        colour[static_cast<std::size_t>(c)] =
            SrgbToLinear(double(GetChannel(source, x, y, c)) / GetWhite(source));
    return colour;
}

void ExpectFormulaAtDepth(const Zorvik::Quindle::EffectsSettings& settings,
                          const ReferenceFormula& formula, Image::Depth depth)
{
    const Image source = MakeRandomPicture(Width, Height, depth, 7);
    const bool is16 = depth == Image::Depth::Bits16;

    const RenderError error = MeasureError(source, Renderer().Render(source, settings), formula,
                                           settings.GetBlendAmount());

    EXPECT_LE(error.largest, is16 ? 0.6 : 0.52) << (is16 ? "16 bits" : "8 bits");
    EXPECT_LE(error.mean, error.roundedMean + 0.001) << (is16 ? "16 bits" : "8 bits");
    const std::string prefix = is16 ? "bits16_" : "bits8_";
    testing::Test::RecordProperty(prefix + "largest", std::to_string(error.largest));
    testing::Test::RecordProperty(prefix + "mean", std::to_string(error.mean));
}

} // namespace

RenderError MeasureError(const Image& source, const Image& rendered,
                         const ReferenceFormula& formula, int blendAmount)
{
    const double weight = GetSourceWeight(blendAmount);
    const double white = GetWhite(source);
    const double values = 3.0 * source.GetWidth() * source.GetHeight();
    RenderError error;
    int wrongAlphas = 0;
    for (int y = 0; y < source.GetHeight(); ++y)
        for (int x = 0; x < source.GetWidth(); ++x) {
            const Colour drawn = formula(DecodePixel(source, x, y), x, y);
            for (int c = 0; c < 3; ++c) {
                const double linear = std::clamp(drawn[static_cast<std::size_t>(c)], 0.0, 1.0);
                const double effect = white * LinearToSrgb(linear);
                const double exact = weight * GetChannel(source, x, y, c) + (1 - weight) * effect;
                const double difference = std::abs(GetChannel(rendered, x, y, c) - exact);
                error.largest = std::max(error.largest, difference);
                error.mean += difference / values;
                error.roundedMean += std::abs(std::round(exact) - exact) / values;
            }
            wrongAlphas += GetChannel(rendered, x, y, 3) != GetChannel(source, x, y, 3);
        }
    EXPECT_EQ(wrongAlphas, 0);
    return error;
}

void ExpectFormula(const Zorvik::Quindle::EffectsSettings& settings,
                   const ReferenceFormula& formula)
{
    ExpectFormulaAtDepth(settings, formula, Image::Depth::Bits8);
    ExpectFormulaAtDepth(settings, formula, Image::Depth::Bits16);
}

} // namespace LumetraHost
