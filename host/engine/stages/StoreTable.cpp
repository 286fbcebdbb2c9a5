// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/StoreTable.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/kernels/StoreTableKernel.h"

#include <algorithm>
#include <cstddef>

namespace LumetraHost {
namespace {

using Grid = StoreGrid;

/// Samples of the values that the table limits to its ends: some below it and some above.
constexpr std::array<float, 16> Beyond = {-0.6f, -0.75f, -1.0f, -1.5f, -2.0f, -3.0f, -5.0f, -8.0f,
                                          1.51f, 1.75f,  2.0f,  2.5f,  3.0f,  4.0f,  6.0f,  8.0f};

template <std::size_t count>
struct Samples
{
    alignas(64) std::array<float, count> planes[3];

    Samples(const std::array<float, count>& places, const std::vector<StagePtr>& stages)
        : planes{places, places, places}
    {
        const Tile tile{planes[0].data(), planes[1].data(), planes[2].data(),
                        static_cast<int>(count)};
        for (const StagePtr& stage : stages)
            stage->Run(tile);
    }
};

using Places = std::array<float, Grid::Entries>;

const Places& GetPlaces()
{
    static const auto places = [] {
        auto made = std::make_unique<Places>();
        for (int i = 0; i < Grid::Entries; ++i)
            (*made)[static_cast<std::size_t>(i)] =
                Grid::Lowest + static_cast<float>(i) / static_cast<float>(Grid::StepsOfUnit);
        return made;
    }();
    return *places;
}

/// True when storing `value` gives `end`, black or white; false for NaN and all in between.
bool IsLimited(float value, std::uint8_t end)
{
    return end == 0 ? value <= 0.0f : end == 255 && value >= 1.0f;
}

/// True when all values beyond the table are stored as the entry at that end.
bool IsConstantBeyond(const std::array<float, Beyond.size()>& beyond, const std::uint8_t* table)
{
    constexpr auto half = static_cast<std::ptrdiff_t>(Beyond.size() / 2);
    const auto is = [](std::uint8_t end) {
        return [end](float value) { return IsLimited(value, end); };
    };
    return std::all_of(beyond.begin(), beyond.begin() + half, is(table[0])) &&
           std::all_of(beyond.begin() + half, beyond.end(), is(table[Grid::Entries - 1]));
}

} // namespace

std::shared_ptr<const StoreTable> StoreTable::Make(const std::vector<StagePtr>& stages, Isa isa)
{
    const std::shared_ptr<StoreTable> made(new StoreTable);
    made->m_kernel = SelectKernel<StoreTableKernel>(isa);
    made->m_entries.resize(3 * std::size_t{Grid::Entries});
    const auto fit = SelectKernel<StoreFitKernel>(isa);
    const auto samples = std::make_unique<Samples<Grid::Entries>>(GetPlaces(), stages);
    const Samples<Beyond.size()> beyond(Beyond, stages);
    for (std::size_t channel = 0; channel < 3; ++channel) {
        std::uint8_t* const table = made->m_entries.data() + channel * Grid::Entries;
        const float off = fit(samples->planes[channel].data(), table);
        if (!(off <= Tolerance) || !IsConstantBeyond(beyond.planes[channel], table))
            return nullptr;
        made->m_tables[channel] = table;
    }
    return made;
}

void StoreTable::Store(const Tile& tile, const std::uint8_t* source, std::uint8_t* target) const
{
    m_kernel(tile, m_tables.data(), source, target);
}

} // namespace LumetraHost
