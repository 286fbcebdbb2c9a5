// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/run/PlanarFrame.h"

#include "engine/run/Renderer.h"
#include "engine/stages/Stage.h"

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace LumetraHost {

class RenderPlan;

/// Renders a list of effects of which one is being changed: keeps the picture in front of the first
/// effect that differs from the list before, as floats, so that the next change of that effect or
/// a later one starts there. The pixels are those of Renderer::Render to the bit, whatever came
/// before. One thread only.
///
/// Lists with spatial effects, and pictures whose floats would take more than LargestCache, are
/// rendered from the beginning.
class IncrementalRenderer
{
public:
    /// Bytes: enough for the largest screens.
    static constexpr std::size_t LargestCache = std::size_t{256} << 20;

    /// `renderer` is kept by reference.
    explicit IncrementalRenderer(const Renderer& renderer);

    /// See Renderer::Render. The effects must not be changed afterwards.
    Image Render(const Image& source, const Zorvik::Quindle::EffectsSettings& effects,
                 const RenderOptions& options, Image recycled);

    /// Forgets and frees everything.
    void Clear();

private:
    /// The picture with the first `count` stages, in the space that the next one wants.
    struct Kept
    {
        std::size_t count = 0; ///< 0: nothing is kept
        ColourSpace space = ColourSpace::Linear;
        PlanarFrame frame;
    };

    Zorvik::Quindle::EffectList TakeSameEffects(const Zorvik::Quindle::EffectList& effects);
    static bool CanKeep(const Image& source, const RenderPlan& plan, int blendAmount);
    Image RenderFrom(const std::vector<StagePtr>& stages, std::size_t cut, const Image& source,
                     int blendAmount, const RenderOptions& options, Image recycled);

    const Renderer& m_renderer;
    Image m_source;
    std::optional<PictureArea> m_area;
    Zorvik::Quindle::EffectList m_effects;
    Kept m_kept;
};

} // namespace LumetraHost
