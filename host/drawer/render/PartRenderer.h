// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/LayerRenderer.h"
#include "drawer/render/PhotoPart.h"
#include "drawer/stack/PictureRecipe.h"

#include "engine/run/Renderer.h"
#include "threads/CancelToken.h"

#include "image/Image.h"

namespace LumetraHost {

/// Renders one part of a photo, on the screen or as a preview. Keeps the scaled part, and the
/// pictures that LayerRenderer keeps. One thread only.
class PartRenderer
{
public:
    /// `renderer` is kept by reference.
    PartRenderer(const Renderer& renderer, LayerUse use);

    /// The scaled part without any layer; null without a photo and for an empty part.
    Image GetOriginal(const PictureRecipe& recipe, const PhotoPart& part);
    /// Draws on `original` from now on, where that part of the recipe's photo is wanted.
    void SetOriginal(const PictureRecipe& recipe, const PhotoPart& part, const Image& original);
    /// The scaled part with the recipe's layers; also null when it was cancelled. `cancel` may be
    /// null.
    Image Render(const PictureRecipe& recipe, const PhotoPart& part, const CancelToken* cancel);

    /// A quick picture of the part with its layers that is not exact; null where that cannot be
    /// done, see LayerRenderer::RenderFromTables().
    Image RenderFromTables(const PictureRecipe& recipe, const PhotoPart& part,
                           const CancelToken* cancel, const ScreenSpace& screen = {});

    /// The whole photo with the recipe's layers. Only for the recipe of the last call, whose photo
    /// and part were not empty.
    WholePicture::Ptr FindWhole(const PictureRecipe& recipe);

    /// True when the part of the last call has no transparent pixels.
    bool IsOpaque() const { return m_isOpaque; }
    /// True when the part is kept.
    bool HasScaled(const KeptImage& photo, const PhotoPart& part) const;
    /// True when a part is kept that contains this one in at least its size.
    bool HasScaledAround(const KeptImage& photo, const PhotoPart& part) const;

private:
    KeptImage m_photo;
    PhotoPart m_part;
    bool m_isOpaque = true;
    LayerRenderer m_layers;
};

} // namespace LumetraHost
