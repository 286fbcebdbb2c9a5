// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/bake/BakedRun.h"

#include "engine/Blend.h"
#include "engine/EffectKinds.h"
#include "engine/RenderPlan.h"
#include "engine/StageChain.h"
#include "engine/bake/BakedKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/pixels/PixelKernel.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>

namespace LumetraHost {
namespace {

constexpr int BandRows = 32;
/// One row of tables or probes.
constexpr int TileColours = 256;

/// What the entries can hold; colours this far out are of no consequence to what is seen.
constexpr float Lowest = -0.5f;
constexpr float Highest = 1.5f;

struct alignas(64) ColourTile
{
    float values[3][TileColours];

    Tile GetTile(int count) { return {values[0], values[1], values[2], count}; }
};

std::int16_t Quantise(float value)
{
    const float limited = std::clamp(value, Lowest, Highest);
    return static_cast<std::int16_t>(std::lround(limited * BakedCube::One));
}

/// One line of the cube: green and blue are the same.
void BakeLine(const StageChain& chain, int points, int green, int blue, std::int16_t* line)
{
    ColourTile colours;
    for (int red = 0; red < points; ++red) {
        colours.values[0][red] = static_cast<float>(red) / (points - 1);
        colours.values[1][red] = static_cast<float>(green) / (points - 1);
        colours.values[2][red] = static_cast<float>(blue) / (points - 1);
    }
    chain.Run(colours.GetTile(points));
    for (int red = 0; red < points; ++red)
        for (int channel = 0; channel < 3; ++channel)
            line[red * BakedCube::Stride + channel] = Quantise(colours.values[channel][red]);
}

/// The finishing step of the hash MurmurHash3: neighbouring numbers give unrelated ones.
std::uint32_t Mix(std::uint32_t value)
{
    value = (value ^ value >> 16) * 0x85EBCA6Bu;
    value = (value ^ value >> 13) * 0xC2B2AE35u;
    return value ^ value >> 16;
}

/// Colours of the probe, 16 rows of 256: the greys, dark colours, where curves are steep, and
/// colours from everywhere, the same in every run.
std::uint8_t GetProbe(int row, int i, int channel)
{
    if (row == 0)
        return static_cast<std::uint8_t>(i);
    const auto number = static_cast<std::uint32_t>((row * TileColours + i) * 3 + channel);
    const std::uint32_t value = Mix(number) >> 24;
    return static_cast<std::uint8_t>(row == 1 ? value / 8 : value);
}

constexpr int ProbeRows = 16;

bool IsClose(float exact, std::uint8_t baked)
{
    const long wanted = std::lround(255 * std::clamp(static_cast<double>(exact), 0.0, 1.0));
    return std::abs(wanted - baked) <= BakedRun::Tolerance;
}

/// Whether one row of the probe comes out as the exact run has it.
bool ProbeRow(const StageChain& chain, const std::int16_t* cube, int points, Isa isa, int row)
{
    alignas(64) std::uint8_t pixels[Image::Channels * TileColours];
    ColourTile colours;
    for (int i = 0; i < TileColours; ++i) {
        pixels[4 * i + 3] = 255;
        for (int channel = 0; channel < 3; ++channel) {
            pixels[4 * i + channel] = GetProbe(row, i, channel);
            colours.values[channel][i] = static_cast<float>(pixels[4 * i + channel]) / 255.0f;
        }
    }
    chain.Run(colours.GetTile(TileColours));
    SelectKernel<BakedKernel8>(isa)(cube, points, pixels, pixels, TileColours);
    for (int i = 0; i < TileColours; ++i)
        for (int channel = 0; channel < 3; ++channel)
            if (!IsClose(colours.values[channel][i], pixels[4 * i + channel]))
                return false;
    return true;
}

bool AreOfColourOnly(const Zorvik::Quindle::EffectList& effects)
{
    return std::all_of(effects.begin(), effects.end(), [](const auto& effect) {
        const EffectKind* const kind = effect ? EffectKinds::Find(effect->GetEffectID()) : nullptr;
        return !kind || kind->reach == EffectReach::ColourOnly;
    });
}

} // namespace

BakedRun::BakedRun(Isa isa, int points)
    : m_isa(isa), m_points(points), m_cube(BakedCube::CountValues(points))
{
}

std::shared_ptr<const BakedRun> BakedRun::Make(const Zorvik::Quindle::EffectList& effects,
                                               int points, Isa isa, ThreadPool& pool,
                                               const CancelToken* cancel)
{
    if (!AreOfColourOnly(effects))
        return nullptr;
    const RenderPlan plan(effects, {LimitToSupported(isa), PictureArea::Whole(1, 1)});
    return Make(plan.GetFirstStages(), points, isa, pool, cancel);
}

std::shared_ptr<const BakedRun> BakedRun::Make(const std::vector<StagePtr>& stages, int points,
                                               Isa isa, ThreadPool& pool, const CancelToken* cancel)
{
    const Isa supported = LimitToSupported(isa);
    const StageChain chain(stages, supported, ColourSpace::Encoded, ColourSpace::Encoded);
    const std::shared_ptr<BakedRun> baked(new BakedRun(supported, points));
    std::int16_t* const cube = baked->m_cube.data();
    const auto isCancelled = [cancel] { return cancel && cancel->IsCancelled(); };
    pool.ForEach(points, 0, [&](int blue) {
        for (int green = 0; green < points && !isCancelled(); ++green)
            BakeLine(chain, points, green, blue,
                     cube + (blue * points + green) * points * BakedCube::Stride);
    });
    std::atomic<bool> isGood{!isCancelled()};
    pool.ForEach(ProbeRows, 0, [&](int row) {
        if (isGood && !ProbeRow(chain, cube, points, supported, row))
            isGood = false;
    });
    return isGood ? baked : nullptr;
}

bool BakedRun::Run(const Image& source, Image& target, int blendAmount, ThreadPool& pool,
                   const CancelToken* cancel) const
{
    const int width = source.GetWidth();
    const int height = source.GetHeight();
    const auto isCancelled = [cancel] { return cancel && cancel->IsCancelled(); };
    pool.ForEach((height + BandRows - 1) / BandRows, 0, [&](int band) {
        const int end = std::min(height, (band + 1) * BandRows);
        for (int y = band * BandRows; y < end && !isCancelled(); ++y)
            RunRow(source.Row(y), target.Row(y), width, blendAmount);
    });
    return !isCancelled();
}

void BakedRun::RunRow(const std::uint8_t* source, std::uint8_t* target, int pixels,
                      int blendAmount) const
{
    const int amount = ClampBlendAmount(blendAmount);
    SelectKernel<BakedKernel8>(m_isa)(m_cube.data(), m_points, source, target, pixels);
    if (amount != FullEffect)
        SelectKernel<BlendKernel8>(m_isa)(source, target, target, pixels, amount);
}

} // namespace LumetraHost
