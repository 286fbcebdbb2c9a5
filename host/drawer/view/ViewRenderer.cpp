// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/ViewRenderer.h"

#include "image/Resize.h"

namespace LumetraHost {
namespace {

Image Scale(const Image& photo, const ViewGeometry& geometry)
{
    const QRect& part = geometry.part;
    const bool isWhole = part == QRect(0, 0, photo.GetWidth(), photo.GetHeight());
    if (isWhole && part.size() == geometry.size)
        return photo;
    return Resize(photo, {part.x(), part.y(), part.width(), part.height()}, geometry.size.width(),
                  geometry.size.height(),
                  geometry.isDraft ? ResizeQuality::Fast : ResizeQuality::Screen);
}

} // namespace

ViewRenderer::ViewRenderer(const Renderer& renderer) : m_layers(renderer, LayerUse::Interaction) {}

Image ViewRenderer::GetOriginal(const Image& photo, const ViewGeometry& geometry)
{
    if (HasScaled(photo, geometry))
        return m_layers.GetSource();
    m_photo = photo;
    m_geometry = geometry;
    const bool isSeen = !photo.IsNull() && !geometry.part.isEmpty();
    const Image source = isSeen ? Scale(photo, geometry) : Image();
    m_isOpaque = source.IsOpaque();
    const QSize size(photo.GetWidth(), photo.GetHeight());
    m_layers.SetSource(source, isSeen ? std::optional(geometry.GetArea(size)) : std::nullopt);
    return source;
}

Image ViewRenderer::Render(const PictureRecipe& recipe, const ViewGeometry& geometry,
                           const CancelToken& cancel)
{
    if (GetOriginal(recipe.photo, geometry).IsNull())
        return {};
    return m_layers.Render(recipe.layers, recipe.layers.size(), &cancel);
}

Image ViewRenderer::RenderBaked(const PictureRecipe& recipe, const ViewGeometry& geometry,
                                const CancelToken& cancel)
{
    if (GetOriginal(recipe.photo, geometry).IsNull())
        return {};
    return m_layers.RenderBaked(recipe.layers, &cancel);
}

bool ViewRenderer::HasScaled(const Image& photo, const ViewGeometry& geometry) const
{
    return m_geometry == geometry && m_photo.SharesPixelsWith(photo);
}

bool ViewRenderer::HasScaledPart(const Image& photo, const ViewGeometry& geometry) const
{
    return m_geometry && m_photo.SharesPixelsWith(photo) &&
           m_geometry->part.contains(geometry.part) &&
           m_geometry->size.width() >= geometry.size.width();
}

} // namespace LumetraHost
