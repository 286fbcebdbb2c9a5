// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/gaussian/GaussianBands.h"
#include "engine/gaussian/PlaneRing.h"
#include "engine/run/Blend.h"
#include "engine/run/ColourTable.h"
#include "engine/run/CutChain.h"
#include "engine/run/PixelStep.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/RowWindow.h"
#include "threads/BandGraph.h"
#include "threads/RowBands.h"

#include <memory>
#include <vector>

namespace LumetraHost {

/// The size of a picture and how it is drawn. `threads` and `tilePixels` do not change the pixels.
struct PictureRunForm
{
    int width = 0;
    int height = 0;
    Image::Depth depth = Image::Depth::Bits8;
    int blendAmount = FullEffect;
    Isa isa = Isa::Baseline;
    int threads = 1;       ///< at least 1
    int tilePixels = 2048; ///< limited to SmallestTile..LargestTile
    /// Stands before the plan, whose first chain then begins with encoded colours. Pictures of 8
    /// bits only. Null: none.
    std::shared_ptr<const ColourTable> table;
};

/// The one way over the rows of a picture: from rows of pixels to rows of pixels, with planar float
/// in between, so that nothing is clamped or rounded on the way, and each result is blended with
/// the source and rounded once. Chains run over tiles of a row while these are in the first-level
/// cache; what a spatial pass needs of other rows is kept in rings. Made for one picture, drawn
/// once.
class PictureRun
{
public:
    static constexpr int SmallestTile = 64; ///< pixels
    static constexpr int LargestTile = 16384;

    PictureRun(const RenderPlan& plan, const PictureRunForm& form);
    /// Draws stages alone, and fills or uses their frame. `form` has no table.
    PictureRun(const CutChain& cut, const PictureRunForm& form);
    /// Draws the form's table and nothing else.
    explicit PictureRun(const PictureRunForm& form);
    PictureRun(const PictureRun&) = delete;
    PictureRun& operator=(const PictureRun&) = delete;

    /// Draws a picture that is there as a whole. `target` has its size and depth; it may be the
    /// same picture where CanDrawInPlace(). False when it was cancelled: the target then holds
    /// anything.
    bool Draw(const Image& source, Image& target, ThreadPool& pool, const CancelToken* cancel);

    int GetBandCount() const { return m_bands; }
    /// The number of bands by which the source has to be ahead of the target. A window on the
    /// source keeps as many, beside the band that is worked on.
    int GetLatency() const;
    /// The number of bands that threads may work on beyond those that a reader waits for.
    int GetAhead() const { return m_form.threads + 1; }

    /// True when source and target may be the same rows.
    bool CanDrawInPlace() const { return m_steps.empty(); }

    /// For pictures that come in rows: adds the nodes to a graph, which this object outlives.
    /// `sourceNode`: the one that writes the source's rows, or -1 when they are all there. Returns
    /// the node that writes the target. The windows are kept.
    int AddTo(BandGraph& graph, RowWindow source, RowWindow target, int sourceNode);

private:
    struct Worker
    {
        PlaneRing blurred; ///< one tile
        PlaneRing rows;    ///< a whole row that nobody reads again
        PlaneRing luma;    ///< a whole row
    };

    struct Step
    {
        std::unique_ptr<GaussianBands> gaussian;
        std::vector<GaussianScratch> scratches; ///< per worker
        PlaneRing pixels; ///< what the pass combines with the Gaussian, where it is kept
    };

    PictureRun(const std::vector<SpatialPassPtr>& passes, std::vector<StageChain> chains,
               std::unique_ptr<const CutChain> cut, const PictureRunForm& form);

    void AddStep(const SpatialPass& pass);
    void AddWorkers();
    bool IsFirstChainQuick() const;
    bool KeepsPixels(std::size_t pass) const;
    void RunBand(std::size_t chain, int band, int worker);
    void RunLastRow(int y, std::size_t worker);
    void RunInnerRow(std::size_t chain, int y, std::size_t worker);
    Tile GetLastTile(int x, int y);
    void RunTile(std::size_t chain, const Tile& tile, std::size_t worker);
    void RunFirstChain(const Tile& tile);
    void LoadTile(const Tile& tile) const;
    void FillTile(std::size_t chain, const Tile& tile, std::size_t worker);
    void FeedNext(std::size_t pass, int y, const Tile& row, std::size_t worker);
    int CountPixels(int x) const;

    const std::vector<SpatialPassPtr> m_passes;
    const std::vector<StageChain> m_chains;      ///< one more than passes
    const std::unique_ptr<const CutChain> m_cut; ///< stands in front of the only chain; null: none
    PictureRunForm m_form;
    bool m_isTableAlone = false; ///< pixels go through the form's table and nothing else
    int m_bands;
    PixelStep m_pixelStep;
    decltype(&LumaKernel<Isa::Baseline>::Run) m_luma;
    std::vector<Step> m_steps;     ///< one per pass
    std::vector<Worker> m_workers; ///< for spatial passes
    std::unique_ptr<RowWindow> m_source;
    std::unique_ptr<RowWindow> m_target;
};

} // namespace LumetraHost
