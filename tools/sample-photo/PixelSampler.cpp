// SPDX-License-Identifier: GPL-2.0-or-later
#include "PixelSampler.h"

#include "Noise.h"

#include <utility>

namespace LumetraSample {

namespace {

// Radical inverse in base 2: the bits of the index mirrored.
std::uint32_t VanDerCorput(std::uint32_t index)
{
    std::uint32_t result = 0;
    for (std::uint32_t bit = 1u << 31; index != 0; index >>= 1, bit >>= 1) {
        result ^= (index & 1u) != 0u ? bit : 0u;
    }
    return result;
}

// Second Sobol dimension: direction numbers of the primitive polynomial x + 1.
std::uint32_t SecondSobol(std::uint32_t index)
{
    std::uint32_t result = 0;
    for (std::uint32_t v = 1u << 31; index != 0; index >>= 1, v ^= v >> 1) {
        result ^= (index & 1u) != 0u ? v : 0u;
    }
    return result;
}

} // namespace

PixelSampler::PixelSampler(std::uint32_t seed, int count) : m_seed(seed), m_count(count)
{
    for (std::vector<Vec2>& pairs : m_pairs) {
        pairs.resize(static_cast<std::size_t>(count));
    }
}

void PixelSampler::Reset(int x, int y)
{
    const std::uint32_t pixel = Hash(x, y, static_cast<std::int32_t>(m_seed));
    std::uint32_t key = pixel;
    for (std::vector<Vec2>& pairs : m_pairs) {
        key = Hash(key + 0x632be5abu);
        const std::uint32_t flipX = Hash(key ^ 0x1234567u);
        const std::uint32_t flipY = Hash(flipX);
        for (std::uint32_t i = 0; i < static_cast<std::uint32_t>(m_count); ++i) {
            pairs[i] = {HashUnit(VanDerCorput(i) ^ flipX), HashUnit(SecondSobol(i) ^ flipY)};
        }
        Shuffle(pairs, Hash(flipY));
    }
}

Vec2 PixelSampler::Pair(int index, Choice choice) const
{
    return m_pairs[static_cast<std::size_t>(choice)][static_cast<std::size_t>(index)];
}

void PixelSampler::Shuffle(std::vector<Vec2>& pairs, std::uint32_t key) const
{
    for (std::size_t i = pairs.size(); i > 1; --i) {
        key = Hash(key + 0x9e3779b9u);
        std::swap(pairs[i - 1], pairs[key % i]);
    }
}

} // namespace LumetraSample
