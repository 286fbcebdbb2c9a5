// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/HueChart.h"

#include "host/engine/ReferenceFormulas.h"
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

constexpr int Pairs = 4000;
constexpr float Distance = 1.0f / 1024;
constexpr float Infinite = std::numeric_limits<float>::infinity();

Image MakeGreys(Image::Depth depth)
{
    const int count = depth == Image::Depth::Bits16 ? 65536 : 256;
    Image greys = Image::Allocate(count, 1, depth);
    for (int x = 0; x < count; ++x)
        for (int c = 0; c < 4; ++c)
            if (depth == Image::Depth::Bits16)
                greys.Row16(0)[4 * x + c] = static_cast<std::uint16_t>(c == 3 ? 65535 : x);
            else
                greys.Row(0)[4 * x + c] = static_cast<std::uint8_t>(c == 3 ? 255 : x);
    return greys;
}

using FloatPlanes = std::array<std::vector<float>, 3>;

/// Pairs of neighbours; every third pair is almost grey.
FloatPlanes MakePairs(float least, float most)
{
    std::mt19937 random(77);
    std::uniform_real_distribution<float> value(least, most);
    std::uniform_real_distribution<float> offset(-Distance, Distance);
    FloatPlanes planes;
    for (int i = 0; i < Pairs; ++i) {
        const float grey = value(random);
        for (auto& plane : planes) {
            plane.push_back(i % 3 == 0 ? grey + offset(random) : value(random));
            plane.push_back(plane.back() + offset(random));
        }
    }
    return planes;
}

float GetDistance(const FloatPlanes& planes, std::size_t first)
{
    float largest = 0;
    for (const auto& plane : planes) {
        const float distance = std::abs(plane[first + 1] - plane[first]);
        largest = std::isfinite(distance) ? std::max(largest, distance) : Infinite;
    }
    return largest;
}

/// How far apart neighbours are after the effect, at most; infinite when a value is not finite.
double FindLargestDistance(const Zorvik::Quindle::IEffectSettings& effect, Isa isa, float least,
                           float most)
{
    FloatPlanes planes = MakePairs(least, most);
    const StagePtr stage =
        EffectKinds::Find(effect.GetEffectID())->createStage(effect, {isa, {}, {}});
    stage->Run({planes[0].data(), planes[1].data(), planes[2].data(), 2 * Pairs, 0, 0});
    float largest = 0;
    for (std::size_t i = 0; i < planes[0].size(); i += 2)
        largest = std::max(largest, GetDistance(planes, i));
    return double(largest);
}

} // namespace

const std::vector<NamedHue>& GetNamedHues()
{
    static const std::vector<NamedHue> hues = {{"red", 0},      {"orange", 30},  {"yellow", 60},
                                               {"green", 120},  {"aqua", 180},   {"blue", 240},
                                               {"purple", 270}, {"magenta", 300}};
    return hues;
}

Colour MakeHue(double degrees, double least, double chroma)
{
    const Colour pure = Pure(degrees - 360 * std::floor(degrees / 360));
    return Map(pure, [=](double v) { return least + chroma * v; });
}

double MeasureHue(const Colour& c)
{
    const double chroma = MeasureChroma(c);
    const double most = std::max({c[0], c[1], c[2]});
    double sectors = 0;
    if (most == c[0])
        sectors = (c[1] - c[2]) / chroma;
    else if (most == c[1])
        sectors = 2 + (c[2] - c[0]) / chroma;
    else
        sectors = 4 + (c[0] - c[1]) / chroma;
    return sectors < 0 ? 60 * sectors + 360 : 60 * sectors;
}

double MeasureChroma(const Colour& c)
{
    const auto [least, most] = std::minmax({c[0], c[1], c[2]});
    return most - least;
}

double MeasureTurn(const Colour& encoded, double start)
{
    const double turn = MeasureHue(encoded) - start;
    return turn - 360 * std::round(turn / 360);
}

Image MakeChart(const std::vector<Colour>& encoded)
{
    Image chart = Image::Allocate(static_cast<int>(encoded.size()), 1, Image::Depth::Bits16);
    std::uint16_t* next = chart.Row16(0);
    for (const Colour& colour : encoded) {
        for (const double value : colour)
            *next++ = static_cast<std::uint16_t>(std::lround(65535 * value));
        *next++ = 65535;
    }
    return chart;
}

std::vector<Colour> ReadChart(const Image& image)
{
    std::vector<Colour> colours;
    for (int x = 0; x < image.GetWidth(); ++x) {
        Colour colour{};
        for (int c = 0; c < 3; ++c)
            colour[static_cast<std::size_t>(c)] =
                double(GetChannel(image, x, 0, c)) / GetWhite(image);
        colours.push_back(colour);
    }
    return colours;
}

std::vector<Colour> DrawChart(const std::vector<Colour>& encoded, const EffectPtr& effect)
{
    return ReadChart(Renderer().Render(MakeChart(encoded), MakeSettings({effect})));
}

Colour DrawColour(const Colour& encoded, const EffectPtr& effect)
{
    return DrawChart({encoded}, effect).front();
}

void ExpectGreysStay(const EffectPtr& effect)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image greys = MakeGreys(depth);
        EXPECT_TRUE(HaveSamePixels(Renderer().Render(greys, MakeSettings({effect})), greys))
            << testing::PrintToString(depth);
    }
}

void ExpectNoJumps(const EffectPtr& effect, double steepest)
{
    for (const Isa isa : GetSupportedIsas()) {
        SCOPED_TRACE(GetIsaName(isa));
        EXPECT_LE(FindLargestDistance(*effect, isa, 0.0f, 1.0f), steepest * double(Distance));
        EXPECT_LE(FindLargestDistance(*effect, isa, -0.5f, 1.6f), steepest * double(Distance));
        EXPECT_TRUE(std::isfinite(FindLargestDistance(*effect, isa, -1e4f, 1e4f)));
    }
}

} // namespace LumetraHost
