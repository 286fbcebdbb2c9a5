// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/CurveTableStage.h"

#include "engine/kernels/CurveTableKernel.h"
#include "engine/kernels/KernelSelection.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace LumetraHost {
namespace {

using Grid = CurveGrid;

/// Samples of both signs, rounded up so that tiles fill whole cache lines.
constexpr std::size_t PlaneSize = (2 * Grid::Samples + 15) / 16 * 16;
using Plane = std::array<float, PlaneSize>;

/// Where a piece of the positive half begins; `piece` may also be one behind the last.
float GetPieceBegin(int piece)
{
    if (piece == 0)
        return 0.0f;
    const std::int32_t bits = Grid::LowBits + (piece - 1) * (1 << Grid::Shift);
    float begin;
    std::memcpy(&begin, &bits, sizeof begin);
    return begin;
}

Plane MakePlaces()
{
    Plane places{};
    for (int i = 0; i < Grid::Samples; ++i) {
        const float begin = GetPieceBegin(i / 2);
        const float place = i % 2 == 0 ? begin : 0.5f * (begin + GetPieceBegin(i / 2 + 1));
        places[static_cast<std::size_t>(i)] = place;
        places[static_cast<std::size_t>(Grid::Samples + i)] = -place;
    }
    return places;
}

const Plane& GetPlaces()
{
    static const Plane places = MakePlaces();
    return places;
}

struct alignas(64) Samples
{
    Plane planes[3];
};

/// The values of the stages at all places.
std::unique_ptr<Samples> TakeSamples(const std::vector<StagePtr>& stages)
{
    auto samples = std::make_unique<Samples>();
    for (Plane& plane : samples->planes)
        plane = GetPlaces();
    const Tile tile{samples->planes[0].data(), samples->planes[1].data(), samples->planes[2].data(),
                    2 * Grid::Samples};
    for (const StagePtr& stage : stages)
        stage->Run(tile);
    return samples;
}

} // namespace

CurveTableStage::CurveTableStage(ColourSpace space, Isa isa)
    : m_space(space), m_kernel(SelectKernel<CurveTableKernel>(isa)), m_values(3 * Grid::Values)
{
}

std::shared_ptr<const CurveTableStage> CurveTableStage::Make(const std::vector<StagePtr>& stages,
                                                             ColourSpace end, Isa isa)
{
    const std::shared_ptr<CurveTableStage> stage(
        new CurveTableStage(stages.front()->GetColourSpace(), isa));
    const auto fit = SelectKernel<CurveFitKernel>(isa);
    const auto samples = TakeSamples(stages);
    const float* const places = GetPlaces().data();
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const Plane& values = samples->planes[channel];
        if (channel > 0 && values == samples->planes[channel - 1]) {
            stage->m_tables[channel] = stage->m_tables[channel - 1];
            continue;
        }
        float* const table = stage->m_values.data() + channel * Grid::Values;
        const bool isLinear = end == ColourSpace::Linear;
        const float off = std::max(fit(places, values.data(), isLinear, table),
                                   fit(places + Grid::Samples, values.data() + Grid::Samples,
                                       isLinear, table + Grid::Values / 2));
        // The negation catches NaN, which compares false.
        if (!(off <= Tolerance))
            return nullptr;
        stage->m_tables[channel] = table;
    }
    return stage;
}

} // namespace LumetraHost
