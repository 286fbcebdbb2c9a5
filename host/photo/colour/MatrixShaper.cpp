// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/colour/MatrixShaper.h"

#include "image/Srgb.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace LumetraHost {
namespace {

constexpr int EncodingSteps = 65535;

} // namespace

MatrixShaper::MatrixShaper(std::array<std::vector<float>, 3> curves, const Matrix& toSrgb)
    : m_curves(std::move(curves)), m_encoding(EncodingSteps + 2)
{
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            m_matrix[row][column] = static_cast<float>(toSrgb[row][column]);
    }
    for (int i = 0; i <= EncodingSteps; ++i)
        m_encoding[static_cast<std::size_t>(i)] =
            static_cast<float>(LinearToSrgb(static_cast<double>(i) / EncodingSteps));
    m_encoding.back() = m_encoding[EncodingSteps]; // the neighbour of the last step
}

float MatrixShaper::Encode(float linear) const
{
    const float position = std::min(std::max(linear, 0.0f), 1.0f) * EncodingSteps;
    const auto index = static_cast<std::size_t>(position);
    const float fraction = position - static_cast<float>(index);
    return m_encoding[index] + fraction * (m_encoding[index + 1] - m_encoding[index]);
}

template <class Value>
void MatrixShaper::ConvertRow(Value* row, int width) const
{
    constexpr float white = std::numeric_limits<Value>::max();
    for (Value* pixel = row; pixel < row + Image::Channels * width; pixel += Image::Channels) {
        const float red = m_curves[0][pixel[0]];
        const float green = m_curves[1][pixel[1]];
        const float blue = m_curves[2][pixel[2]];
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const auto& weights = m_matrix[channel];
            const float linear = weights[0] * red + weights[1] * green + weights[2] * blue;
            pixel[channel] = static_cast<Value>(Encode(linear) * white + 0.5f);
        }
    }
}

void MatrixShaper::Convert(Image& image, int first, int last) const
{
    for (int y = first; y < last; ++y) {
        if (image.GetDepth() == Image::Depth::Bits16)
            ConvertRow(image.Row16(y), image.GetWidth());
        else
            ConvertRow(image.Row(y), image.GetWidth());
    }
}

} // namespace LumetraHost
