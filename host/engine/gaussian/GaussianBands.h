// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/gaussian/GaussianAxis.h"
#include "engine/gaussian/GaussianKernel.h"
#include "engine/gaussian/PlaneRing.h"
#include "engine/stages/SpatialPass.h"
#include "threads/BandGraph.h"

#include <vector>

namespace LumetraHost {

/// One thread's memory for the Gaussian of one picture, see GaussianBands.
struct GaussianScratch
{
    PlaneRing sums;              ///< of the two cells that a row may belong to
    std::vector<float> shrunk;   ///< a row of cells
    std::vector<float> mirrored; ///< a row of cells with the mirrored ones on both sides
    PlaneRing columns;           ///< two rows of cells, blurred in both directions
    int columnCells[2] = {-1, -1};
    PlaneRing row; ///< the prepared row of cells
    std::vector<const float*> before;
    std::vector<const float*> after;
};

/// The Gaussian of a picture whose rows come in bands and leave in bands, some bands later. Rows
/// are averaged into cells (see GaussianAxis), blurred along the row and kept for as long as they
/// are needed; blurring down the columns happens when a row is asked for. Bands may be worked on in
/// any order and at the same time within what the graph's edges allow; the values depend on
/// neither.
class GaussianBands
{
public:
    /// `ahead`: bands that threads may work on beyond the ones that a reader waits for.
    GaussianBands(int width, int height, const SpatialPass& pass, int bandRows, int ahead, Isa isa);

    int GetPlaneCount() const { return m_planes; }
    /// Bands that the writer of the rows has to be ahead of the reader of the blurred rows.
    int GetLatency() const { return m_latency; }

    GaussianScratch MakeScratch() const;
    /// Adds the node that finishes cells, where one is needed. `scratches`: one for each worker;
    /// they and this object outlive the graph's run.
    void AddFinisher(BandGraph& graph, int writer, std::vector<GaussianScratch>& scratches);
    void ConnectReader(BandGraph& graph, int reader) const;

    /// To be called by the writer for each row of its band, in order, with a pointer per plane.
    void Feed(int y, const float* const* rows, GaussianScratch& scratch);
    /// To be called by the reader before the first Read of a row.
    void Prepare(int y, GaussianScratch& scratch);
    /// The blurred row `y` from column `x` on, for each plane.
    void Read(int y, int x, int count, float* const* target, GaussianScratch& scratch);

private:
    /// The pixels of a cell; those between the first and the last lie wholly inside.
    struct CellSpan
    {
        int first = 0;
        int last = 0;
        float firstShare = 0;
        float lastShare = 0;
    };

    int GetBand(int row) const { return row / m_bandRows; }
    int GetDoneBand(int cell) const { return GetBand(m_rows.GetEndPixel(cell) - 1); }
    int CountCellsBefore(int band) const;
    float* GetPartial(int band, int cell, int plane);

    BandGraph::Reach MakeReaderReach() const;
    BandGraph::Reach MakeFinisherReach() const;
    void MakeRings(int ahead);
    void MakeColumnTables();

    void FeedCells(int y, const float* const* rows, GaussianScratch& scratch);
    void ShrinkRow(const float* row, float* target) const;
    void FinishBand(int band, GaussianScratch& scratch);
    void SumPartials(int cell, int plane, float* target);
    void BlurRow(const float* cells, float* target, GaussianScratch& scratch) const;
    void BlurColumn(int cell, int plane, int x, int count, float* target, GaussianScratch& scratch);
    void BlurColumnsOf(int cell, GaussianScratch& scratch);

    GaussianAxis m_columns;
    GaussianAxis m_rows;
    int m_planes;
    int m_bandRows;
    int m_bands;
    int m_latency = 0;
    int m_writer = -1; ///< the node that writes cells
    int m_cellsPerBand = 0;
    int m_partialBands = 1;
    int m_cellBands = 1;
    PlaneRing m_partials; ///< sums of cells over one band
    PlaneRing m_cells;    ///< blurred along the row
    std::vector<CellSpan> m_spans;
    float m_insideShare = 1; ///< what a pixel inside weighs in a cell
    std::vector<int> m_low;
    std::vector<int> m_high;
    std::vector<float> m_fractions;
    decltype(&SymmetricSumKernel<Isa::Baseline>::Run) m_sum;
    decltype(&AccumulateKernel<Isa::Baseline>::Run) m_accumulate;
    decltype(&EnlargeKernel<Isa::Baseline>::Run) m_enlarge;
};

} // namespace LumetraHost
