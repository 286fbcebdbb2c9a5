// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/gaussian/GaussianBands.h"
#include "engine/gaussian/PlaneRing.h"
#include "engine/run/BakedRun.h"
#include "engine/run/Blend.h"
#include "engine/run/PixelStep.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/RowWindow.h"
#include "threads/BandGraph.h"

#include <memory>
#include <vector>

namespace LumetraHost {

/// The size of a picture and how it is drawn. `threads` and `tilePixels` do not change
/// the pixels.
struct PictureRunForm
{
    int width = 0;
    int height = 0;
    Image::Depth depth = Image::Depth::Bits8;
    int blendAmount = FullEffect;
    Isa isa = Isa::Baseline;
    int threads = 1;
    int tilePixels = 2048;
    /// Stands before the plan, whose first chain then begins with encoded colours. Pictures of 8
    /// bits only. Null: none.
    std::shared_ptr<const BakedRun> table;
};

/// A plan's way over one picture, as nodes of a band graph: from rows of pixels to rows of pixels,
/// with planar float in between, so that nothing is clamped or rounded on the way. Each chain runs
/// over tiles while they are in the cache; what a spatial pass needs of other rows is kept in
/// rings. Made for one run of one graph; outlives it.
class PictureRun
{
public:
    static constexpr int BandRows = 16;

    /// `plan` is kept by reference.
    PictureRun(const RenderPlan& plan, const PictureRunForm& form);
    PictureRun(const PictureRun&) = delete;
    PictureRun& operator=(const PictureRun&) = delete;

    int GetBandCount() const { return m_bands; }
    /// Bands that the source has to be ahead of the target: what a window on it has to keep, beside
    /// the one that is worked on.
    int GetLatency() const;
    /// Bands that threads may work on beyond those that somebody waits for.
    int GetAhead() const { return m_form.threads + 1; }

    /// Whether source and target may be the same rows.
    bool CanDrawInPlace() const { return m_steps.empty(); }

    /// Adds the nodes. `sourceNode`: the one that writes the source's rows, or -1 when they are all
    /// there. Returns the node that writes the target. The windows are kept.
    int AddTo(BandGraph& graph, RowWindow source, RowWindow target, int sourceNode);

private:
    struct Worker
    {
        PlaneRing tile;    ///< planes of one tile
        PlaneRing blurred; ///< of one tile
        PlaneRing rows;    ///< a whole row that nobody reads again
        PlaneRing luma;    ///< a whole row
    };

    struct Step
    {
        std::unique_ptr<GaussianBands> gaussian;
        std::vector<GaussianScratch> scratches; ///< per worker
        PlaneRing pixels; ///< what the pass combines with the Gaussian, where it is kept
    };

    int GetRowEnd(int band) const;
    bool IsTableAlone() const;
    bool IsFirstChainQuick() const;
    bool KeepsPixels(std::size_t pass) const;
    void RunBand(std::size_t chain, int band, int worker);
    void RunRow(std::size_t chain, int y, std::size_t worker);
    Tile GetLastTile(std::size_t chain, int x, int count, int y, std::size_t worker);
    void RunTile(std::size_t chain, const Tile& tile, std::size_t worker);
    void RunFirstChain(const Tile& tile);
    void FillTile(std::size_t chain, const Tile& tile, std::size_t worker);
    void FeedNext(std::size_t pass, int y, const Tile& row, std::size_t worker);

    const RenderPlan& m_plan;
    const std::vector<StageChain> m_chains;
    PictureRunForm m_form;
    int m_bands;
    PixelStep m_pixelStep;
    decltype(&LumaKernel<Isa::Baseline>::Run) m_luma;
    std::vector<Step> m_steps; ///< one per pass
    std::vector<Worker> m_workers;
    std::unique_ptr<RowWindow> m_source;
    std::unique_ptr<RowWindow> m_target;
};

} // namespace LumetraHost
