// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/Segment.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/matrix/MatrixStage.h"
#include "engine/srgb/Srgb.h"
#include "engine/srgb/SrgbStage.h"

#include <algorithm>

namespace LumetraHost {
namespace {

std::vector<float> MakeUnitTable(std::size_t size)
{
    std::vector<float> table(size);
    for (std::size_t i = 0; i < size; ++i)
        table[i] = static_cast<float>(static_cast<double>(i) / static_cast<double>(size - 1));
    return table;
}

/// The three planes of one thread.
struct alignas(64) TilePlanes
{
    float values[3][Segment::LargestTile];
};

TilePlanes& GetPlanesOfThread()
{
    thread_local const auto planes = std::make_unique<TilePlanes>();
    return *planes;
}

struct PixelKernels
{
    decltype(&LoadKernel8<Isa::Baseline>::Run) load;
    decltype(&StoreKernel8<Isa::Baseline>::Run) store;
};

PixelKernels SelectPixelKernels(Image::Depth depth, Isa isa)
{
    if (depth == Image::Depth::Bits16)
        return {SelectKernel<LoadKernel16>(isa), SelectKernel<StoreKernel16>(isa)};
    return {SelectKernel<LoadKernel8>(isa), SelectKernel<StoreKernel8>(isa)};
}

} // namespace

Segment::Segment(const std::vector<StagePtr>& stages, const SegmentOptions& options)
    : m_options(options)
{
    m_options.tilePixels = std::clamp(options.tilePixels, SmallestTile, LargestTile);
    for (const StagePtr& stage : stages)
        AddMerged(stage);
    m_endsLinear = m_stages.empty() || m_stages.back()->GetColourSpace() == ColourSpace::Linear;
    AddConversions();
}

void Segment::AddMerged(const StagePtr& stage)
{
    const auto matrix = stage->GetMatrix();
    const bool canMerge = matrix && !m_stages.empty() && m_stages.back()->GetMatrix() &&
                          m_stages.back()->GetColourSpace() == stage->GetColourSpace();
    if (canMerge)
        m_stages.back() = std::make_shared<MatrixStage>(*matrix * *m_stages.back()->GetMatrix(),
                                                        stage->GetColourSpace(), m_options.isa);
    else
        m_stages.push_back(stage);
}

void Segment::AddConversions()
{
    for (std::size_t i = 1; i < m_stages.size(); ++i) {
        const ColourSpace wanted = m_stages[i]->GetColourSpace();
        if (m_stages[i - 1]->GetColourSpace() != wanted)
            m_stages.insert(m_stages.begin() + static_cast<std::ptrdiff_t>(i++),
                            std::make_shared<SrgbStage>(wanted, m_options.isa));
    }
}

bool Segment::Run(const Image& source, Image& target, double sourceWeight, ThreadPool& pool) const
{
    const CancelToken* const cancel = m_options.cancel;
    const int height = source.GetHeight();
    const int bands = (height + BandRows - 1) / BandRows;
    pool.ForEach(bands, m_options.threads, [&](int band) {
        if (cancel && cancel->IsCancelled())
            return;
        RunRows(source, target, static_cast<float>(sourceWeight), band * BandRows,
                std::min(height, (band + 1) * BandRows));
    });
    return !(cancel && cancel->IsCancelled());
}

void Segment::RunRows(const Image& source, Image& target, float sourceWeight, int first,
                      int end) const
{
    const PixelKernels kernels = SelectPixelKernels(source.GetDepth(), m_options.isa);
    const float* const table = GetLoadTable(source.GetDepth());
    const StoreParameters storing{m_endsLinear, sourceWeight};
    TilePlanes& planes = GetPlanesOfThread();
    Tile tile{planes.values[0], planes.values[1], planes.values[2]};
    for (tile.y = first; tile.y < end; ++tile.y)
        for (tile.x = 0; tile.x < source.GetWidth(); tile.x += m_options.tilePixels) {
            tile.count = std::min(m_options.tilePixels, source.GetWidth() - tile.x);
            const auto offset = static_cast<std::size_t>(tile.x) * source.GetBytesPerPixel();
            kernels.load(tile, source.Row(tile.y) + offset, table);
            for (const StagePtr& stage : m_stages)
                stage->Run(tile);
            kernels.store(tile, source.Row(tile.y) + offset, target.Row(tile.y) + offset, storing);
        }
}

ColourSpace Segment::GetFirstSpace() const
{
    return m_stages.empty() ? ColourSpace::Linear : m_stages.front()->GetColourSpace();
}

const float* Segment::GetLoadTable(Image::Depth depth) const
{
    const bool is16 = depth == Image::Depth::Bits16;
    if (GetFirstSpace() == ColourSpace::Linear)
        return is16 ? GetSrgbDecodeTable16() : GetSrgbDecodeTable8();
    static const std::vector<float> unit8 = MakeUnitTable(256);
    static const std::vector<float> unit16 = MakeUnitTable(65536);
    return is16 ? unit16.data() : unit8.data();
}

} // namespace LumetraHost
