// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/ColourTable.h"

#include "engine/effects/EffectKinds.h"
#include "engine/kernels/ColourCubeKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/pixels/PixelKernel.h"
#include "engine/run/Blend.h"
#include "engine/run/CubeBends.h"
#include "engine/run/RenderPlan.h"
#include "engine/stages/StageChain.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

namespace LumetraHost {
namespace {

/// One row of tables or probes.
constexpr int TileColours = ColourCube::MostPixels;
/// Largest share of the cells that may be drawn exactly, beyond which a table is hardly a gain.
/// That is known only for the colours of the photo at hand: drags measure it, exports do not.
constexpr double GetLargestMarkedShare(int points)
{
    return points == ColourTable::DragPoints ? 0.5 : 0.25;
}

/// Range of the entries. Colours this far outside of 0..1 make no difference to what is seen.
constexpr float Lowest = -0.5f;
constexpr float Highest = 1.5f;

struct alignas(64) ColourTile
{
    float values[3][TileColours];

    Tile GetTile(int count) { return {values[0], values[1], values[2], count}; }
};

using PixelRow = std::uint8_t[Image::Channels * TileColours];

std::int16_t Quantise(float value)
{
    const double scaled = double(std::clamp(value, Lowest, Highest)) * ColourCube::One;
    return static_cast<std::int16_t>(scaled + (scaled < 0 ? -0.5 : 0.5));
}

/// Fills one line of the cube, along which red runs.
void FillLine(const StageChain& chain, int points, int green, int blue, std::int16_t* line)
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
            line[red * ColourCube::Stride + channel] = Quantise(colours.values[channel][red]);
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

bool IsClose(float exact, std::uint8_t drawn)
{
    const long wanted = std::lround(255 * std::clamp(static_cast<double>(exact), 0.0, 1.0));
    return std::abs(wanted - drawn) <= ColourTable::Tolerance;
}

/// True when one row of the probe comes out as the exact run has it.
bool ProbeRow(const StageChain& chain, const ColourTable& table, int row)
{
    alignas(64) PixelRow pixels;
    ColourTile colours;
    for (int i = 0; i < TileColours; ++i) {
        pixels[4 * i + 3] = 255;
        for (int channel = 0; channel < 3; ++channel) {
            pixels[4 * i + channel] = GetProbe(row, i, channel);
            colours.values[channel][i] = static_cast<float>(pixels[4 * i + channel]) / 255.0f;
        }
    }
    chain.Run(colours.GetTile(TileColours));
    table.RunRow(pixels, pixels, TileColours, FullEffect);
    for (int i = 0; i < TileColours; ++i)
        for (int channel = 0; channel < 3; ++channel)
            if (!IsClose(colours.values[channel][i], pixels[4 * i + channel]))
                return false;
    return true;
}

StageContext MakeContext(Isa isa, const std::shared_ptr<const RgbSpace>& space)
{
    return {LimitToSupported(isa), PictureArea::Whole(1, 1), Image::Depth::Bits16, space};
}

bool AreOfColourOnly(const Zorvik::Quindle::EffectList& effects)
{
    return std::all_of(effects.begin(), effects.end(), [](const auto& effect) {
        const EffectKind* const kind = effect ? EffectKinds::Find(effect->GetEffectID()) : nullptr;
        return !kind || kind->reach == EffectReach::ColourOnly;
    });
}

/// The stages of the effects; with a target, those that lead to that space (null: sRGB). Nothing
/// when the effects look at anything but the colour.
std::optional<std::vector<StagePtr>>
FindStages(const Zorvik::Quindle::EffectList& effects, const StageContext& context,
           const std::optional<std::shared_ptr<const RgbSpace>>& target)
{
    if (!AreOfColourOnly(effects))
        return std::nullopt;
    const RenderPlan plan(effects, context);
    if (!target)
        return plan.GetFirstStages();
    return plan.IsEmpty() ? RenderPlan::MakeConversion(context, *target).GetFirstStages()
                          : plan.GetStagesInto(*target);
}

} // namespace

ColourTable::ColourTable(const std::vector<StagePtr>& stages, Isa isa, int points)
    : m_isa(isa), m_points(points), m_cube(ColourCube::CountValues(points)),
      m_chain(stages, isa, Image::Depth::Bits8),
      m_encodedChain(stages, isa, Image::Depth::Bits8, ColourSpace::Encoded, ColourSpace::Encoded),
      m_pixelStep(Image::Depth::Bits8, isa, m_chain, m_chain, 0),
      m_encodedStep(Image::Depth::Bits8, isa, m_encodedChain, m_encodedChain, 0)
{
}

std::shared_ptr<const ColourTable> ColourTable::Make(const Zorvik::Quindle::EffectList& effects,
                                                     int points, Isa isa, ThreadPool& pool,
                                                     const CancelToken* cancel,
                                                     std::shared_ptr<const RgbSpace> space)
{
    const auto stages = FindStages(effects, MakeContext(isa, space), {});
    return stages ? Make(*stages, points, isa, pool, cancel) : nullptr;
}

std::shared_ptr<const ColourTable>
ColourTable::MakeInto(const std::shared_ptr<const RgbSpace>& target,
                      const Zorvik::Quindle::EffectList& effects, int points, Isa isa,
                      ThreadPool& pool, const CancelToken* cancel,
                      const std::shared_ptr<const RgbSpace>& space)
{
    const auto stages = FindStages(effects, MakeContext(isa, space), target);
    return stages ? Make(*stages, points, isa, pool, cancel) : nullptr;
}

std::shared_ptr<const ColourTable> ColourTable::Make(const std::vector<StagePtr>& stages,
                                                     int points, Isa isa, ThreadPool& pool,
                                                     const CancelToken* cancel)
{
    const std::shared_ptr<ColourTable> table(
        new ColourTable(stages, LimitToSupported(isa), points));
    const bool isGood = table->Fill(pool, cancel) && table->Probe(pool, cancel);
    return isGood ? table : nullptr;
}

/// False when the table does not serve, and when it was cancelled.
bool ColourTable::Fill(ThreadPool& pool, const CancelToken* cancel)
{
    std::int16_t* const cube = m_cube.data();
    const auto isCancelled = [cancel] { return cancel && cancel->IsCancelled(); };
    pool.ForEach(m_points, 0, [&](int blue) {
        for (int green = 0; green < m_points && !isCancelled(); ++green)
            FillLine(m_encodedChain, m_points, green, blue,
                     cube + (blue * m_points + green) * m_points * ColourCube::Stride);
    });
    if (isCancelled())
        return false;
    const CubeBends bends(cube, m_points, pool);
    return !bends.HasJump() && bends.GetMarkedShare() <= GetLargestMarkedShare(m_points);
}

bool ColourTable::Probe(ThreadPool& pool, const CancelToken* cancel) const
{
    std::atomic<bool> isGood{true};
    pool.ForEach(ProbeRows, 0, [&](int row) {
        if (isGood && ((cancel && cancel->IsCancelled()) || !ProbeRow(m_encodedChain, *this, row)))
            isGood = false;
    });
    return isGood;
}

void ColourTable::RunRow(const std::uint8_t* source, std::uint8_t* target, int pixels,
                         int blendAmount) const
{
    const int amount = ClampBlendAmount(blendAmount);
    for (int x = 0; x < pixels; x += TileColours) {
        const std::ptrdiff_t offset = std::ptrdiff_t{Image::Channels} * x;
        RunPart(source + offset, target + offset, std::min(TileColours, pixels - x), amount);
    }
}

/// At most one tile of colours.
void ColourTable::RunPart(const std::uint8_t* source, std::uint8_t* target, int pixels,
                          int amount) const
{
    alignas(64) PixelRow before;
    if (amount != FullEffect) // the target may be the source
        std::copy_n(source, Image::Channels * pixels, before);
    MarkedPixels rest;
    SelectKernel<ColourCubeKernel8>(m_isa)(m_cube.data(), m_points, source, target, pixels, rest);
    if (rest.count > 0)
        DrawExactly(rest, target);
    if (amount != FullEffect)
        SelectKernel<BlendKernel8>(m_isa)(before, target, target, pixels, amount);
}

void ColourTable::DrawExactly(const MarkedPixels& rest, std::uint8_t* target) const
{
    alignas(64) PixelRow pixels;
    std::memcpy(pixels, rest.colours,
                sizeof rest.colours[0] * static_cast<std::size_t>(rest.count));
    ColourTile colours;
    const Tile tile = colours.GetTile(rest.count);
    m_pixelStep.Load(tile, pixels);
    m_chain.Run(tile);
    m_pixelStep.Store(tile, pixels, pixels);
    for (int i = 0; i < rest.count; ++i)
        std::copy_n(pixels + Image::Channels * i, Image::Channels,
                    target + Image::Channels * rest.positions[i]);
}

void ColourTable::Load(const Tile& tile, const std::uint8_t* row) const
{
    const std::uint8_t* const source = row + std::ptrdiff_t{Image::Channels} * tile.x;
    for (int x = 0; x < tile.count; x += TileColours) {
        const Tile part{tile.red + x, tile.green + x, tile.blue + x,
                        std::min(TileColours, tile.count - x)};
        MarkedPixels rest;
        SelectKernel<ColourCubeLoadKernel8>(m_isa)(
            m_cube.data(), m_points, source + std::ptrdiff_t{Image::Channels} * x, part, rest);
        if (rest.count > 0)
            LoadExactly(rest, part);
    }
}

void ColourTable::LoadExactly(const MarkedPixels& rest, const Tile& target) const
{
    alignas(64) PixelRow pixels;
    std::memcpy(pixels, rest.colours,
                sizeof rest.colours[0] * static_cast<std::size_t>(rest.count));
    ColourTile colours;
    const Tile tile = colours.GetTile(rest.count);
    m_encodedStep.Load(tile, pixels);
    m_encodedChain.Run(tile);
    for (int i = 0; i < rest.count; ++i) {
        target.red[rest.positions[i]] = tile.red[i];
        target.green[rest.positions[i]] = tile.green[i];
        target.blue[rest.positions[i]] = tile.blue[i];
    }
}

} // namespace LumetraHost
