// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/PreviewRenderer.h"

#include "drawer/FrameConversion.h"

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

PreviewRenderer::PreviewRenderer(const Renderer& renderer) : m_renderer(renderer) {}

void PreviewRenderer::SetPhoto(const Image& photo)
{
    m_photo = photo;
    m_scaled.clear();
}

Zorvik::Proc::Frame PreviewRenderer::Render(const Zorvik::Proc::FrameTarget& target,
                                            const Zorvik::Quindle::EffectsSettings& effects,
                                            int cropPolicy, int fitPolicy, unsigned flags)
{
    if (m_photo.IsNull())
        return {};
    const int width = m_photo.GetWidth();
    const int height = m_photo.GetHeight();
    const auto geometry = PreviewGeometry::Make(width, height, target, cropPolicy, fitPolicy);
    const bool isDraft = (flags & FlagDraft) != 0;

    RenderOptions options;
    options.area = geometry.GetArea(width, height);
    const Image scaled =
        GetScaledPhoto(geometry, isDraft ? ResizeQuality::Fast : ResizeQuality::Fine);
    auto frame = ImageToFrame(m_renderer.Render(scaled, effects, options));
    frame.pixelAspect = target.pixelAspect;
    return frame;
}

Image PreviewRenderer::GetScaledPhoto(const PreviewGeometry& geometry, ResizeQuality quality)
{
    const auto found = std::find_if(m_scaled.begin(), m_scaled.end(), [&](const ScaledPhoto& s) {
        return AreSame(s.geometry, geometry) && s.quality == quality;
    });
    if (found != m_scaled.end()) {
        m_scaled.splice(m_scaled.begin(), m_scaled, found);
        return m_scaled.front().picture;
    }
    const Image picture = Resize(m_photo, geometry.part, geometry.width, geometry.height, quality);
    m_scaled.push_front({geometry, quality, picture});
    if (m_scaled.size() > KeptScales)
        m_scaled.pop_back();
    return picture;
}

} // namespace LumetraHost
