// SPDX-License-Identifier: GPL-2.0-or-later
#include "Noise.h"

#include <array>
#include <cstddef>
#include <utility>

namespace LumetraSample {

namespace {

float Fade(float t)
{
    return t * t * t * (t * (t * 6.0f - 15.0f) + 10.0f);
}

// The directions to the middles of a cube's edges, four of them twice to make it sixteen.
const Vec3 Edges[16] = {{1, 1, 0},  {-1, 1, 0},  {1, -1, 0}, {-1, -1, 0}, {1, 0, 1},  {-1, 0, 1},
                        {1, 0, -1}, {-1, 0, -1}, {0, 1, 1},  {0, -1, 1},  {0, 1, -1}, {0, -1, -1},
                        {1, 1, 0},  {-1, 1, 0},  {0, -1, 1}, {0, -1, -1}};

// The numbers 0 to 255 in random order, repeated.
class Permutation
{
public:
    Permutation()
    {
        for (std::uint32_t i = 0; i < 256; ++i) {
            m_order[i] = static_cast<std::uint8_t>(i);
        }
        for (std::uint32_t i = 255; i > 0; --i) {
            std::swap(m_order[i], m_order[Hash(i + 1000u) % (i + 1u)]);
        }
    }

    int Next(int previous, int step) const
    {
        return m_order[static_cast<std::size_t>((previous + step) & 255)];
    }

private:
    std::array<std::uint8_t, 256> m_order;
};

const Permutation PermutationValue;

// Values at lattice corners, repeated every `Period` cells: a look-up is much faster than a hash,
// and turned octaves hide the repetition.
constexpr std::int32_t Period = 128;

class LatticeValues
{
public:
    LatticeValues()
    {
        for (std::int32_t i = 0; i < Period * Period; ++i) {
            m_values[static_cast<std::size_t>(i)] = HashUnit(Hash(i % Period, i / Period, 17));
        }
    }

    float At(std::int32_t x, std::int32_t y) const
    {
        return m_values[static_cast<std::size_t>((y & (Period - 1)) * Period + (x & (Period - 1)))];
    }

private:
    std::array<float, static_cast<std::size_t>(Period) * Period> m_values;
};

const LatticeValues Lattice;

} // namespace

float GradientNoise(const Vec3& p)
{
    const std::int32_t ix = Floor(p.x);
    const std::int32_t iy = Floor(p.y);
    const std::int32_t iz = Floor(p.z);
    const Vec3 f = p - Vec3{static_cast<float>(ix), static_cast<float>(iy), static_cast<float>(iz)};
    const float u = Fade(f.x);
    const int columns[2] = {PermutationValue.Next(0, ix), PermutationValue.Next(0, ix + 1)};
    float rows[4];
    for (int i = 0; i < 4; ++i) {
        const int dy = i & 1;
        const int dz = i >> 1;
        const auto corner = [&](int dx) {
            const int hash =
                PermutationValue.Next(PermutationValue.Next(columns[dx], iy + dy), iz + dz);
            return Dot(Edges[hash & 15], f - Vec3{static_cast<float>(dx), static_cast<float>(dy),
                                                  static_cast<float>(dz)});
        };
        rows[i] = Mix(corner(0), corner(1), u);
    }
    const float v = Fade(f.y);
    return Mix(Mix(rows[0], rows[1], v), Mix(rows[2], rows[3], v), Fade(f.z));
}

float ValueNoise(float x, float y)
{
    const std::int32_t ix = Floor(x);
    const std::int32_t iy = Floor(y);
    const float u = Fade(x - static_cast<float>(ix));
    return Mix(Mix(Lattice.At(ix, iy), Lattice.At(ix + 1, iy), u),
               Mix(Lattice.At(ix, iy + 1), Lattice.At(ix + 1, iy + 1), u),
               Fade(y - static_cast<float>(iy)));
}

float Fbm(Vec3 p, int octaves)
{
    float sum = 0.0f;
    float weight = 0.5f;
    for (int i = 0; i < octaves; ++i, weight *= 0.5f) {
        sum += weight * GradientNoise(p);
        p = p * 2.03f + Vec3{17.1f, 31.7f, 5.3f};
    }
    return sum;
}

float Fbm(float x, float y, int octaves)
{
    float sum = 0.0f;
    float weight = 0.5f;
    for (int i = 0; i < octaves; ++i, weight *= 0.5f) {
        sum += weight * (2.0f * ValueNoise(x, y) - 1.0f);
        const float turned = 1.62f * x - 1.18f * y + 13.7f;
        y = 1.18f * x + 1.62f * y + 7.9f;
        x = turned;
    }
    return sum;
}

float Ridged(float x, float y, int octaves)
{
    float sum = 0.0f;
    float weight = 0.5f;
    float previous = 1.0f;
    for (int i = 0; i < octaves; ++i, weight *= 0.5f) {
        float ridge = 1.0f - std::abs(2.0f * ValueNoise(x, y) - 1.0f);
        ridge *= ridge;
        sum += weight * ridge * previous;
        previous = ridge;
        const float turned = 1.62f * x - 1.18f * y + 3.1f;
        y = 1.18f * x + 1.62f * y + 9.7f;
        x = turned;
    }
    return sum;
}

CellPoint Cells(float x, float y)
{
    const std::int32_t ix = Floor(x);
    const std::int32_t iy = Floor(y);
    CellPoint nearest{8.0f, 0};
    for (std::int32_t j = iy - 1; j <= iy + 1; ++j) {
        for (std::int32_t i = ix - 1; i <= ix + 1; ++i) {
            const std::uint32_t id = Hash(i, j, 91);
            const float dx = static_cast<float>(i) + HashUnit(id) - x;
            const float dy = static_cast<float>(j) + HashUnit(Hash(id)) - y;
            const float squared = dx * dx + dy * dy;
            if (squared < nearest.distance) {
                nearest = {squared, id};
            }
        }
    }
    nearest.distance = std::sqrt(nearest.distance);
    return nearest;
}

} // namespace LumetraSample
