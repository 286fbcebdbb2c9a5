// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/AreaAverage.h"

#include "threads/RowBands.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

namespace LumetraHost {
namespace {

/// The rows of a picture of so many channels, by their numbers modulo its height. Whoever loads
/// four values for a pixel of three finds one behind the last pixel of a row, too.
template <class Value, int Count>
class SourceRows
{
public:
    using Channel = Value;
    static constexpr int Channels = Count;
    static constexpr bool HasAlpha = Count == Image::Channels;

    template <class Picture>
    explicit SourceRows(const Picture& picture)
        : m_first(picture.Row(0)), m_stride(picture.GetStride()), m_height(picture.GetHeight())
    {
    }

    const Value* Get(int y) const
    {
        return reinterpret_cast<const Value*>(m_first +
                                              m_stride * static_cast<std::size_t>(y % m_height));
    }

    /// The number of values of so many pixels.
    static constexpr std::size_t CountValues(int pixels)
    {
        return static_cast<std::size_t>(Count) * static_cast<std::size_t>(pixels);
    }

private:
    const std::uint8_t* m_first;
    std::size_t m_stride;
    int m_height;
};

/// Source pixels whose sums are made at a time: these stay in the first-level cache.
constexpr int ChunkPixels = 1024;

constexpr std::size_t CountTargetValues(int pixels)
{
    return static_cast<std::size_t>(Image::Channels) * static_cast<std::size_t>(pixels);
}

template <class Channel>
Channel Round(float value)
{
    constexpr float white = std::numeric_limits<Channel>::max();
    return static_cast<Channel>(std::lrint(std::clamp(value, 0.0f, white)));
}

/// Sums of so many values of 16 bits are exact as floats, and those of so many of 8 bits fit
/// into 16.
constexpr int MostExact = 256;

/// Sums more values than that. Fours are summed exactly, their sums as
/// floats.
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

/// The mean of two by two is rounded up from the half on, other means to even.
template <class Channel>
Channel GetMean(float sum, int width, int height)
{
    return width == 2 && height == 2
               ? static_cast<Channel>((static_cast<int>(sum) + 2) / 4)
               : Round<Channel>(sum * (1.0f / static_cast<float>(width * height)));
}

template <class Channel, class Sum>
void AddRow(const Channel* __restrict values, std::size_t count, Sum* __restrict sums)
{
    for (std::size_t i = 0; i < count; ++i)
        sums[i] = static_cast<Sum>(sums[i] + values[i]);
}

/// The channels of one pixel, which compilers for every processor work on at once.
using BytePixel = std::uint8_t __attribute__((vector_size(4)));
using WordPixel = std::uint16_t __attribute__((vector_size(8)));
using LongPixel = std::uint32_t __attribute__((vector_size(16)));
using FloatPixel = float __attribute__((vector_size(16)));

template <class Packed, class Value>
Packed LoadPixel(const Value* values)
{
    static_assert(sizeof(Packed) == Image::Channels * sizeof(Value));
    Packed packed;
    std::memcpy(&packed, values, sizeof(packed));
    return packed;
}

FloatPixel ToFloats(const std::uint8_t* values)
{
    return __builtin_convertvector(LoadPixel<BytePixel>(values), FloatPixel);
}

FloatPixel ToFloats(const std::uint16_t* values)
{
    return __builtin_convertvector(LoadPixel<WordPixel>(values), FloatPixel);
}

LongPixel ToLongs(const std::uint16_t* values)
{
    return __builtin_convertvector(LoadPixel<WordPixel>(values), LongPixel);
}

LongPixel ToLongs(const std::uint32_t* values)
{
    return LoadPixel<LongPixel>(values);
}

template <class Rows, class Sum>
void StoreMean(const Sum* sums, int width, int height, typename Rows::Channel* target)
{
    using Channel = typename Rows::Channel;
    LongPixel block = {};
    for (int column = 0; column < width; ++column, sums += Rows::Channels)
        block += ToLongs(sums);
    const auto mean = __builtin_convertvector(block, FloatPixel);
    for (int i = 0; i < Rows::Channels; ++i)
        target[i] = GetMean<Channel>(mean[i], width, height);
    if (!Rows::HasAlpha)
        target[Rows::Channels] = std::numeric_limits<Channel>::max();
}

/// Adds the weighed averages of one row.
template <class Rows>
void AddWeighed(const AreaAxis& columns, const typename Rows::Channel* pixels, float weight,
                float* sums, int width)
{
    for (int x = 0; x < width; ++x, sums += Image::Channels) {
        FloatPixel average = {};
        for (const auto* column = columns.Begin(x); column != columns.End(x); ++column)
            average += ToFloats(pixels + Rows::CountValues(column->source)) * column->weight;
        const FloatPixel sum = LoadPixel<FloatPixel>(sums) + average * weight;
        std::memcpy(sums, &sum, sizeof(sum));
    }
}

} // namespace

AreaAverage::AreaAverage(int sourceWidth, int sourceHeight, int width, int height)
    : AreaAverage({sourceWidth, width}, {sourceHeight, height}, width)
{
}

AreaAverage::AreaAverage(AreaAxis columns, AreaAxis rows, int width)
    : m_width(width), m_columns(std::move(columns)), m_rows(std::move(rows))
{
}

void AreaAverage::Run(const Image& source, int y, Image& target, int targetRow) const
{
    if (target.GetDepth() == Image::Depth::Bits16)
        RunRow(SourceRows<std::uint16_t, Image::Channels>(source), y, target.Row16(targetRow));
    else
        RunRow(SourceRows<std::uint8_t, Image::Channels>(source), y, target.Row(targetRow));
}

void AreaAverage::RunAll(const Image& source, Image& target) const
{
    if (target.GetDepth() == Image::Depth::Bits16)
        RunOn<SourceRows<std::uint16_t, Image::Channels>>(source, target);
    else
        RunOn<SourceRows<std::uint8_t, Image::Channels>>(source, target);
}

void AreaAverage::RunAll(const KeptImage& source, Image& target) const
{
    if (!source.IsPacked())
        RunAll(source.GetImage(), target);
    else if (target.GetDepth() == Image::Depth::Bits16)
        RunOn<SourceRows<std::uint16_t, KeptImage::Channels>>(source, target);
    else
        RunOn<SourceRows<std::uint8_t, KeptImage::Channels>>(source, target);
}

template <class Rows, class Picture>
void AreaAverage::RunOn(const Picture& source, Image& target) const
{
    const Rows rows(source);
    ForEachBand(ThreadPool::GetShared(), target.GetHeight(), 0, nullptr, [&](int first, int end) {
        for (int y = first; y < end; ++y)
            RunRow(rows, y, reinterpret_cast<typename Rows::Channel*>(target.Row(y)));
    });
}

template <class Rows>
void AreaAverage::RunRow(const Rows& source, int y, typename Rows::Channel* target) const
{
    const int values = m_columns.GetWholeFactor() * m_rows.GetWholeFactor();
    if (values == 0)
        return Weigh(source, y, target);
    if constexpr (sizeof(typename Rows::Channel) > 1) {
        if (values > MostExact)
            return AverageLargeBlocks(source, y, target);
    } else if (m_rows.GetWholeFactor() <= MostExact) {
        return AverageBlocks<std::uint16_t>(source, y, target);
    }
    AverageBlocks<std::uint32_t>(source, y, target);
}

/// Averages each source row along its columns first, then the rows by their shares.
template <class Rows>
void AreaAverage::Weigh(const Rows& source, int y, typename Rows::Channel* target) const
{
    using Channel = typename Rows::Channel;
    std::vector<float> sums(CountTargetValues(m_width));
    for (const auto* row = m_rows.Begin(y); row != m_rows.End(y); ++row)
        AddWeighed<Rows>(m_columns, source.Get(row->source), row->weight, sums.data(), m_width);
    std::transform(sums.begin(), sums.end(), target, Round<Channel>);
    if (!Rows::HasAlpha)
        for (int x = 0; x < m_width; ++x)
            target[CountTargetValues(x) + Rows::Channels] = std::numeric_limits<Channel>::max();
}

/// Sums the rows of a block before its columns: whole rows are quick to add.
template <class Sum, class Rows>
void AreaAverage::AverageBlocks(const Rows& source, int y, typename Rows::Channel* target) const
{
    const int width = m_columns.GetWholeFactor();
    const int height = m_rows.GetWholeFactor();
    const int chunk = std::max(1, ChunkPixels / width);
    // One sum more than there are: those of three channels are loaded four at a time.
    std::vector<Sum> sums(Rows::CountValues(std::min(chunk, m_width) * width) + 1);
    for (int x = 0; x < m_width; x += chunk) {
        const int count = std::min(chunk, m_width - x);
        std::fill(sums.begin(), sums.end(), Sum{0});
        for (int row = 0; row < height; ++row)
            AddRow(source.Get(m_rows.GetFirst(y) + row) + Rows::CountValues(m_columns.GetFirst(x)),
                   Rows::CountValues(count * width), sums.data());
        for (int i = 0; i < count; ++i)
            StoreMean<Rows>(sums.data() + Rows::CountValues(i * width), width, height,
                            target + CountTargetValues(x + i));
    }
}

template <class Rows>
void AreaAverage::AverageLargeBlocks(const Rows& source, int y, std::uint16_t* target) const
{
    const int width = m_columns.GetWholeFactor();
    const int height = m_rows.GetWholeFactor();
    std::fill(target, target + CountTargetValues(m_width),
              std::numeric_limits<std::uint16_t>::max());
    for (int i = 0; i < Rows::Channels * m_width; ++i) {
        BlockSum16 sum(width * height);
        const int channel = i % Rows::Channels;
        const std::size_t first = Rows::CountValues(m_columns.GetFirst(i / Rows::Channels));
        for (int row = 0; row < height; ++row) {
            const std::uint16_t* value = source.Get(m_rows.GetFirst(y) + row) + first + channel;
            for (int x = 0; x < width; ++x, value += Rows::Channels)
                sum.Add(*value);
        }
        target[CountTargetValues(i / Rows::Channels) + channel] =
            GetMean<std::uint16_t>(sum.Get(), width, height);
    }
}

} // namespace LumetraHost
