// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/PartRenderer.h"
#include "drawer/render/PreviewPart.h"
#include "drawer/stack/PictureRecipe.h"

#include "engine/run/Renderer.h"

#include "image/Image.h"

#include "Zorvik/Proc/Frame.h"

#include <list>

namespace LumetraHost {

/// Renders small pictures of one photo with various effects. Keeps the last few scaled parts of the
/// photo, so that a grid of previews scales only once. One thread only.
class PreviewRenderer
{
public:
    /// `renderer` is kept by reference. `threads`: the number that render one preview; 0: all.
    explicit PreviewRenderer(const Renderer& renderer, int threads = 0);

    /// The photo with all layers of the recipe, and `effects` on top, in sRGB. Null without a photo
    /// and when it was cancelled. Rgba8Premultiplied for a photo of 8 bits, RgbaFloatPremultiplied
    /// for one of 16.
    Zorvik::Proc::Frame Render(const PictureRecipe& recipe, const Zorvik::Proc::FrameTarget& target,
                               const Zorvik::Quindle::EffectsSettings& effects,
                               const PreviewPolicies& policies,
                               const CancelToken* cancel = nullptr);

private:
    static constexpr std::size_t KeptParts = 4;

    PartRenderer& FindPart(const PhotoPart& part);

    const Renderer& m_renderer;
    int m_threads;
    KeptImage m_photo;
    std::list<PartRenderer> m_parts; ///< the one used last first
};

} // namespace LumetraHost
