// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/LayerRenderer.h"
#include "drawer/stack/PictureRecipe.h"
#include "drawer/view/ViewGeometry.h"

#include "engine/run/Renderer.h"
#include "threads/CancelToken.h"

#include "image/Image.h"

#include <optional>

namespace LumetraHost {

/// Renders one view of a photo: the visible part, scaled once and kept, with the layers on it.
/// Belongs to the thread that renders.
class ViewRenderer
{
public:
    /// `renderer` is kept by reference.
    explicit ViewRenderer(const Renderer& renderer);

    /// The visible part without any layer; null without a photo and for an empty part.
    Image GetOriginal(const Image& photo, const ViewGeometry& geometry);
    /// The same with the recipe's layers; also null when it was cancelled.
    Image Render(const PictureRecipe& recipe, const ViewGeometry& geometry,
                 const CancelToken& cancel);

    /// The same quickly and not exactly; null where that cannot be done, see
    /// LayerRenderer::RenderBaked().
    Image RenderBaked(const PictureRecipe& recipe, const ViewGeometry& geometry,
                      const CancelToken& cancel);

    /// Whether the part of the last call is without transparency.
    bool IsOpaque() const { return m_isOpaque; }
    bool HasScaled(const Image& photo, const ViewGeometry& geometry) const;
    /// The same with any border around that part.
    bool HasScaledPart(const Image& photo, const ViewGeometry& geometry) const;

private:
    Image m_photo;
    std::optional<ViewGeometry> m_geometry;
    bool m_isOpaque = true;
    LayerRenderer m_layers;
};

} // namespace LumetraHost
