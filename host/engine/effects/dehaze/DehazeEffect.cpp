// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/dehaze/DehazeEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/dehaze/DehazeKernel.h"
#include "engine/effects/dehaze/HazeMap.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/PictureFacts.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace LumetraHost {
namespace {

constexpr double LeastTransmission = 0.2;
/// Transmission of the haze that negative amounts add to places without any.
constexpr double AddedTransmission = 0.7;

/// Pixels of a picture on the rows or columns of a map: `start + i * step`.
struct Places
{
    double start;
    double step;
};

Places FindPlaces(double origin, double scale, double mapOrigin, double mapScale)
{
    return {(origin + scale / 2 - mapOrigin) / mapScale - 0.5, scale / mapScale};
}

DehazeNumbers GetNumbers(const DehazeParameters& parameters, const HazeMap& map)
{
    const double strength = -parameters.amount / 100;
    DehazeNumbers numbers{};
    std::copy_n(map.GetAirLight().begin(), 3, numbers.airLight);
    numbers.leastTransmission = static_cast<float>(LeastTransmission);
    numbers.exponent = static_cast<float>(strength);
    numbers.shift = static_cast<float>(strength > 0 ? strength * std::log2(AddedTransmission) : 0);
    return numbers;
}

/// The stage takes haze out of tiles of encoded values. It looks at the tile's place and at the
/// pixel's own colour; what it knows of others was found before.
class DehazeStage : public Stage
{
public:
    DehazeStage(const DehazeParameters& parameters, std::shared_ptr<const HazeMap> map,
                const StageContext& context)
        : m_map(std::move(map)), m_numbers(GetNumbers(parameters, *m_map)),
          m_kernel(SelectKernel<DehazeKernel>(context.isa))
    {
        const PictureArea& area = context.area;
        const PictureArea& mapped = m_map->GetArea();
        m_columns = FindPlaces(area.originX, area.scaleX, mapped.originX, mapped.scaleX);
        m_rows = FindPlaces(area.originY, area.scaleY, mapped.originY, mapped.scaleY);
    }

    void Run(const Tile& tile) const override
    {
        // Each thread keeps its rows, so that a tile allocates nothing.
        thread_local std::vector<float> slopes, offsets;
        Interpolate(tile, &HazeMap::GetSlopes, slopes);
        Interpolate(tile, &HazeMap::GetOffsets, offsets);
        m_kernel(tile,
                 {slopes.data(), offsets.data(), static_cast<float>(m_map->GetWidth() - 1),
                  static_cast<float>(m_columns.start), static_cast<float>(m_columns.step)},
                 m_numbers);
    }
    ColourSpace GetColourSpace() const override { return ColourSpace::Encoded; }

private:
    /// Fills the columns that the tile looks at with the values of its row.
    void Interpolate(const Tile& tile, const float* (HazeMap::*getRow)(int) const,
                     std::vector<float>& row) const
    {
        const int last = m_map->GetHeight() - 1;
        const double place = std::clamp(m_rows.start + tile.y * m_rows.step, 0.0, double(last));
        const int low = static_cast<int>(place);
        const auto part = static_cast<float>(place - low);
        const float* const above = (*m_map.*getRow)(low);
        const float* const below = (*m_map.*getRow)(std::min(low + 1, last));
        row.resize(static_cast<std::size_t>(m_map->GetWidth()));
        for (int x = FindColumn(tile.x, -1); x <= FindColumn(tile.x + tile.count - 1, 2); ++x)
            row[static_cast<std::size_t>(x)] = above[x] + part * (below[x] - above[x]);
    }

    int FindColumn(int x, int margin) const
    {
        const double place = m_columns.start + x * m_columns.step + margin;
        return static_cast<int>(std::clamp(place, 0.0, double(m_map->GetWidth() - 1)));
    }

    std::shared_ptr<const HazeMap> m_map;
    DehazeNumbers m_numbers;
    void (*m_kernel)(const Tile&, const DehazeRow&, const DehazeNumbers&);
    Places m_columns{};
    Places m_rows{};
};

StagePtr CreateStage(const DehazeParameters& parameters, const StageContext& context)
{
    auto map = context.facts ? context.facts->GetHaze() : std::make_shared<const HazeMap>();
    return std::make_shared<DehazeStage>(parameters, std::move(map), context);
}

} // namespace

EffectKind MakeDehazeKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Dehaze"), CreateStage, EffectReach::WholePicture);
}

} // namespace LumetraHost
