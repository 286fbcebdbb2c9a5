// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/PreviewRenderer.h"

#include "image/FrameConversion.h"

#include <algorithm>
#include <tuple>

namespace LumetraHost {
namespace {

bool AreSame(const PreviewGeometry& first, const PreviewGeometry& second)
{
    const auto tie = [](const PreviewGeometry& g) {
        return std::tie(g.part.x, g.part.y, g.part.width, g.part.height, g.width, g.height);
    };
    return tie(first) == tie(second);
}

} // namespace

PreviewRenderer::PreviewRenderer(const Renderer& renderer, int threads)
    : m_renderer(renderer), m_threads(threads)
{
}

Zorvik::Proc::Frame PreviewRenderer::Render(const PictureRecipe& recipe,
                                            const Zorvik::Proc::FrameTarget& target,
                                            const Zorvik::Quindle::EffectsSettings& effects,
                                            const PreviewPolicies& policies,
                                            const CancelToken* cancel)
{
    if (!m_photo.SharesPixelsWith(recipe.photo))
        m_scaled.clear();
    m_photo = recipe.photo;
    if (m_photo.IsNull())
        return {};
    const int width = m_photo.GetWidth();
    const int height = m_photo.GetHeight();
    const auto geometry = PreviewGeometry::Make(width, height, target, policies.crop, policies.fit);
    const bool isDraft = (policies.flags & FlagDraft) != 0;
    auto& layers = GetScaledPhoto(geometry, isDraft ? ResizeQuality::Fast : ResizeQuality::Screen);

    RenderOptions options;
    options.area = geometry.GetArea(width, height);
    options.cancel = cancel;
    options.threads = m_threads;
    const Image committed = layers.Render(recipe.layers, recipe.layers.size(), cancel);
    auto frame = ImageToFrame(m_renderer.Render(committed, effects, options));
    frame.pixelAspect = target.pixelAspect;
    return frame;
}

LayerRenderer& PreviewRenderer::GetScaledPhoto(const PreviewGeometry& geometry,
                                               ResizeQuality quality)
{
    const auto found = std::find_if(m_scaled.begin(), m_scaled.end(), [&](const ScaledPhoto& s) {
        return AreSame(s.geometry, geometry) && s.quality == quality;
    });
    if (found != m_scaled.end()) {
        m_scaled.splice(m_scaled.begin(), m_scaled, found);
        return m_scaled.front().layers;
    }
    m_scaled.push_front({geometry, quality, LayerRenderer(m_renderer)});
    m_scaled.front().layers.SetSource(
        Resize(m_photo, geometry.part, geometry.width, geometry.height, quality),
        geometry.GetArea(m_photo.GetWidth(), m_photo.GetHeight()));
    if (m_scaled.size() > KeptScales)
        m_scaled.pop_back();
    return m_scaled.front().layers;
}

} // namespace LumetraHost
