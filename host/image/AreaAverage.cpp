// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/AreaAverage.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace LumetraHost {
namespace {

template <class Channel>
const Channel* GetRow(const Image& source, int y)
{
    return reinterpret_cast<const Channel*>(source.Row(y % source.GetHeight()));
}

template <class Channel>
Channel Round(float value)
{
    constexpr float white = std::numeric_limits<Channel>::max();
    return static_cast<Channel>(std::lrint(std::clamp(value, 0.0f, white)));
}

/// The sum of one channel over a block. Blocks of 8 bits are summed exactly.
class BlockSum8
{
public:
    void Add(std::uint8_t value) { m_sum += value; }
    float Get() const { return static_cast<float>(m_sum); }

private:
    int m_sum = 0;
};

/// Sums values of 16 bits by fours, as Resize() does: sums of more than 256 of them are rounded on
/// the way.
class BlockSum16
{
public:
    explicit BlockSum16(int count) : m_fours(count / 4 * 4) {}

    void Add(std::uint16_t value)
    {
        m_four += value;
        if (++m_count % 4 != 0 && m_count <= m_fours)
            return;
        m_sum += static_cast<float>(m_four);
        m_four = 0;
    }
    float Get() const { return m_sum; }

private:
    const int m_fours;
    int m_count = 0;
    int m_four = 0;
    float m_sum = 0;
};

BlockSum8 MakeSum(std::uint8_t, int)
{
    return {};
}

BlockSum16 MakeSum(std::uint16_t, int count)
{
    return BlockSum16(count);
}

} // namespace

AreaAverage::AreaAverage(int sourceWidth, int sourceHeight, int width, int height)
    : m_width(width), m_columns(sourceWidth, width), m_rows(sourceHeight, height)
{
}

void AreaAverage::Run(const Image& source, int y, Image& target, int targetRow) const
{
    if (target.GetDepth() == Image::Depth::Bits16)
        RunRow(source, y, target.Row16(targetRow));
    else
        RunRow(source, y, target.Row(targetRow));
}

template <class Channel>
void AreaAverage::RunRow(const Image& source, int y, Channel* target) const
{
    if (m_columns.GetWholeFactor() > 0 && m_rows.GetWholeFactor() > 0)
        AverageBlocks(source, y, target);
    else
        Weigh(source, y, target);
}

/// Averages each source row along its columns first, then the rows by their shares.
template <class Channel>
void AreaAverage::Weigh(const Image& source, int y, Channel* target) const
{
    const auto values = static_cast<std::size_t>(Image::Channels * m_width);
    std::vector<float> sums(values);
    for (const auto* row = m_rows.Begin(y); row != m_rows.End(y); ++row) {
        const Channel* const pixels = GetRow<Channel>(source, row->source);
        float* sum = sums.data();
        for (int x = 0; x < m_width; ++x, sum += Image::Channels) {
            float average[Image::Channels] = {};
            for (const auto* column = m_columns.Begin(x); column != m_columns.End(x); ++column)
                for (int i = 0; i < Image::Channels; ++i)
                    average[i] += static_cast<float>(pixels[Image::Channels * column->source + i]) *
                                  column->weight;
            for (int i = 0; i < Image::Channels; ++i)
                sum[i] += average[i] * row->weight;
        }
    }
    std::transform(sums.begin(), sums.end(), target, Round<Channel>);
}

/// Averages blocks of whole pixels. The mean of four is rounded up from the half on, other means to
/// even.
template <class Channel>
void AreaAverage::AverageBlocks(const Image& source, int y, Channel* target) const
{
    const int width = m_columns.GetWholeFactor();
    const int height = m_rows.GetWholeFactor();
    const float scale = 1.0f / static_cast<float>(width * height);
    const bool isByFour = width == 2 && height == 2;
    for (int i = 0; i < Image::Channels * m_width; ++i) {
        auto sum = MakeSum(Channel(), width * height);
        const int first = i / Image::Channels * width * Image::Channels + i % Image::Channels;
        for (int row = 0; row < height; ++row) {
            const Channel* pixel = GetRow<Channel>(source, y * height + row) + first;
            for (int x = 0; x < width; ++x, pixel += Image::Channels)
                sum.Add(*pixel);
        }
        target[i] = isByFour ? static_cast<Channel>((static_cast<int>(sum.Get()) + 2) / 4)
                             : Round<Channel>(sum.Get() * scale);
    }
}

} // namespace LumetraHost
