// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/PreviewGeometry.h"

#include "engine/Renderer.h"

#include "photo/Image.h"

#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <list>

namespace LumetraHost {

/// Renders small pictures of one photo with various effects. Keeps the last few scaled photos, so
/// that a grid of previews scales only once. Owned by the drawer.
class PreviewRenderer
{
public:
    /// `renderer` is kept by reference.
    explicit PreviewRenderer(const Renderer& renderer);

    /// The photo of all later previews; null: they are null too.
    void SetPhoto(const Image& photo);

    /// See IQuindleDrawer::RenderPreview. Rgba8Premultiplied for a photo of 8 bits,
    /// RgbaFloatPremultiplied for one of 16.
    Zorvik::Proc::Frame Render(const Zorvik::Proc::FrameTarget& target,
                               const Zorvik::Quindle::EffectsSettings& effects, int cropPolicy,
                               int fitPolicy, unsigned flags);

private:
    static constexpr unsigned FlagDraft = 1;
    static constexpr std::size_t KeptScales = 4;

    struct ScaledPhoto
    {
        PreviewGeometry geometry;
        ResizeQuality quality;
        Image picture;
    };

    Image GetScaledPhoto(const PreviewGeometry& geometry, ResizeQuality quality);

    const Renderer& m_renderer;
    Image m_photo;
    std::list<ScaledPhoto> m_scaled; ///< the one used last first
};

} // namespace LumetraHost
