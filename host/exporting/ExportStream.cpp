// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportStream.h"

#include "image/DepthConversion.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace LumetraHost {
namespace {

PictureRunForm MakeForm(const PictureForm& picture, Image::Depth depth, int threads)
{
    PictureRunForm form;
    form.width = picture.width;
    form.height = picture.height;
    form.depth = depth;
    form.isa = GetDefaultIsa();
    form.threads = threads;
    return form;
}

PictureRunForm With(const ExportLook::Layer& layer, PictureRunForm form)
{
    form.blendAmount = layer.blendAmount;
    form.table = layer.table;
    return form;
}

std::optional<ColourSpace> GetFirstSpace(const ExportLook::Layer& layer)
{
    if (layer.table)
        return ColourSpace::Encoded;
    return std::nullopt;
}

StageContext MakeContext(const PictureRunForm& form, const std::shared_ptr<const RgbSpace>& space,
                         std::shared_ptr<const PictureFacts> facts = nullptr)
{
    return {form.isa, PictureArea::Whole(form.width, form.height), form.depth, space,
            std::move(facts)};
}

Zorvik::Quindle::EffectList GetAllEffects(const ExportLook::Layer& layer)
{
    auto effects = layer.tabled;
    effects.insert(effects.end(), layer.effects.begin(), layer.effects.end());
    return effects;
}

} // namespace

ExportLayer::ExportLayer(const ExportLook::Layer& layer, const PictureRunForm& form,
                         const std::shared_ptr<const RgbSpace>& space,
                         std::shared_ptr<const PictureFacts> facts)
    : m_hasTable(layer.table != nullptr),
      m_plan(layer.effects, MakeContext(form, space, std::move(facts)), GetFirstSpace(layer)),
      m_run(m_plan, With(layer, form))
{
}

ExportLayer::ExportLayer(const PictureRunForm& form, const std::shared_ptr<const RgbSpace>& space)
    : m_hasTable(false), m_plan(RenderPlan::MakeConversion(MakeContext(form, space), nullptr)),
      m_run(m_plan, form)
{
}

ExportStream::ExportStream(RowSource& source, Image::Depth drawingDepth, int threads)
    : m_source(source), m_form(MakeForm(source.GetForm(), drawingDepth, threads)),
      m_depth(drawingDepth), m_width(m_form.width)
{
}

void ExportStream::AddLayer(const ExportLook::Layer& layer, ThreadPool& pool,
                            const CancelToken* cancel)
{
    if (!m_whole)
        m_whole = WholePicture::Of(
            m_form.width, m_form.height, [this, &pool, cancel](const WholePicture::Size& size) {
                return m_source.Reduce(size.width, size.height, m_form.threads, pool, cancel);
            });
    const auto below = layer.table ? m_whole->With(layer.tabled, FullEffect) : m_whole;
    m_layers.emplace_back(layer, m_form, m_source.GetForm().space, below);
    m_whole = m_whole->With(GetAllEffects(layer), layer.blendAmount);
    if (m_layers.back().ChangesNothing())
        m_layers.pop_back();
}

void ExportStream::ConvertToSrgb()
{
    if (const auto space = m_source.GetForm().space)
        m_layers.emplace_back(m_form, space);
}

void ExportStream::ShrinkTo(int width, int height)
{
    if (width == m_form.width && height == m_form.height)
        return;
    m_width = width;
    m_shrink =
        std::make_unique<ShrinkStep>(m_form.width, m_form.height, width, height, RowsPerBand);
}

int ExportStream::GetBandCount() const
{
    return CountBands(m_form.height);
}

/// Bands that are kept for the first step, from layer `nextLayer` on, that reads other rows than
/// its own.
int ExportStream::GetLatencyBehind(std::size_t nextLayer) const
{
    for (; nextLayer < m_layers.size(); ++nextLayer)
        if (const PictureRun& run = m_layers[nextLayer].GetRun(); !run.CanDrawInPlace())
            return run.GetLatency();
    return m_depth == m_form.depth ? GetLatencyOfEnd() : 0;
}

/// One band for each thread to work ahead, and one between the ring's writer and its reader. A
/// second one between them smooths their waits, where rows are not so wide that it takes megabytes.
int ExportStream::GetBandsAhead(int width) const
{
    constexpr int widestWithSpare = 8192;
    return m_form.threads + (width <= widestWithSpare ? 2 : 1);
}

/// Adds a ring with room for the bands that its reader looks back, and for each thread to work
/// ahead.
Image& ExportStream::AddRing(int width, int latency, Image::Depth depth)
{
    const int bands = std::min(latency + GetBandsAhead(width), GetBandCount());
    m_rings.push_back(Image::AllocateUninitialised(width, bands * RowsPerBand, depth));
    return m_rings.back();
}

