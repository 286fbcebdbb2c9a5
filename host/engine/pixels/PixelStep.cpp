// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/pixels/PixelStep.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/srgb/Srgb.h"

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

PixelStep::PixelStep(Image::Depth depth, Isa isa, ColourSpace first, ColourSpace last,
                     double sourceWeight)
{
    const bool is16 = depth == Image::Depth::Bits16;
    m_bytesPerPixel = is16 ? 8 : 4;
    m_table = GetLoadTable(is16, first);
    m_load = is16 ? SelectKernel<LoadKernel16>(isa) : SelectKernel<LoadKernel8>(isa);
    m_store = is16 ? SelectKernel<StoreKernel16>(isa) : SelectKernel<StoreKernel8>(isa);
    m_storing = {last == ColourSpace::Linear, static_cast<float>(sourceWeight)};
}

void PixelStep::Load(const Tile& tile, const std::uint8_t* row) const
{
    m_load(tile, row + GetOffset(tile), m_table);
}

void PixelStep::Store(const Tile& tile, const std::uint8_t* sourceRow,
                      std::uint8_t* targetRow) const
{
    m_store(tile, sourceRow + GetOffset(tile), targetRow + GetOffset(tile), m_storing);
}

std::size_t PixelStep::GetOffset(const Tile& tile) const
{
    return static_cast<std::size_t>(tile.x) * m_bytesPerPixel;
}

} // namespace LumetraHost
