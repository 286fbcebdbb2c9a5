// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/PictureRun.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/run/Segment.h"

#include <algorithm>

namespace LumetraHost {
namespace {

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

} // namespace

PictureRun::PictureRun(const RenderPlan& plan, const PictureRunForm& form)
    : m_plan(plan), m_chains(plan.MakeChains(PixelStep::GetEnd(GetSourceWeight(form.blendAmount)))),
      m_form(form), m_bands((form.height + BandRows - 1) / BandRows),
      m_pixelStep(form.depth, form.isa, m_chains.front(), m_chains.back(),
                  GetSourceWeight(form.blendAmount)),
      m_luma(SelectKernel<LumaKernel>(form.isa))
{
    m_form.threads = std::max(1, form.threads);
    m_form.tilePixels = std::min(
        std::clamp(form.tilePixels, Segment::SmallestTile, Segment::LargestTile), form.width);
    for (const SpatialPassPtr& pass : plan.GetPasses()) {
        Step step;
        step.gaussian = std::make_unique<GaussianBands>(form.width, form.height, *pass, BandRows,
                                                        GetAhead(), form.isa);
        const bool isMadeAgain = m_steps.empty() && IsFirstChainQuick();
        if (pass->GetPlanes() == BlurredPlanes::Luma && !isMadeAgain)
            step.pixels =
                PlaneRing(form.width, 3, (step.gaussian->GetLatency() + 1 + GetAhead()) * BandRows);
        for (int i = 0; i < m_form.threads; ++i)
            step.scratches.push_back(step.gaussian->MakeScratch());
        m_steps.push_back(std::move(step));
    }
    for (int i = 0; i < m_form.threads; ++i)
        m_workers.push_back({PlaneRing(m_form.tilePixels, 3, 1), PlaneRing(m_form.tilePixels, 3, 1),
                             PlaneRing(m_steps.empty() ? 1 : form.width, 3, 1),
                             PlaneRing(m_steps.empty() ? 1 : form.width, 1, 1)});
}

/// From pixels to pixels without a stop.
bool PictureRun::IsTableAlone() const
{
    return m_form.table && m_steps.empty() && m_plan.IsEmpty();
}

/// Whether it costs less to run the first chain twice than to keep what it makes for as many rows
/// as a spatial pass looks ahead: they are the greatest part of the memory.
bool PictureRun::IsFirstChainQuick() const
{
    constexpr std::size_t mostStages = 1;
    return m_chains.front().GetStages().size() <= mostStages;
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
        graph.Connect(sourceNode, node, source.GetRows() / BandRows);
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
        graph.Connect(sourceNode, node, source.GetRows() / BandRows);
    return node;
}

int PictureRun::GetRowEnd(int band) const
{
    return std::min(m_form.height, (band + 1) * BandRows);
}

/// A pass that blurs the colours themselves has no use for the pixels; the first one may make them
/// again.
bool PictureRun::KeepsPixels(std::size_t pass) const
{
    return pass < m_steps.size() && !m_steps[pass].pixels.IsEmpty();
}

void PictureRun::RunBand(std::size_t chain, int band, int worker)
{
    for (int y = band * BandRows; y < GetRowEnd(band); ++y)
        RunRow(chain, y, static_cast<std::size_t>(worker));
}

void PictureRun::RunRow(std::size_t chain, int y, std::size_t worker)
{
    if (chain > 0) {
        Step& before = m_steps[chain - 1];
        before.gaussian->Prepare(y, before.scratches[worker]);
    }
    if (IsTableAlone())
        return m_form.table->RunRow(m_source->Row(y), m_target->Row(y), m_form.width,
                                    m_form.blendAmount);
    const bool isLast = chain == m_steps.size();
    PlaneRing& rows = KeepsPixels(chain) ? m_steps[chain].pixels : m_workers[worker].rows;
    const int row = KeepsPixels(chain) ? y : 0;
    for (int x = 0; x < m_form.width; x += m_form.tilePixels) {
        const int count = std::min(m_form.tilePixels, m_form.width - x);
        if (isLast) {
            const Tile tile = GetLastTile(chain, x, count, y, worker);
            RunTile(chain, tile, worker);
            m_pixelStep.Store(tile, m_source->Row(y), m_target->Row(y));
        } else {
            RunTile(chain, MakeTile(rows, row, x, count, y), worker);
        }
    }
    if (!isLast)
        FeedNext(chain, y, MakeTile(rows, row, 0, m_form.width, y), worker);
}

/// The last chain may work on the pixels that are kept for it: nobody reads them again.
Tile PictureRun::GetLastTile(std::size_t chain, int x, int count, int y, std::size_t worker)
{
    if (chain > 0 && KeepsPixels(chain - 1))
        return MakeTile(m_steps[chain - 1].pixels, y, x, count, y);
    Tile tile = MakeTile(m_workers[worker].tile, 0, 0, count, y);
    tile.x = x;
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
    if (m_form.table)
        m_form.table->Load(tile, m_source->Row(tile.y));
    else
        m_pixelStep.Load(tile, m_source->Row(tile.y));
    m_chains.front().Run(tile);
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
    m_plan.GetPasses()[chain - 1]->Combine(tile, {{planes[0], planes[1], planes[2]}});
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
