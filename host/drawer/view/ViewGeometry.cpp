// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/ViewGeometry.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

int GetRenderedLength(int partLength, double requestedPart, int requestedLength)
{
    const double scale = requestedLength / requestedPart;
    const auto length = static_cast<int>(std::lround(std::min(scale, 1.0) * partLength));
    return std::max(1, length);
}

} // namespace

ViewGeometry ViewGeometry::Make(const QSize& photo, const ViewRequest& request)
{
    ViewGeometry geometry;
    if (request.size.isEmpty() || request.part.isEmpty())
        return geometry;
    const QRectF seen = request.part & QRectF(QPointF(), QSizeF(photo));
    if (seen.isEmpty())
        return geometry;
    geometry.part = seen.toAlignedRect();
    geometry.size = {
        GetRenderedLength(geometry.part.width(), request.part.width(), request.size.width()),
        GetRenderedLength(geometry.part.height(), request.part.height(), request.size.height())};
    return geometry;
}

ViewGeometry ViewGeometry::GetReduced(int halvings) const
{
    ViewGeometry reduced = *this;
    reduced.size = {std::max(1, size.width() >> halvings), std::max(1, size.height() >> halvings)};
    reduced.isDraft = true;
    return reduced;
}

ViewGeometry ViewGeometry::GetEnlarged(int border, const QSize& photo) const
{
    if (border < 1 || part.isEmpty())
        return *this;
    const double scaleX = double(part.width()) / size.width();
    const double scaleY = double(part.height()) / size.height();
    const int x = static_cast<int>(std::ceil(std::min(border * scaleX, double(photo.width()))));
    const int y = static_cast<int>(std::ceil(std::min(border * scaleY, double(photo.height()))));
    ViewGeometry enlarged = *this;
    enlarged.part = part.adjusted(-x, -y, x, y) & QRect(QPoint(), photo);
    enlarged.size = {std::max(1, static_cast<int>(std::lround(enlarged.part.width() / scaleX))),
                     std::max(1, static_cast<int>(std::lround(enlarged.part.height() / scaleY)))};
    return enlarged;
}

PhotoPart ViewGeometry::GetPhotoPart() const
{
    return {{part.x(), part.y(), part.width(), part.height()},
            size.width(),
            size.height(),
            isDraft ? ResizeQuality::Fast : ResizeQuality::Screen};
}

} // namespace LumetraHost