ExportStream::BandRows ExportStream::GetRows(int band, const Image& ring) const
{
    const int y = band * RowsPerBand;
    return {y % ring.GetHeight(), std::min(RowsPerBand, m_form.height - y)};
}

/// Connects a reader with a ring: it waits for finished rows, and new rows wait until it is done
/// with the old ones.
void ExportStream::ReadFrom(BandGraph& graph, const Ring& ring, int reader) const
{
    const int bands = ring.rows->GetHeight() / RowsPerBand;
    graph.Connect(ring.last, reader, bands);
    if (ring.filler != ring.last)
        graph.Connect(ring.filler, reader, bands);
}

ExportStream::Ring ExportStream::AddSource(BandGraph& graph)
{
    Image& ring = AddRing(m_form.width, GetLatencyBehind(0), m_form.depth);
    const auto read = [this, &ring](int band, int) {
        const BandRows rows = GetRows(band, ring);
        m_source.Read(band * RowsPerBand, rows.count, ring, rows.first);
    };
    const int node = graph.AddNode(read, m_source.IsInOrder());
    return {&ring, node, node};
}

ExportStream::Ring ExportStream::AddLayers(BandGraph& graph, Ring ring)
{
    for (std::size_t i = 0; i < m_layers.size(); ++i) {
        PictureRun& run = m_layers[i].GetRun();
        if (run.CanDrawInPlace()) {
            ring.last = run.AddTo(graph, RowWindow(*ring.rows), RowWindow(*ring.rows), ring.last);
            continue;
        }
        Image& target = AddRing(m_form.width, GetLatencyBehind(i + 1), m_form.depth);
        const int drawn = run.AddTo(graph, RowWindow(*ring.rows), RowWindow(target), ring.last);
        if (ring.filler != ring.last)
            graph.Connect(ring.filler, drawn, ring.rows->GetHeight() / RowsPerBand);
        ring = {&target, drawn, drawn};
    }
    return ring;
}

ExportStream::Ring ExportStream::AddRounding(BandGraph& graph, const Ring& ring)
{
    if (m_depth == m_form.depth)
        return ring;
    Image& target = AddRing(m_form.width, GetLatencyOfEnd(), m_depth);
    const Image& source = *ring.rows;
    const auto round = [this, &source, &target](int band, int) {
        const BandRows from = GetRows(band, source);
        CopyRows(source, from.first, target, GetRows(band, target).first, from.count);
    };
    const int node = graph.AddNode(round);
    ReadFrom(graph, ring, node);
    return {&target, node, node};
}

ExportStream::Ring ExportStream::AddShrinking(BandGraph& graph, const Ring& ring)
{
    if (!m_shrink)
        return ring;
    Image& target = AddRing(m_width, 0, m_depth);
    const Image& source = *ring.rows;
    const auto shrink = [this, &source, &target](int band, int) {
        for (int y = m_shrink->GetFirst(band); y < m_shrink->GetEnd(band); ++y)
            m_shrink->GetAverage().Run(source, y, target, y % target.GetHeight());
    };
    const int node = graph.AddNode(shrink);
    const int bands = source.GetHeight() / RowsPerBand;
    graph.Connect(ring.last, node, m_shrink->GetReach(), bands);
    if (ring.filler != ring.last)
        graph.Connect(ring.filler, node, m_shrink->GetReach(), bands);
    return {&target, node, node};
}

void ExportStream::AddEnd(BandGraph& graph, const Ring& ring, const WriteRows& write)
{
    const Image& rows = *ring.rows;
    const auto writeBand = [this, &rows, &write](int band, int) {
        if (!m_shrink) {
            const BandRows own = GetRows(band, rows);
            return write(rows, own.first, own.count);
        }
        // A band has any number of shrunk rows, which may begin again at the top of the ring.
        for (int y = m_shrink->GetFirst(band); y < m_shrink->GetEnd(band); ++y)
            write(rows, y % rows.GetHeight(), 1);
    };
    ReadFrom(graph, ring, graph.AddNode(writeBand, true));
}

bool ExportStream::Run(const WriteRows& write, ThreadPool& pool, const CancelToken* cancel)
{
    BandGraph graph(GetBandCount());
    const Ring drawn = AddLayers(graph, AddSource(graph));
    AddEnd(graph, AddShrinking(graph, AddRounding(graph, drawn)), write);
    return graph.Run(pool, m_form.threads, cancel);
}

} // namespace LumetraHost
