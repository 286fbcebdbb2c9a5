// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/Reference.h"
#include "host/engine/TestPictures.h"
#include "host/engine/TestTables.h"

#include "engine/effects/lut3d/Lut3dSettings.h"
#include "engine/run/Renderer.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

double At(const LookUpTable& table, std::size_t entry, std::size_t channel)
{
    return table.values[LookUpTable::Stride * entry + channel];
}

struct Place
{
    std::size_t cell;
    double part;
};

Place FindPlace(const LookUpTable& table, double value, std::size_t channel)
{
    const double unit =
        (value - table.minimum[channel]) / (table.maximum[channel] - table.minimum[channel]);
    const double place = std::clamp(unit, 0.0, 1.0) * (table.size - 1);
    const double cell = std::min(std::floor(place), table.size - 2.0);
    return {static_cast<std::size_t>(cell), place - cell};
}

Colour ApplyCurve(const LookUpTable& table, const Colour& c)
{
    Colour result{};
    for (std::size_t i = 0; i < 3; ++i) {
        const Place place = FindPlace(table, c[i], i);
        result[i] =
            (1 - place.part) * At(table, place.cell, i) + place.part * At(table, place.cell + 1, i);
    }
    return result;
}

/// Walks from the first corner of the cell along its axes in the order of the parts.
Colour ApplyCube(const LookUpTable& table, const Colour& c)
{
    const auto size = static_cast<std::size_t>(table.size);
    const std::size_t steps[3] = {1, size, size * size};
    std::array<std::size_t, 3> axes = {0, 1, 2};
    std::array<double, 3> parts{};
    std::size_t corner = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const Place place = FindPlace(table, c[i], i);
        parts[i] = place.part;
        corner += place.cell * steps[i];
    }
    std::sort(axes.begin(), axes.end(),
              [&](std::size_t a, std::size_t b) { return parts[a] > parts[b]; });
    Colour result = {At(table, corner, 0), At(table, corner, 1), At(table, corner, 2)};
    for (const std::size_t axis : axes) {
        const std::size_t next = corner + steps[axis];
        for (std::size_t i = 0; i < 3; ++i)
            result[i] += parts[axis] * (At(table, next, i) - At(table, corner, i));
        corner = next;
    }
    return result;
}

void ExpectTables(const LookUpTable* curve, const LookUpTable* cube, double strength)
{
    const EffectPtr effect = MakeLut3d(curve, cube);
    effect->SetParameter("strength", strength);
    const auto& stored = dynamic_cast<const Lut3dSettings&>(*effect);
    ExpectFormula(MakeSettings({effect}), [&](const Colour& linear, int, int) {
        Colour c{};
        for (std::size_t i = 0; i < 3; ++i)
            c[i] = LinearToSrgb(linear[i]);
        Colour mapped = c;
        if (curve)
            mapped = ApplyCurve(*stored.GetCurve(), mapped);
        if (cube)
            mapped = ApplyCube(*stored.GetCube(), mapped);
        for (std::size_t i = 0; i < 3; ++i)
            c[i] = SrgbToLinear(c[i] + strength / 100 * (mapped[i] - c[i]));
        return c;
    });
}

TEST(Lut3dEffect, interpolatesInTetrahedra)
{
    for (const int size : {2, 3, 17, 33, 65}) {
        const auto cube = MakeRandomTable(LookUpTable::Kind::Cube, size, unsigned(size));
        ExpectTables(nullptr, &cube, 100);
    }
}

TEST(Lut3dEffect, interpolatesCurvesAndRunsThemBeforeTheCube)
{
    const auto curve = MakeRandomTable(LookUpTable::Kind::Curve, 300, 1);
    const auto cube = MakeRandomTable(LookUpTable::Kind::Cube, 9, 2);
    ExpectTables(&curve, nullptr, 100);
    ExpectTables(&curve, &cube, 100);
}

TEST(Lut3dEffect, mixesByItsStrength)
{
    const auto cube = MakeRandomTable(LookUpTable::Kind::Cube, 17, 3);
    ExpectTables(nullptr, &cube, 35);
    const EffectPtr effect = MakeLut3d(nullptr, &cube);
    effect->SetParameter("strength", 0);
    const Image source = MakeRandomPicture(10, 10, Image::Depth::Bits8, 1);
    EXPECT_TRUE(Renderer().Render(source, MakeSettings({effect})).SharesPixelsWith(source));
}

TEST(Lut3dEffect, hasADomain)
{
    auto cube = MakeRandomTable(LookUpTable::Kind::Cube, 8, 4);
    cube.minimum = {0.1, -0.5, 0};
    cube.maximum = {0.8, 1.5, 1.25};
    ExpectTables(nullptr, &cube, 100);
    auto curve = MakeRandomTable(LookUpTable::Kind::Curve, 50, 5);
    curve.minimum = {-1, 0.25, 0};
    curve.maximum = {2, 0.75, 1};
    ExpectTables(&curve, nullptr, 100);
}

TEST(Lut3dEffect, changesNothingWithTheIdentity)
{
    const auto cube = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, 18, {0, 0, 0}, {1, 1, 1});
    const Image source = MakeRandomPicture(200, 100, Image::Depth::Bits8, 9);
    const Image result = Renderer().Render(source, MakeSettings({MakeLut3d(nullptr, &cube)}));
    EXPECT_TRUE(HaveSamePixels(source, result));
}

TEST(Lut3dEffect, isTheSameForAllTilesAndThreads)
{
    const auto curve = MakeRandomTable(LookUpTable::Kind::Curve, 100, 6);
    const auto cube = MakeRandomTable(LookUpTable::Kind::Cube, 33, 7);
    const auto settings =
        MakeSettings({MakeEffect("exposure", {{"stops", 0.7}}), MakeLut3d(&curve, &cube),
                      MakeEffect("saturation", {{"amount", 20}})});
    const Image source = MakeRandomPicture(777, 90, Image::Depth::Bits16, 10);
    for (const Isa isa : GetSupportedIsas()) {
        RenderOptions first;
        first.isa = isa;
        first.threads = 1;
        const Image expected = Renderer().Render(source, settings, first);
        for (const int tilePixels : {64, 333, 2048})
            for (const int threads : {1, 2}) {
                RenderOptions options;
                options.isa = isa;
                options.tilePixels = tilePixels;
                options.threads = threads;
                EXPECT_TRUE(HaveSamePixels(expected, Renderer().Render(source, settings, options)))
                    << GetIsaName(isa) << ", " << tilePixels << ", " << threads;
            }
    }
}

} // namespace
} // namespace LumetraHost
