// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/ImagePool.h"
#include "drawer/PictureRecipe.h"

#include "engine/CancelToken.h"
#include "engine/PictureArea.h"
#include "engine/Renderer.h"

#include "photo/Image.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace LumetraHost {

/// Draws the layers of a recipe on one source picture and keeps what the next call can use again:
/// the result, the picture below the topmost layer, the one below the layer that was changed last,
/// and while a blend is dragged that layer's finished full effect. One thread only.
///
/// Every layer rounds once: the picture above a layer has the depth of the source.
class LayerRenderer
{
public:
    /// `renderer` is kept by reference. `spares`: how many pictures that were handed out it
    /// remembers to use their memory again.
    explicit LayerRenderer(const Renderer& renderer, std::size_t spares = 1);

    /// Null: all results are null. `area`: where the source lies in the photo; empty: it is all
    /// of it.
    void SetSource(const Image& source, const std::optional<PictureArea>& area = std::nullopt);
    const Image& GetSource() const { return m_source; }

    /// The source with the first `count` of the layers on it. Null without a source, and when it
    /// was cancelled; what was finished by then is kept.
    Image Render(const std::vector<Layer>& layers, std::size_t count,
                 const CancelToken* cancel = nullptr);

    /// How many layers have been drawn since the beginning; blends of finished pictures too.
    std::size_t GetDrawnLayerCount() const { return m_drawnLayers; }

private:
    struct Output
    {
        Layer layer;
        Image picture; ///< with this layer and all below; null: not kept
    };

    struct FullEffect
    {
        std::size_t position = 0;
        SharedSettings settings;
        Image picture; ///< null: not kept
    };

    void MatchOutputs(const std::vector<Layer>& layers, std::size_t count);
    void MatchFullEffect(const std::vector<Layer>& layers, std::size_t firstOther);
    Image RenderLayer(std::size_t position, const Layer& layer, const Image& below,
                      const CancelToken* cancel);
    Image RenderBlend(std::size_t position, const Layer& layer, const Image& below,
                      const RenderOptions& options);
    Image TakeSpare();
    void DropUnused(std::size_t count);

    const Renderer& m_renderer;
    Image m_source;
    std::optional<PictureArea> m_area;
    std::vector<Output> m_outputs;
    std::size_t m_changed = 0; ///< the layer that was changed last
    FullEffect m_fullEffect;
    ImagePool m_spares;
    std::size_t m_drawnLayers = 0;
};

} // namespace LumetraHost
