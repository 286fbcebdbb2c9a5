// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/gaussian/GaussianAxis.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace LumetraHost {
namespace {

/// The narrowest Gaussian, in cells: the interpolation between cells shows in narrower ones.
constexpr double NarrowestInCells = 4;
constexpr double CutAt = 4;

int CountCells(int length, double sigma)
{
    int size = 1;
    while (sigma / (2 * size) >= NarrowestInCells && 2 * size < length)
        size *= 2;
    return std::max(1, static_cast<int>(std::lround(double(length) / size)));
}

std::vector<float> MakeWeights(double sigma)
{
    const int radius = static_cast<int>(std::ceil(CutAt * sigma));
    std::vector<double> exact;
    double sum = 0;
    for (int i = 0; i <= radius; ++i) {
        exact.push_back(i == 0 ? 1.0 : std::exp(-0.5 * (i / sigma) * (i / sigma)));
        sum += i == 0 ? 1.0 : 2 * exact.back();
    }
    std::vector<float> weights;
    for (const double weight : exact)
        weights.push_back(static_cast<float>(weight / sum));
    return weights;
}

} // namespace

GaussianAxis::GaussianAxis(int length, double sigma)
    : m_length(length), m_cells(CountCells(length, sigma))
{
    const double size = double(m_length) / m_cells;
    const double own = (sigma / size) * (sigma / size) - (IsReduced() ? 0.25 : 0.0);
    m_weights = MakeWeights(std::sqrt(std::max(own, 0.0)));
}

int GaussianAxis::Mirror(int cell) const
{
    const int period = 2 * m_cells;
    const int folded = ((cell % period) + period) % period;
    return folded < m_cells ? folded : period - 1 - folded;
}

// Borders of cells lie at whole fractions length * cell / cells: integers keep them exact.

int GaussianAxis::GetFirstPixel(int cell) const
{
    return static_cast<int>(std::int64_t{cell} * m_length / m_cells);
}

int GaussianAxis::GetEndPixel(int cell) const
{
    return static_cast<int>((std::int64_t{cell + 1} * m_length + m_cells - 1) / m_cells);
}

int GaussianAxis::GetFirstCell(int pixel) const
{
    return static_cast<int>(std::int64_t{pixel} * m_cells / m_length);
}

float GaussianAxis::GetShare(int cell, int pixel) const
{
    // In units of 1 / cells of a pixel.
    const auto cellBegin = std::int64_t{cell} * m_length;
    const auto pixelBegin = std::int64_t{pixel} * m_cells;
    const auto begin = std::max(cellBegin, pixelBegin);
    const auto end = std::min(cellBegin + m_length, pixelBegin + m_cells);
    return static_cast<float>(double(end - begin) / m_length);
}

GaussianAxis::Position GaussianAxis::Locate(int pixel) const
{
    if (!IsReduced())
        return {pixel, pixel, 0.0f};
    const double centre = (pixel + 0.5) * m_cells / m_length - 0.5;
    const int cell = static_cast<int>(std::floor(centre));
    Position position;
    position.cell = Mirror(cell);
    position.nextCell = Mirror(cell + 1);
    position.fraction = static_cast<float>(centre - cell);
    return position;
}

} // namespace LumetraHost
