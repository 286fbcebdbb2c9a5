// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/PartRenderer.h"

#include "image/Overview.h"
#include "image/Resize.h"

namespace LumetraHost {
namespace {

Image Scale(const PictureRecipe& recipe, const PhotoPart& part)
{
    const KeptImage& photo = recipe.photo;
    const bool isWhole =
        part.part.width == photo.GetWidth() && part.part.height == photo.GetHeight();
    if (isWhole && part.width == photo.GetWidth() && part.height == photo.GetHeight())
        return photo.ToImage();
    return recipe.overview
               ? recipe.overview->Resize(part.part, part.width, part.height, part.quality)
               : Resize(photo, part.part, part.width, part.height, part.quality);
}

bool Contains(const PixelRect& outer, const PixelRect& inner)
{
    return inner.x >= outer.x && inner.y >= outer.y &&
           inner.x + inner.width <= outer.x + outer.width &&
           inner.y + inner.height <= outer.y + outer.height;
}

} // namespace

PartRenderer::PartRenderer(const Renderer& renderer, LayerUse use) : m_layers(renderer, use) {}

Image PartRenderer::GetOriginal(const PictureRecipe& recipe, const PhotoPart& part)
{
    const KeptImage& photo = recipe.photo;
    if (HasScaled(photo, part))
        return m_layers.GetSource();
    const bool isSeen = !photo.IsNull() && !part.IsEmpty();
    SetOriginal(recipe, part, isSeen ? Scale(recipe, part) : Image());
    return m_layers.GetSource();
}

void PartRenderer::SetOriginal(const PictureRecipe& recipe, const PhotoPart& part,
                               const Image& original)
{
    m_photo = recipe.photo;
    m_part = part;
    m_isOpaque = original.IsOpaque();
    if (original.IsNull())
        m_layers.SetSource(original);
    else
        m_layers.SetSource(original, part.GetArea(m_photo.GetWidth(), m_photo.GetHeight()),
                           recipe.whole ? recipe.whole : WholePicture::OfPhoto(m_photo));
}

Image PartRenderer::Render(const PictureRecipe& recipe, const PhotoPart& part,
                           const CancelToken* cancel)
{
    if (GetOriginal(recipe, part).IsNull())
        return {};
    return m_layers.Render(recipe.layers, recipe.layers.size(), cancel);
}

WholePicture::Ptr PartRenderer::FindWhole(const PictureRecipe& recipe)
{
    return m_layers.FindWhole(recipe.layers, recipe.layers.size());
}

Image PartRenderer::RenderFromTables(const PictureRecipe& recipe, const PhotoPart& part,
                                     const CancelToken* cancel, const ScreenSpace& screen)
{
    if (GetOriginal(recipe, part).IsNull())
        return {};
    return m_layers.RenderFromTables(recipe.layers, cancel, screen);
}

bool PartRenderer::HasScaled(const KeptImage& photo, const PhotoPart& part) const
{
    return m_part == part && m_photo.SharesPixelsWith(photo);
}

bool PartRenderer::HasScaledAround(const KeptImage& photo, const PhotoPart& part) const
{
    return m_photo.SharesPixelsWith(photo) && Contains(m_part.part, part.part) &&
           m_part.width >= part.width;
}

} // namespace LumetraHost
