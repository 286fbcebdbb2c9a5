// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/run/PictureRun.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/WholePicture.h"
#include "exporting/ExportLook.h"
#include "exporting/RowSource.h"
#include "exporting/ShrinkStep.h"

#include <deque>
#include <functional>
#include <memory>

namespace LumetraHost {

/// A layer of a look, made for one run of one graph, which it outlives.
class ExportLayer
{
public:
    /// `form` without what the layer knows: table and blend amount. `space`: of the picture.
    /// `facts`: of the picture below the effects behind the table.
    ExportLayer(const ExportLook::Layer& layer, const PictureRunForm& form,
                const std::shared_ptr<const RgbSpace>& space,
                std::shared_ptr<const PictureFacts> facts);
    /// Converts a picture from its space to sRGB.
    ExportLayer(const PictureRunForm& form, const std::shared_ptr<const RgbSpace>& space);

    bool ChangesNothing() const { return m_plan.IsEmpty() && !m_hasTable; }
    PictureRun& GetRun() { return m_run; }
    const PictureRun& GetRun() const { return m_run; }

private:
    const bool m_hasTable;
    const RenderPlan m_plan;
    PictureRun m_run;
};

/// Draws, rounds and shrinks a picture on its way from a source to the receiver of its rows, as one
/// band graph with a ring of rows between the steps: bands are read, drawn and written at the same
/// time, and a row is kept only while a step still looks at it. Used once.
class ExportStream
{
public:
    /// Takes the finished rows from top to bottom, one call at a time: row `first` of `rows` and
    /// the following ones.
    using WriteRows = std::function<void(const Image& rows, int first, int count)>;

    /// `source` is kept by reference. Layers draw at `drawingDepth`, which is not less than that of
    /// the source. `threads`: at least 1; they do not change the pixels.
    ExportStream(RowSource& source, Image::Depth drawingDepth, int threads);

    /// Draws a layer on those before it. Where one of its effects looks at the whole picture,
    /// `source` is reduced, which reads it once more, on `pool`; null when that was cancelled.
    void AddLayer(const ExportLook::Layer& layer, ThreadPool& pool, const CancelToken* cancel);
    /// Converts a picture that is in a space of its own to sRGB, behind all layers.
    void ConvertToSrgb();
    /// Rounds behind all layers; `depth` has no more bits than they draw with.
    void RoundTo(Image::Depth depth) { m_depth = depth; }
    /// Shrinks behind the rounding, to no more pixels than the source has. Opaque pictures only.
    void ShrinkTo(int width, int height);

    /// Runs the graph; false when it was cancelled. Throws what `write` throws.
    bool Run(const WriteRows& write, ThreadPool& pool, const CancelToken* cancel);

private:
    /// A ring with the nodes that write it. Layers that need no rows around draw in place, one
    /// after the other.
    struct Ring
    {
        Image* rows;
        int filler; ///< puts new rows in the place of old ones
        int last;   ///< the node after which the rows are finished
    };

    struct BandRows
    {
        int first; ///< row in the ring
        int count;
    };

    int GetBandCount() const;
    int GetBandsAhead(int width) const;
    int GetLatencyBehind(std::size_t nextLayer) const;
    int GetLatencyOfEnd() const { return m_shrink ? m_shrink->GetLatency() : 0; }
    BandRows GetRows(int band, const Image& ring) const;
    Image& AddRing(int width, int latency, Image::Depth depth);
    void ReadFrom(BandGraph& graph, const Ring& ring, int reader) const;

    Ring AddSource(BandGraph& graph);
    Ring AddLayers(BandGraph& graph, Ring ring);
    Ring AddRounding(BandGraph& graph, const Ring& ring);
    Ring AddShrinking(BandGraph& graph, const Ring& ring);
    void AddEnd(BandGraph& graph, const Ring& ring, const WriteRows& write);

    RowSource& m_source;
    PictureRunForm m_form;
    Image::Depth m_depth;
    int m_width; ///< of the finished rows
    std::unique_ptr<const ShrinkStep> m_shrink;
    WholePicture::Ptr m_whole; ///< with the layers so far; null before the first one
    std::deque<ExportLayer> m_layers;
    std::deque<Image> m_rings;
};

} // namespace LumetraHost
