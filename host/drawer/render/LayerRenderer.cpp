// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/LayerRenderer.h"

#include "engine/run/Blend.h"
#include "engine/run/ColourTable.h"

#include <algorithm>
#include <utility>

namespace LumetraHost {
namespace {

/// The frame on the screen, the one on its way there, and the ones being rendered.
constexpr std::size_t InteractionSpares = 4;

int GetBlend(const Layer& layer)
{
    return layer.paintedBlend.value_or(layer.settings->GetBlendAmount());
}

bool IsFullEffect(const Layer& layer)
{
    return GetBlend(layer) == FullEffect;
}

} // namespace

LayerRenderer::LayerRenderer(const Renderer& renderer, LayerUse use)
    : m_renderer(renderer), m_use(use), m_incremental(renderer),
      m_spares(use == LayerUse::Interaction ? InteractionSpares : 1)
{
}

void LayerRenderer::SetSource(const Image& source, const std::optional<PictureArea>& area,
                              WholePicture::Ptr whole)
{
    m_source = source;
    m_area = area;
    m_whole = std::move(whole);
    m_wholes.clear();
    if (!m_whole && !source.IsNull())
        m_whole = WholePicture::Of(
            source, area.value_or(PictureArea::Whole(source.GetWidth(), source.GetHeight())));
    m_outputs.clear();
    m_fullEffect = {};
    m_incremental.Clear();
    m_spares.Clear();
}

Image LayerRenderer::Render(const std::vector<Layer>& layers, std::size_t count,
                            const CancelToken* cancel)
{
    if (m_source.IsNull())
        return {};
    MatchOutputs(layers, count);
    std::size_t next = std::min(count, m_outputs.size());
    while (next > 0 && m_outputs[next - 1].picture.IsNull())
        --next;
    Image picture = next == 0 ? m_source : m_outputs[next - 1].picture;
    m_outputs.resize(std::max(m_outputs.size(), count));
    for (; next < count && !picture.IsNull(); ++next) {
        picture = RenderLayer(layers, next, picture, cancel);
        if (!picture.IsNull())
            m_outputs[next] = {layers[next], picture};
    }
    DropUnused(count);
    return picture;
}

Image LayerRenderer::RenderFromTables(const std::vector<Layer>& layers, const CancelToken* cancel,
                                      const ScreenSpace& screen)
{
    if (m_source.IsNull() || m_source.GetDepth() != Image::Depth::Bits8)
        return {};
    std::size_t next = 0;
    Image picture = m_source;
    const std::size_t end = std::min(m_outputs.size(), layers.size());
    for (std::size_t i = 0; i < end && m_outputs[i].layer == layers[i]; ++i)
        if (!m_outputs[i].picture.IsNull()) {
            picture = m_outputs[i].picture;
            next = i + 1;
        }
    for (; next < layers.size() && !picture.IsNull(); ++next) {
        const bool isLast = next + 1 == layers.size();
        picture =
            RenderLayerFromTable(layers[next], picture, cancel, isLast ? screen : ScreenSpace());
    }
    return picture;
}

Image LayerRenderer::RenderLayerFromTable(const Layer& layer, const Image& below,
                                          const CancelToken* cancel, const ScreenSpace& screen)
{
    ThreadPool& pool = ThreadPool::GetShared();
    const auto& effects = layer.settings->Effects();
    const auto& space = below.GetSpace();
    // A blend needs both pictures in one space.
    const bool isForScreen = screen && space && IsFullEffect(layer);
    const auto table = isForScreen
                           ? ColourTable::MakeInto(*screen, effects, ColourTable::DragPoints,
                                                   GetDefaultIsa(), pool, cancel, space)
                           : ColourTable::Make(effects, ColourTable::DragPoints, GetDefaultIsa(),
                                               pool, cancel, space);
    if (!table)
        return {};
    RenderOptions options;
    options.cancel = cancel;
    Image picture = m_renderer.Render(below, table, GetBlend(layer), options, TakeSpare());
    if (isForScreen && !picture.IsNull())
        picture.SetSpace(*screen);
    m_spares.Remember(picture);
    return picture;
}

void LayerRenderer::MatchOutputs(const std::vector<Layer>& layers, std::size_t count)
{
    std::size_t same = 0;
    const std::size_t end = std::min(m_outputs.size(), layers.size());
    while (same < end && m_outputs[same].layer == layers[same])
        ++same;
    // The picture above the wanted layers may still be of use to the next call.
    if (same >= count && same < layers.size())
        return;
    MatchFullEffect(layers, same);
    if (same < layers.size())
        m_changed = same;
    if (same < m_outputs.size())
        m_outputs.resize(same);
}

void LayerRenderer::MatchFullEffect(const std::vector<Layer>& layers, std::size_t firstOther)
{
    const bool isThere = firstOther < layers.size();
    const auto isOf = [&](const SharedSettings& settings) {
        return isThere && layers[firstOther].settings == settings;
    };
    const bool isOther = m_fullEffect.position == firstOther && !isOf(m_fullEffect.settings);
    if (m_fullEffect.position > firstOther || isOther)
        m_fullEffect = {};
    // A package that was shown with its full effect need not be drawn again when its blend changes.
    if (firstOther < m_outputs.size() && isThere && layers[firstOther].paintedBlend) {
        const Output& output = m_outputs[firstOther];
        if (!output.picture.IsNull() && isOf(output.layer.settings) && IsFullEffect(output.layer))
            m_fullEffect = {firstOther, output.layer.settings, output.picture};
    }
}

WholePicture::Ptr LayerRenderer::FindWhole(const std::vector<Layer>& layers, std::size_t count)
{
    WholePicture::Ptr whole = m_whole;
    for (std::size_t i = 0; i < count; ++i) {
        const Layer& layer = layers[i];
        if (i < m_wholes.size() && m_wholes[i].layer != layer)
            m_wholes.resize(i);
        if (i == m_wholes.size())
            m_wholes.push_back({layer, whole->With(layer.settings->Effects(), GetBlend(layer))});
        whole = m_wholes[i].picture;
    }
    return whole;
}

Image LayerRenderer::RenderLayer(const std::vector<Layer>& layers, std::size_t position,
                                 const Image& below, const CancelToken* cancel)
{
    const Layer& layer = layers[position];
    RenderOptions options;
    options.area = m_area;
    options.facts = FindWhole(layers, position);
    options.cancel = cancel;
    const Image picture = layer.paintedBlend
                              ? RenderBlend(position, layer, below, options)
                              : RenderSettings(position, *layer.settings, below, options);
    if (!picture.SharesPixelsWith(m_source))
        m_spares.Remember(picture);
    return picture;
}

Image LayerRenderer::RenderSettings(std::size_t position,
                                    const Zorvik::Quindle::EffectsSettings& settings,
                                    const Image& below, const RenderOptions& options)
{
    if (m_use == LayerUse::Interaction && position == m_changed)
        return m_incremental.Render(below, settings, options, TakeSpare());
    return m_renderer.Render(below, settings, options, TakeSpare());
}

Image LayerRenderer::RenderBlend(std::size_t position, const Layer& layer, const Image& below,
                                 const RenderOptions& options)
{
    const bool isKept =
        m_fullEffect.position == position && m_fullEffect.settings == layer.settings;
    if (!isKept || m_fullEffect.picture.IsNull()) {
        const auto& effects = layer.settings->Effects();
        m_fullEffect = {position, layer.settings,
                        m_renderer.Render(below, effects, LumetraHost::FullEffect, options)};
    }
    if (m_fullEffect.picture.IsNull())
        return {};
    return m_renderer.Interpolate(below, m_fullEffect.picture, *layer.paintedBlend, options,
                                  TakeSpare());
}

Image LayerRenderer::TakeSpare()
{
    return m_spares.Take(m_source.GetWidth(), m_source.GetHeight(), m_source.GetDepth());
}

void LayerRenderer::DropUnused(std::size_t count)
{
    for (std::size_t i = 0; i < m_outputs.size(); ++i) {
        const bool isNearTop = i + 2 >= m_outputs.size();
        if (!isNearTop && i + 1 != count && i + 1 != m_changed)
            m_outputs[i].picture = Image();
    }
}

} // namespace LumetraHost
