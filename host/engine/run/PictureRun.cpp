// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/PictureRun.h"

#include "engine/kernels/KernelSelection.h"

#include <algorithm>
#include <utility>

namespace LumetraHost {
namespace {

/// Planes of one tile. Each thread has its own for good, so that a run allocates nothing for them.
struct alignas(64) TilePlanes
{
    float values[3][PictureRun::LargestTile];
};

Tile GetTileOfThread()
{
    thread_local const auto planes = std::make_unique<TilePlanes>();
    return {planes->values[0], planes->values[1], planes->values[2]};
}

Tile MakeTile(PlaneRing& planes, int row, int x, int count, int y)
{
    Tile tile;
    tile.red = planes.Row(row, 0) + x;
    tile.green = planes.Row(row, 1) + x;
    tile.blue = planes.Row(row, 2) + x;
    tile.count = count;
    tile.x = x;
    tile.y = y;
    return tile;
}

void TakePixels(PlaneRing& pixels, const Tile& target)
{
    const Tile kept = MakeTile(pixels, target.y, target.x, target.count, target.y);
    if (kept.red == target.red)
        return;
    std::copy_n(kept.red, target.count, target.red);
    std::copy_n(kept.green, target.count, target.green);
    std::copy_n(kept.blue, target.count, target.blue);
}

ChainEnd GetEnd(const PictureRunForm& form)
{
    return PixelStep::GetEnd(GetSourceWeight(form.blendAmount));
}

} // namespace

PictureRun::PictureRun(const RenderPlan& plan, const PictureRunForm& form)
    : PictureRun(plan.GetPasses(), plan.MakeChains(GetEnd(form)), nullptr, form)
{
    m_isTableAlone = form.table && plan.IsEmpty();
}

PictureRun::PictureRun(const CutChain& cut, const PictureRunForm& form)
    : PictureRun({}, {cut.after}, std::make_unique<CutChain>(cut), form)
{
}

PictureRun::PictureRun(const PictureRunForm& form)
    : PictureRun({}, {StageChain({}, form.isa, form.depth)}, nullptr, form)
{
    m_isTableAlone = true;
}

PictureRun::PictureRun(const std::vector<SpatialPassPtr>& passes, std::vector<StageChain> chains,
                       std::unique_ptr<const CutChain> cut, const PictureRunForm& form)
    : m_passes(passes), m_chains(std::move(chains)), m_cut(std::move(cut)), m_form(form),
      m_bands(CountBands(form.height)),
      m_pixelStep(form.depth, form.isa, m_cut ? m_cut->before : m_chains.front(), m_chains.back(),
                  GetSourceWeight(form.blendAmount)),
      m_luma(SelectKernel<LumaKernel>(form.isa))
{
    m_form.tilePixels =
        std::min(std::clamp(form.tilePixels, SmallestTile, LargestTile), form.width);
    for (const SpatialPassPtr& pass : m_passes)
        AddStep(*pass);
    if (!m_steps.empty())
        AddWorkers();
}

void PictureRun::AddStep(const SpatialPass& pass)
{
    Step step;
    step.gaussian = std::make_unique<GaussianBands>(m_form.width, m_form.height, pass, RowsPerBand,
                                                    GetAhead(), m_form.isa);
    const bool isMadeAgain = m_steps.empty() && IsFirstChainQuick();
    if (pass.GetPlanes() == BlurredPlanes::Luma && !isMadeAgain)
        step.pixels = PlaneRing(m_form.width, 3,
                                (step.gaussian->GetLatency() + 1 + GetAhead()) * RowsPerBand);
    for (int i = 0; i < m_form.threads; ++i)
        step.scratches.push_back(step.gaussian->MakeScratch());
    m_steps.push_back(std::move(step));
}

void PictureRun::AddWorkers()
{
    for (int i = 0; i < m_form.threads; ++i)
        m_workers.push_back({PlaneRing(m_form.tilePixels, 3, 1), PlaneRing(m_form.width, 3, 1),
                             PlaneRing(m_form.width, 1, 1)});
}

/// True when running the first chain twice is cheaper than to keep its results for all the rows
/// that a spatial pass looks ahead: these are the greatest part of the memory.
bool PictureRun::IsFirstChainQuick() const
{
    constexpr std::size_t mostStages = 1;
    return m_chains.front().GetStages().size() <= mostStages;
}

bool PictureRun::Draw(const Image& source, Image& target, ThreadPool& pool,
                      const CancelToken* cancel)
{
    Image shared = source; // only read
    if (!m_steps.empty()) {
        BandGraph graph(m_bands);
        AddTo(graph, RowWindow(shared), RowWindow(target), -1);
        return graph.Run(pool, m_form.threads, cancel);
    }
    m_source = std::make_unique<RowWindow>(shared);
    m_target = std::make_unique<RowWindow>(target);
    return ForEachBand(pool, m_form.height, m_form.threads, cancel, [this](int first, int end) {
        for (int y = first; y < end; ++y)
            RunLastRow(y, 0);
    });
}

int PictureRun::GetLatency() const
{
    int latency = 0;
    for (const Step& step : m_steps)
        latency += step.gaussian->GetLatency();
    return latency;
}

int PictureRun::AddTo(BandGraph& graph, RowWindow source, RowWindow target, int sourceNode)
{
    m_source = std::make_unique<RowWindow>(source);
    m_target = std::make_unique<RowWindow>(target);
    const auto addChain = [&](std::size_t chain) {
        return graph.AddNode([this, chain](int band, int worker) { RunBand(chain, band, worker); });
    };
    int node = addChain(0);
    if (sourceNode >= 0)
        graph.Connect(sourceNode, node, source.GetRows() / RowsPerBand);
    for (std::size_t i = 0; i < m_steps.size(); ++i) {
        Step& step = m_steps[i];
        step.gaussian->AddFinisher(graph, node, step.scratches);
        const int reader = addChain(i + 1);
        step.gaussian->ConnectReader(graph, reader);
        graph.Connect(node, reader, step.gaussian->GetLatency() + 1 + GetAhead());
        node = reader;
    }
    // The source is read again for the blend and its alpha.
    if (sourceNode >= 0 && !m_steps.empty())
        graph.Connect(sourceNode, node, source.GetRows() / RowsPerBand);
    return node;
}

/// A pass that blurs the colours themselves has no use for the pixels; the first one may make them
/// again.
bool PictureRun::KeepsPixels(std::size_t pass) const
{
    return pass < m_steps.size() && !m_steps[pass].pixels.IsEmpty();
}

void PictureRun::RunBand(std::size_t chain, int band, int worker)
{
    const auto ofWorker = static_cast<std::size_t>(worker);
    const int end = std::min(m_form.height, (band + 1) * RowsPerBand);
    for (int y = band * RowsPerBand; y < end; ++y) {
        if (chain > 0)
            m_steps[chain - 1].gaussian->Prepare(y, m_steps[chain - 1].scratches[ofWorker]);
        if (chain == m_steps.size())
            RunLastRow(y, ofWorker);
        else
            RunInnerRow(chain, y, ofWorker);
    }
}

int PictureRun::CountPixels(int x) const
{
    return std::min(m_form.tilePixels, m_form.width - x);
}

void PictureRun::RunLastRow(int y, std::size_t worker)
{
    if (m_isTableAlone)
        return m_form.table->RunRow(m_source->Row(y), m_target->Row(y), m_form.width,
                                    m_form.blendAmount);
    for (int x = 0; x < m_form.width; x += m_form.tilePixels) {
        const Tile tile = GetLastTile(x, y);
        RunTile(m_steps.size(), tile, worker);
        m_pixelStep.Store(tile, m_source->Row(y), m_target->Row(y));
    }
}

void PictureRun::RunInnerRow(std::size_t chain, int y, std::size_t worker)
{
    PlaneRing& rows = KeepsPixels(chain) ? m_steps[chain].pixels : m_workers[worker].rows;
    const int row = KeepsPixels(chain) ? y : 0;
    for (int x = 0; x < m_form.width; x += m_form.tilePixels)
        RunTile(chain, MakeTile(rows, row, x, CountPixels(x), y), worker);
    FeedNext(chain, y, MakeTile(rows, row, 0, m_form.width, y), worker);
}

/// The last chain may work on the pixels that are kept for it: nobody reads them again.
Tile PictureRun::GetLastTile(int x, int y)
{
    if (!m_steps.empty() && KeepsPixels(m_steps.size() - 1))
        return MakeTile(m_steps.back().pixels, y, x, CountPixels(x), y);
    Tile tile = GetTileOfThread();
    tile.count = CountPixels(x);
    tile.x = x;
    tile.y = y;
    return tile;
}

void PictureRun::RunTile(std::size_t chain, const Tile& tile, std::size_t worker)
{
    if (chain == 0)
        return RunFirstChain(tile);
    FillTile(chain, tile, worker);
    m_chains[chain].Run(tile);
}

void PictureRun::RunFirstChain(const Tile& tile)
{
    LoadTile(tile);
    if (m_cut) {
        m_cut->before.Run(tile);
        if (m_cut->isToFrame)
            m_cut->frame->Store(tile);
    }
    m_chains.front().Run(tile);
}

void PictureRun::LoadTile(const Tile& tile) const
{
    if (m_form.table)
        m_form.table->Load(tile, m_source->Row(tile.y));
    else if (m_cut && m_cut->isFromFrame)
        m_cut->frame->Load(tile);
    else
        m_pixelStep.Load(tile, m_source->Row(tile.y));
}

void PictureRun::FillTile(std::size_t chain, const Tile& tile, std::size_t worker)
{
    Step& step = m_steps[chain - 1];
    PlaneRing& blurred = m_workers[worker].blurred;
    float* const planes[] = {blurred.Row(0, 0), blurred.Row(0, 1), blurred.Row(0, 2)};
    step.gaussian->Read(tile.y, tile.x, tile.count, planes, step.scratches[worker]);
    if (KeepsPixels(chain - 1))
        TakePixels(step.pixels, tile);
    else if (step.gaussian->GetPlaneCount() == 1)
        RunFirstChain(tile);
    m_passes[chain - 1]->Combine(tile, {{planes[0], planes[1], planes[2]}});
}

void PictureRun::FeedNext(std::size_t pass, int y, const Tile& row, std::size_t worker)
{
    Step& step = m_steps[pass];
    const float* planes[] = {row.red, row.green, row.blue};
    if (step.gaussian->GetPlaneCount() == 1) {
        float* const luma = m_workers[worker].luma.Row(0);
        m_luma(row, luma);
        planes[0] = luma;
    }
    step.gaussian->Feed(y, planes, step.scratches[worker]);
}

} // namespace LumetraHost
