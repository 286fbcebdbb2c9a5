// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/IncrementalRenderer.h"
#include "drawer/stack/PictureRecipe.h"
#include "image/ImagePool.h"

#include "engine/run/Renderer.h"
#include "engine/run/WholePicture.h"
#include "image/PictureArea.h"
#include "threads/CancelToken.h"

#include "image/Image.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace LumetraHost {

/// The space of the screen that a picture is made for. Null inside: sRGB. Empty: none, the picture
/// is needed in its own space.
using ScreenSpace = std::optional<std::shared_ptr<const RgbSpace>>;

/// For whom layers are drawn.
enum class LayerUse
{
    Once,       ///< little memory is kept
    Interaction ///< the layer that changes is drawn quickly, and memory is used again
};

/// Draws the layers of a recipe on one source picture. Keeps pictures that the next call may use
/// again: the result, the picture below the topmost layer, the one below the layer that was changed
/// last, and while a blend is dragged that layer's finished full effect. For interaction it also
/// keeps the changing layer's picture in front of its first effect that differs (see
/// IncrementalRenderer). One thread only.
///
/// Every layer rounds once: the picture above a layer has the depth of the source.
class LayerRenderer
{
public:
    /// `renderer` is kept by reference.
    explicit LayerRenderer(const Renderer& renderer, LayerUse use = LayerUse::Once);

    /// Null: all results are null. `area`: where the source lies in the photo; empty: it is all
    /// of it. `whole`: the photo; null: the source counts as that.
    void SetSource(const Image& source, const std::optional<PictureArea>& area = std::nullopt,
                   WholePicture::Ptr whole = nullptr);
    const Image& GetSource() const { return m_source; }

    /// The whole photo with the first `count` of the layers on it. Not without a source.
    WholePicture::Ptr FindWhole(const std::vector<Layer>& layers, std::size_t count);

    /// The source with the first `count` of the layers on it. Null without a source, and when it
    /// was cancelled; what was finished by then is kept.
    Image Render(const std::vector<Layer>& layers, std::size_t count,
                 const CancelToken* cancel = nullptr);

    /// A quick picture of all the layers that is not exact: layers that were not drawn yet come
    /// from tables (see ColourTable). Null when no table can stand for one of them, and when it was
    /// cancelled. Keeps nothing. With a screen, a photo in a space of its own may come in the
    /// screen's, see Image::GetSpace(): the uppermost table then converts on its way.
    Image RenderFromTables(const std::vector<Layer>& layers, const CancelToken* cancel = nullptr,
                           const ScreenSpace& screen = {});

private:
    struct Output
    {
        Layer layer;
        Image picture; ///< holds this layer and all below; null: not kept
    };

    /// The whole photo with a layer and all below it.
    struct Whole
    {
        Layer layer;
        WholePicture::Ptr picture;
    };

    struct FullEffect
    {
        std::size_t position = 0;
        SharedSettings settings;
        Image picture; ///< null: not kept
    };

    void MatchOutputs(const std::vector<Layer>& layers, std::size_t count);
    void MatchFullEffect(const std::vector<Layer>& layers, std::size_t firstOther);
    Image RenderLayer(const std::vector<Layer>& layers, std::size_t position, const Image& below,
                      const CancelToken* cancel);
    Image RenderSettings(std::size_t position, const Zorvik::Quindle::EffectsSettings& settings,
                         const Image& below, const RenderOptions& options);
    Image RenderBlend(std::size_t position, const Layer& layer, const Image& below,
                      const RenderOptions& options);
    Image RenderLayerFromTable(const Layer& layer, const Image& below, const CancelToken* cancel,
                               const ScreenSpace& screen);
    Image TakeSpare();
    void DropUnused(std::size_t count);

    const Renderer& m_renderer;
    LayerUse m_use;
    IncrementalRenderer m_incremental;
    Image m_source;
    std::optional<PictureArea> m_area;
    WholePicture::Ptr m_whole;   ///< the photo
    std::vector<Whole> m_wholes; ///< the one of the lowest layer first
    std::vector<Output> m_outputs;
    std::size_t m_changed = 0; ///< the layer that was changed last
    FullEffect m_fullEffect;
    ImagePool m_spares;
};

} // namespace LumetraHost
