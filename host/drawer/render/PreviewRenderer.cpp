// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/PreviewRenderer.h"

#include "image/FrameConversion.h"

#include <algorithm>

namespace LumetraHost {

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
        m_parts.clear();
    m_photo = recipe.photo;
    if (m_photo.IsNull())
        return {};
    const int width = m_photo.GetWidth();
    const int height = m_photo.GetHeight();
    auto part = MakePreviewPart(width, height, target, policies.crop, policies.fit,
                                policies.portraitMiddle);
    if ((policies.flags & Zorvik::Quindle::IQuindleDrawer::FlagDraft) != 0)
        part.quality = ResizeQuality::Fast;

    RenderOptions options;
    options.area = part.GetArea(width, height);
    options.cancel = cancel;
    options.threads = m_threads;
    PartRenderer& renderer = FindPart(part);
    const Image committed = renderer.Render(recipe, part, cancel);
    options.facts = renderer.FindWhole(recipe);
    const Image picture = m_renderer.Render(committed, effects, options);
    auto frame = ImageToFrame(m_renderer.ToSrgb(picture, options));
    frame.pixelAspect = target.pixelAspect;
    return frame;
}

/// The renderer that keeps that part, else a new one.
PartRenderer& PreviewRenderer::FindPart(const PhotoPart& part)
{
    const auto found = std::find_if(m_parts.begin(), m_parts.end(), [&](const PartRenderer& kept) {
        return kept.HasScaled(m_photo, part);
    });
    if (found != m_parts.end()) {
        m_parts.splice(m_parts.begin(), m_parts, found);
        return m_parts.front();
    }
    m_parts.emplace_front(m_renderer, LayerUse::Once);
    if (m_parts.size() > KeptParts)
        m_parts.pop_back();
    return m_parts.front();
}

} // namespace LumetraHost
