// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/Drawer.h"
#include "drawer/render/LayerRenderer.h"

namespace LumetraHost {

/// The picture of a recipe, in full size. Null without a photo.
inline Image DrawRecipe(const PictureRecipe& recipe)
{
    const Renderer renderer;
    LayerRenderer layers(renderer);
    layers.SetSource(recipe.photo.ToImage());
    return layers.Render(recipe.layers, recipe.layers.size());
}

/// Draws the whole picture that a drawer tells of, in full size and on the calling thread, and
/// keeps what the next drawing can use again.
class DrawnPicture
{
public:
    explicit DrawnPicture(const Drawer& drawer) : m_drawer(drawer) {}

    /// With all packages and what an open painting shows. Null without a photo.
    Image Draw() { return Draw(m_drawer.GetRecipe()); }
    /// With the committed packages alone.
    Image DrawCommitted() { return Draw(m_drawer.GetCommittedRecipe()); }

private:
    Image Draw(const PictureRecipe& recipe)
    {
        if (!recipe.photo.SharesPixelsWith(m_photo))
            m_layers.SetSource(recipe.photo.ToImage());
        m_photo = recipe.photo;
        return m_layers.Render(recipe.layers, recipe.layers.size());
    }

    const Drawer& m_drawer;
    KeptImage m_photo;
    const Renderer m_renderer;
    LayerRenderer m_layers{m_renderer};
};

/// The photo with all packages.
inline Image DrawWhole(const Drawer& drawer)
{
    return DrawRecipe(drawer.GetRecipe());
}

/// The photo with the committed packages alone.
inline Image DrawCommitted(const Drawer& drawer)
{
    return DrawRecipe(drawer.GetCommittedRecipe());
}

} // namespace LumetraHost
