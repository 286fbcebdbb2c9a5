// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/kernels/StoreTableKernel.h"

#include "engine/kernels/KernelMath.h"
#include "engine/kernels/PackedPixel.h"

namespace LumetraHost {
namespace {

using Grid = StoreGrid;

constexpr int BlockSize = 256;
constexpr float Steps = static_cast<float>(Grid::StepsOfUnit);
constexpr PackedPixel8 AlphaMask = PackedPixel8{0xFF} << GetChannelShift(3, 8);

LUMETRA_KERNEL_INLINE void FindEntries(const float* __restrict values,
                                       std::uint16_t* __restrict entries, int count)
{
    constexpr float highest = static_cast<float>(Grid::Entries - 1) / Steps;
    for (int i = 0; i < count; ++i) {
        const float place = ClampPositive(values[i] - Grid::Lowest, 0.0f, highest);
        entries[i] = static_cast<std::uint16_t>(static_cast<std::int32_t>(place * Steps + 0.5f));
    }
}

LUMETRA_KERNEL_INLINE float Limit(float value)
{
    return ClampPositive(value, 0.0f, 1.0f);
}

LUMETRA_KERNEL_INLINE std::uint8_t ToByte(float value)
{
    return static_cast<std::uint8_t>(static_cast<std::int32_t>(Limit(value) * 255.0f + 0.5f));
}

} // namespace

template <Isa isa>
void StoreTableKernel<isa>::Run(const Tile& tile, const std::uint8_t* const* tables,
                                const std::uint8_t* source, std::uint8_t* target)
{
    const std::uint8_t* const redTable = tables[0];
    const std::uint8_t* const greenTable = tables[1];
    const std::uint8_t* const blueTable = tables[2];
    const auto* packedSource = reinterpret_cast<const PackedPixel8*>(source);
    auto* packedTarget = reinterpret_cast<PackedPixel8*>(target);
    alignas(64) std::uint16_t red[BlockSize];
    alignas(64) std::uint16_t green[BlockSize];
    alignas(64) std::uint16_t blue[BlockSize];
    for (int x = 0; x < tile.count; x += BlockSize) {
        const int count = Smaller(BlockSize, tile.count - x);
        FindEntries(tile.red + x, red, count);
        FindEntries(tile.green + x, green, count);
        FindEntries(tile.blue + x, blue, count);
        LUMETRA_KERNEL_UNROLLED
        for (int i = 0; i < count; ++i)
            packedTarget[x + i] = (packedSource[x + i] & AlphaMask) |
                                  PackedPixel8{redTable[red[i]]} << GetChannelShift(0, 8) |
                                  PackedPixel8{greenTable[green[i]]} << GetChannelShift(1, 8) |
                                  PackedPixel8{blueTable[blue[i]]} << GetChannelShift(2, 8);
    }
}

template <Isa isa>
float StoreFitKernel<isa>::Run(const float* values, std::uint8_t* table)
{
    const float* __restrict v = values;
    std::uint8_t* __restrict entry = table;
    std::int32_t worst = 0;
    entry[0] = ToByte(v[0]);
    for (int i = 1; i < Grid::Entries; ++i) {
        const float rise = Limit(v[i]) - Limit(v[i - 1]);
        worst = Larger(worst, BitsFromFloat(GetSize(rise)));
        entry[i] = ToByte(v[i]);
    }
    return 0.5f * 255.0f * FloatFromBits(worst);
}

template struct StoreTableKernel<KernelIsa>;
template struct StoreFitKernel<KernelIsa>;

} // namespace LumetraHost
