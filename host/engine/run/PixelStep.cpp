// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/PixelStep.h"

#include "engine/kernels/KernelSelection.h"
#include "image/Srgb.h"

#include <vector>

namespace LumetraHost {
namespace {

std::vector<float> MakeUnitTable(std::size_t size)
{
    std::vector<float> table(size);
    for (std::size_t i = 0; i < size; ++i)
        table[i] = static_cast<float>(static_cast<double>(i) / static_cast<double>(size - 1));
    return table;
}

const float* GetLoadTable(bool is16, ColourSpace space)
{
    if (space == ColourSpace::Linear)
        return is16 ? GetSrgbDecodeTable16() : GetSrgbDecodeTable8();
    static const std::vector<float> unit8 = MakeUnitTable(256);
    static const std::vector<float> unit16 = MakeUnitTable(65536);
    return is16 ? unit16.data() : unit8.data();
}

} // namespace

PixelStep::PixelStep(Image::Depth depth, Isa isa, const StageChain& first, const StageChain& last,
                     double sourceWeight)
    : m_storeTable(last.GetStoreTable())
{
    const bool is16 = depth == Image::Depth::Bits16;
    m_bytesPerPixel = is16 ? 8 : 4;
    const float* const values = GetLoadTable(is16, first.GetFirstSpace());
    m_tables = {values, values, values};
    m_loadThroughTables = is16 ? LoadThroughTables16 : LoadThroughTables8;
    if (!first.GetLoadingStages().empty()) {
        m_ownTables = MakeTables(first, values);
        m_tables = {(*m_ownTables)[0].data(), (*m_ownTables)[1].data(), (*m_ownTables)[2].data()};
    } else if (!is16 && first.GetFirstSpace() == ColourSpace::Encoded) {
        m_loadUnit = SelectKernel<LoadUnitKernel8>(isa);
    }
    m_store = is16 ? SelectKernel<StoreKernel16>(isa) : SelectKernel<StoreKernel8>(isa);
    m_storing = {last.GetLastSpace() == ColourSpace::Linear, static_cast<float>(sourceWeight)};
}

// Pixels that are blended must not be rounded before: the table for storing rounds.
ChainEnd PixelStep::GetEnd(double sourceWeight)
{
    return sourceWeight == 0 ? ChainEnd::Pixels : ChainEnd::Tiles;
}

std::shared_ptr<const PixelStep::Tables> PixelStep::MakeTables(const StageChain& chain,
                                                               const float* values)
{
    constexpr int Entries = 256;
    const auto tables = std::make_shared<Tables>();
    for (std::vector<float>& table : *tables)
        table.assign(values, values + Entries);
    const Tile tile{(*tables)[0].data(), (*tables)[1].data(), (*tables)[2].data(), Entries};
    for (const StagePtr& stage : chain.GetLoadingStages())
        stage->Run(tile);
    return tables;
}

void PixelStep::Load(const Tile& tile, const std::uint8_t* row) const
{
    const std::uint8_t* const source = row + GetOffset(tile);
    if (m_loadUnit)
        m_loadUnit(tile, source);
    else
        m_loadThroughTables(tile, source, m_tables.data());
}

void PixelStep::Store(const Tile& tile, const std::uint8_t* sourceRow,
                      std::uint8_t* targetRow) const
{
    const std::uint8_t* const source = sourceRow + GetOffset(tile);
    std::uint8_t* const target = targetRow + GetOffset(tile);
    if (m_storeTable)
        m_storeTable->Store(tile, source, target);
    else
        m_store(tile, source, target, m_storing);
}

std::size_t PixelStep::GetOffset(const Tile& tile) const
{
    return static_cast<std::size_t>(tile.x) * m_bytesPerPixel;
}

} // namespace LumetraHost
