// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/gaussian/GaussianBands.h"

#include "engine/kernels/KernelSelection.h"

#include <algorithm>
#include <cstdint>

namespace LumetraHost {
namespace {

int GetLargestSpan(const BandGraph::Reach& reach)
{
    int span = 0;
    for (std::size_t i = 0; i < reach.first.size(); ++i)
        span = std::max(span, reach.last[i] - reach.first[i]);
    return span;
}

} // namespace

GaussianBands::GaussianBands(int width, int height, const SpatialPass& pass, int bandRows,
                             int ahead, Isa isa)
    : m_columns(width, pass.GetShape().sigmaX), m_rows(height, pass.GetShape().sigmaY),
      m_planes(pass.GetPlanes() == BlurredPlanes::Luma ? 1 : 3), m_bandRows(bandRows),
      m_bands((height + bandRows - 1) / bandRows), m_sum(SelectKernel<SymmetricSumKernel>(isa)),
      m_accumulate(SelectKernel<AccumulateKernel>(isa)), m_enlarge(SelectKernel<EnlargeKernel>(isa))
{
    MakeRings(ahead);
    MakeColumnTables();
}

void GaussianBands::MakeRings(int ahead)
{
    const BandGraph::Reach reach = MakeReaderReach();
    for (int band = 0; band < m_bands; ++band)
        m_latency = std::max(m_latency, reach.last[static_cast<std::size_t>(band)] - band);
    m_cellBands = GetLargestSpan(reach) + 1 + ahead;
    const std::int64_t rows = std::int64_t{m_cellBands} * m_bandRows;
    const auto cellsOf = [this](std::int64_t count) {
        return static_cast<int>(count * m_rows.GetCellCount() / m_rows.GetLength()) + 2;
    };
    m_cells = PlaneRing(m_columns.GetCellCount(), m_planes, cellsOf(rows));
    if (!m_rows.IsReduced())
        return;
    m_cellsPerBand = cellsOf(m_bandRows);
    m_partialBands = GetLargestSpan(MakeFinisherReach()) + 1 + ahead;
    m_partials = PlaneRing(m_columns.GetCellCount(), m_planes, m_partialBands * m_cellsPerBand);
}

void GaussianBands::MakeColumnTables()
{
    if (!m_columns.IsReduced())
        return;
    for (int cell = 0; cell < m_columns.GetCellCount(); ++cell) {
        CellSpan span;
        span.first = m_columns.GetFirstPixel(cell);
        span.last = m_columns.GetEndPixel(cell) - 1;
        span.firstShare = m_columns.GetShare(cell, span.first);
        span.lastShare = m_columns.GetShare(cell, span.last);
        m_spans.push_back(span);
    }
    m_insideShare = static_cast<float>(double(m_columns.GetCellCount()) / m_columns.GetLength());
    for (int x = 0; x < m_columns.GetLength(); ++x) {
        const GaussianAxis::Position position = m_columns.Locate(x);
        m_low.push_back(position.cell);
        m_high.push_back(position.nextCell);
        m_fractions.push_back(position.fraction);
    }
}

GaussianScratch GaussianBands::MakeScratch() const
{
    const int cells = m_columns.GetCellCount();
    const int radius = m_columns.GetRadius();
    const auto distances =
        static_cast<std::size_t>(std::max(m_columns.GetRadius(), m_rows.GetRadius()));
    GaussianScratch scratch;
    scratch.shrunk.resize(static_cast<std::size_t>(cells));
    scratch.mirrored.resize(static_cast<std::size_t>(cells + 2 * radius));
    scratch.before.resize(distances);
    scratch.after.resize(distances);
    if (m_rows.IsReduced()) {
        scratch.sums = PlaneRing(m_columns.GetLength(), m_planes, 2);
        scratch.columns = PlaneRing(cells, m_planes, 2);
    }
    scratch.row = PlaneRing(cells, m_planes, 1);
    return scratch;
}

/// The number of cells that lie wholly above `band`.
int GaussianBands::CountCellsBefore(int band) const
{
    const std::int64_t row = std::int64_t{band} * m_bandRows;
    if (row >= m_rows.GetLength())
        return m_rows.GetCellCount();
    return static_cast<int>(row * m_rows.GetCellCount() / m_rows.GetLength());
}

BandGraph::Reach GaussianBands::MakeReaderReach() const
{
    BandGraph::Reach reach;
    const int lastCell = m_rows.GetCellCount() - 1;
    for (int band = 0; band < m_bands; ++band) {
        const int first = band * m_bandRows;
        const int last = std::min(first + m_bandRows, m_rows.GetLength()) - 1;
        const int low = m_rows.Locate(first).cell - m_rows.GetRadius();
        const int high = m_rows.Locate(last).nextCell + m_rows.GetRadius();
        reach.first.push_back(GetDoneBand(std::clamp(low, 0, lastCell)));
        reach.last.push_back(GetDoneBand(std::clamp(high, 0, lastCell)));
    }
    return reach;
}

BandGraph::Reach GaussianBands::MakeFinisherReach() const
{
    BandGraph::Reach reach;
    for (int band = 0; band < m_bands; ++band) {
        const int cell = std::min(CountCellsBefore(band), m_rows.GetCellCount() - 1);
        reach.first.push_back(std::min(band, GetBand(m_rows.GetFirstPixel(cell))));
        reach.last.push_back(band);
    }
    return reach;
}

void GaussianBands::AddFinisher(BandGraph& graph, int writer,
                                std::vector<GaussianScratch>& scratches)
{
    m_writer = writer;
    if (!m_rows.IsReduced())
        return;
    m_writer = graph.AddNode([this, &scratches](int band, int worker) {
        FinishBand(band, scratches[static_cast<std::size_t>(worker)]);
    });
    graph.Connect(writer, m_writer, MakeFinisherReach(), m_partialBands);
}

void GaussianBands::ConnectReader(BandGraph& graph, int reader) const
{
    graph.Connect(m_writer, reader, MakeReaderReach(), m_cellBands);
}

void GaussianBands::Feed(int y, const float* const* rows, GaussianScratch& scratch)
{
    if (m_rows.IsReduced())
        return FeedCells(y, rows, scratch);
    for (int plane = 0; plane < m_planes; ++plane) {
        const float* cells = rows[plane];
        if (m_columns.IsReduced()) {
            ShrinkRow(cells, scratch.shrunk.data());
            cells = scratch.shrunk.data();
        }
        BlurRow(cells, m_cells.Row(y, plane), scratch);
    }
}

void GaussianBands::FeedCells(int y, const float* const* rows, GaussianScratch& scratch)
{
    const int width = m_columns.GetLength();
    const int band = GetBand(y);
    const int bandBegin = band * m_bandRows;
    const int bandEnd = bandBegin + m_bandRows;
    const int cells = m_rows.GetCellCount();
    for (int cell = m_rows.GetFirstCell(y); cell < cells && m_rows.GetFirstPixel(cell) <= y; ++cell)
        for (int plane = 0; plane < m_planes; ++plane) {
            float* const sum = scratch.sums.Row(cell, plane);
            if (y == std::max(m_rows.GetFirstPixel(cell), bandBegin))
                std::fill_n(sum, width, 0.0f);
            m_accumulate(rows[plane], m_rows.GetShare(cell, y), sum, width);
            if (y == std::min(m_rows.GetEndPixel(cell), bandEnd) - 1)
                ShrinkRow(sum, GetPartial(band, cell, plane));
        }
}

float* GaussianBands::GetPartial(int band, int cell, int plane)
{
    const int first = m_rows.GetFirstCell(band * m_bandRows);
    return m_partials.Row(band % m_partialBands * m_cellsPerBand + cell - first, plane);
}

void GaussianBands::ShrinkRow(const float* row, float* target) const
{
    if (!m_columns.IsReduced()) {
        std::copy_n(row, m_columns.GetLength(), target);
        return;
    }
    for (const CellSpan& span : m_spans) {
        float inside = 0;
        for (int x = span.first + 1; x < span.last; ++x)
            inside += row[x];
        *target++ = inside * m_insideShare + row[span.first] * span.firstShare +
                    row[span.last] * span.lastShare;
    }
}

void GaussianBands::FinishBand(int band, GaussianScratch& scratch)
{
    for (int cell = CountCellsBefore(band); cell < CountCellsBefore(band + 1); ++cell)
        for (int plane = 0; plane < m_planes; ++plane) {
            SumPartials(cell, plane, scratch.shrunk.data());
            BlurRow(scratch.shrunk.data(), m_cells.Row(cell, plane), scratch);
        }
}

void GaussianBands::SumPartials(int cell, int plane, float* target)
{
    const int count = m_columns.GetCellCount();
    const int first = GetBand(m_rows.GetFirstPixel(cell));
    std::copy_n(GetPartial(first, cell, plane), count, target);
    for (int band = first + 1; band <= GetDoneBand(cell); ++band)
        m_accumulate(GetPartial(band, cell, plane), 1.0f, target, count);
}

void GaussianBands::BlurRow(const float* cells, float* target, GaussianScratch& scratch) const
{
    const int count = m_columns.GetCellCount();
    const int radius = m_columns.GetRadius();
    float* const centre = scratch.mirrored.data() + radius;
    std::copy_n(cells, count, centre);
    for (int distance = 1; distance <= radius; ++distance) {
        centre[-distance] = cells[m_columns.Mirror(-distance)];
        centre[count - 1 + distance] = cells[m_columns.Mirror(count - 1 + distance)];
        scratch.before[static_cast<std::size_t>(distance - 1)] = centre - distance;
        scratch.after[static_cast<std::size_t>(distance - 1)] = centre + distance;
    }
    const SymmetricSum sum{centre, scratch.before.data(), scratch.after.data(),
                           m_columns.GetWeights().data(), radius};
    m_sum(sum, target, count);
}

void GaussianBands::BlurColumn(int cell, int plane, int x, int count, float* target,
                               GaussianScratch& scratch)
{
    for (int distance = 1; distance <= m_rows.GetRadius(); ++distance) {
        const auto i = static_cast<std::size_t>(distance - 1);
        scratch.before[i] = m_cells.Row(m_rows.Mirror(cell - distance), plane) + x;
        scratch.after[i] = m_cells.Row(m_rows.Mirror(cell + distance), plane) + x;
    }
    const SymmetricSum sum{m_cells.Row(cell, plane) + x, scratch.before.data(),
                           scratch.after.data(), m_rows.GetWeights().data(), m_rows.GetRadius()};
    m_sum(sum, target, count);
}

void GaussianBands::BlurColumnsOf(int cell, GaussianScratch& scratch)
{
    if (scratch.columnCells[cell % 2] == cell)
        return;
    for (int plane = 0; plane < m_planes; ++plane)
        BlurColumn(cell, plane, 0, m_columns.GetCellCount(), scratch.columns.Row(cell, plane),
                   scratch);
    scratch.columnCells[cell % 2] = cell;
}

void GaussianBands::Prepare(int y, GaussianScratch& scratch)
{
    const int count = m_columns.GetCellCount();
    if (!m_rows.IsReduced()) {
        for (int plane = 0; m_columns.IsReduced() && plane < m_planes; ++plane)
            BlurColumn(y, plane, 0, count, scratch.row.Row(0, plane), scratch);
        return;
    }
    const GaussianAxis::Position position = m_rows.Locate(y);
    BlurColumnsOf(position.cell, scratch);
    BlurColumnsOf(position.nextCell, scratch);
    for (int plane = 0; plane < m_planes; ++plane) {
        const float* const low = scratch.columns.Row(position.cell, plane);
        const float* const high = scratch.columns.Row(position.nextCell, plane);
        float* const row = scratch.row.Row(0, plane);
        for (int i = 0; i < count; ++i)
            row[i] = low[i] + position.fraction * (high[i] - low[i]);
    }
}

void GaussianBands::Read(int y, int x, int count, float* const* target, GaussianScratch& scratch)
{
    for (int plane = 0; plane < m_planes; ++plane) {
        if (m_columns.IsReduced())
            m_enlarge(scratch.row.Row(0, plane), m_low.data() + x, m_high.data() + x,
                      m_fractions.data() + x, target[plane], count);
        else if (m_rows.IsReduced())
            std::copy_n(scratch.row.Row(0, plane) + x, count, target[plane]);
        else
            BlurColumn(y, plane, x, count, target[plane], scratch);
    }
}

} // namespace LumetraHost
