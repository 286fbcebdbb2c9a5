// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceHaze.h"

#include "host/engine/ReferenceFormulas.h"
#include "host/engine/TestPictures.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace LumetraHost {

ReferenceHaze::ReferenceHaze(const Image& picture)
    : m_width(picture.GetWidth()), m_height(picture.GetHeight())
{
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x) {
            Colour colour{};
            for (int c = 0; c < 3; ++c)
                colour[static_cast<std::size_t>(c)] =
                    double(GetChannel(picture, x, y, c)) / GetWhite(picture);
            m_colours.push_back(colour);
        }
    FindAir();
    FindTransmission();
}

/// take(result, index of a pixel of the square) for every pixel of every square.
template <class Take>
ReferenceHaze::Plane ReferenceHaze::OverSquares(int reach, Take take) const
{
    Plane result(m_colours.size());
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x) {
            std::vector<std::size_t> square;
            for (int v = std::max(0, y - reach); v <= std::min(m_height - 1, y + reach); ++v)
                for (int u = std::max(0, x - reach); u <= std::min(m_width - 1, x + reach); ++u)
                    square.push_back(At(u, v));
            result[At(x, y)] = take(square);
        }
    return result;
}

ReferenceHaze::Plane ReferenceHaze::FindDark(const Colour& air) const
{
    const int reach = static_cast<int>(std::lround(0.01 * std::hypot(m_width, m_height)));
    return OverSquares(reach, [&](const std::vector<std::size_t>& square) {
        double least = HUGE_VAL;
        for (const std::size_t i : square)
            for (std::size_t c = 0; c < 3; ++c)
                least = std::min(least, m_colours[i][c] / air[c]);
        return least;
    });
}

ReferenceHaze::Plane ReferenceHaze::Mean(const Plane& plane, int reach) const
{
    return OverSquares(reach, [&](const std::vector<std::size_t>& square) {
        double sum = 0;
        for (const std::size_t i : square)
            sum += plane[i];
        return sum / double(square.size());
    });
}

void ReferenceHaze::FindAir()
{
    const Plane dark = FindDark({1, 1, 1});
    Plane sorted = dark;
    std::sort(sorted.rbegin(), sorted.rend());
    const double begin = sorted[sorted.size() / 1000] - 1.0 / 255;
    Colour sum{};
    double weights = 0;
    for (std::size_t i = 0; i < dark.size(); ++i) {
        const double weight = std::max(0.0, dark[i] - begin);
        weights += weight;
        for (std::size_t c = 0; c < 3; ++c)
            sum[c] += weight * m_colours[i][c];
    }
    m_air = Map(sum, [weights](double value) { return std::max(0.25, value / weights); });
}

void ReferenceHaze::FindTransmission()
{
    const int reach = static_cast<int>(std::lround(0.04 * std::hypot(m_width, m_height)));
    Plane through = FindDark(m_air);
    for (double& value : through)
        value = 1 - 0.95 * std::min(1.0, value);
    Plane guide, product, square;
    for (std::size_t i = 0; i < m_colours.size(); ++i) {
        guide.push_back(Luma(m_colours[i]));
        product.push_back(guide[i] * through[i]);
        square.push_back(guide[i] * guide[i]);
    }
    const Plane meanGuide = Mean(guide, reach), meanThrough = Mean(through, reach);
    Plane slope = Mean(product, reach), offset = Mean(square, reach);
    for (std::size_t i = 0; i < slope.size(); ++i) {
        const double variance = offset[i] - meanGuide[i] * meanGuide[i];
        slope[i] = (slope[i] - meanGuide[i] * meanThrough[i]) / (variance + 1e-3);
        offset[i] = meanThrough[i] - slope[i] * meanGuide[i];
    }
    m_slope = Mean(slope, reach);
    m_offset = Mean(offset, reach);
}

ReferenceFormula ReferenceHaze::MakeFormula(double amount) const
{
    return OnEncoded([*this, amount](const Colour& c, int x, int y) {
        const double luma = std::clamp(Luma(c), 0.0, 1.0);
        const double through = std::clamp(m_slope[At(x, y)] * luma + m_offset[At(x, y)], 0.2, 1.0);
        const double gain = std::pow(amount > 0 ? through : 0.7 * through, -amount / 100);
        Colour drawn{};
        for (std::size_t i = 0; i < 3; ++i)
            drawn[i] = m_air[i] + gain * (c[i] - m_air[i]);
        return drawn;
    });
}

Image MakeHazyPicture(int width, int height, Image::Depth depth, double haze)
{
    const Colour air = {0.8, 0.84, 0.88};
    Image picture = Image::Allocate(width, height, depth);
    std::mt19937 random(5);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double through = 1 - haze + haze * 0.95 * std::sqrt((y + 0.5) / double(height));
            for (int c = 0; c < 4; ++c) {
                // Every third pixel is dark in one channel, as shadows and colours are.
                const bool isDark = (x + 2 * y) % 3 == c;
                const double scene = isDark ? 0 : double(random() % 1000) / 1000;
                const double value =
                    c == 3 ? 1 : scene * through + air[static_cast<std::size_t>(c)] * (1 - through);
                if (depth == Image::Depth::Bits16)
                    picture.Row16(y)[4 * x + c] =
                        static_cast<std::uint16_t>(std::lround(65535 * value));
                else
                    picture.Row(y)[4 * x + c] = static_cast<std::uint8_t>(std::lround(255 * value));
            }
        }
    return picture;
}

} // namespace LumetraHost
