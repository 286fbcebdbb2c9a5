// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/PreviewGeometry.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <cmath>
#include <string>

namespace LumetraHost {
namespace {

int RoundToPixels(double length, int largest)
{
    return static_cast<int>(std::clamp(std::floor(length + 0.5), 1.0, double(largest)));
}

void CheckTarget(const Zorvik::Proc::FrameTarget& target)
{
    const bool hasAspect = std::isfinite(target.pixelAspect) && target.pixelAspect > 0;
    if (target.width < 1 || target.height < 1 || !hasAspect)
        throw Zorvik::Exception("preview of " + std::to_string(target.width) + " x " +
                                    std::to_string(target.height) + " pixels of aspect " +
                                    std::to_string(target.pixelAspect) +
                                    ": expected at least 1 x 1 and a positive aspect",
                                BOOST_CURRENT_FUNCTION, "drawer/PreviewGeometry", __LINE__);
}

} // namespace

PreviewGeometry PreviewGeometry::Make(int photoWidth, int photoHeight,
                                      const Zorvik::Proc::FrameTarget& target, int cropPolicy,
                                      int fitPolicy)
{
    CheckTarget(target);
    const double aspect = target.pixelAspect;
    const double scaleX = target.width * aspect / photoWidth;
    const double scaleY = double(target.height) / photoHeight;
    double scale = cropPolicy == 0 ? std::min(scaleX, scaleY) : std::max(scaleX, scaleY);
    // Neither direction may get more pixels than the photo has.
    if (fitPolicy == 1)
        scale = std::min({scale, 1.0, aspect});

    PreviewGeometry geometry;
    geometry.width = RoundToPixels(photoWidth * scale / aspect, target.width);
    geometry.height = RoundToPixels(photoHeight * scale, target.height);
    geometry.part = {0, 0, photoWidth, photoHeight};
    if (cropPolicy != 0) {
        geometry.part.width = RoundToPixels(target.width * aspect / scale, photoWidth);
        geometry.part.height = RoundToPixels(target.height / scale, photoHeight);
        geometry.part.x = (photoWidth - geometry.part.width) / 2;
        geometry.part.y = (photoHeight - geometry.part.height) / 2;
    }
    return geometry;
}

PictureArea PreviewGeometry::GetArea(int photoWidth, int photoHeight) const
{
    PictureArea area = PictureArea::Whole(photoWidth, photoHeight);
    area.originX = part.x;
    area.originY = part.y;
    area.scaleX = double(part.width) / width;
    area.scaleY = double(part.height) / height;
    return area;
}

} // namespace LumetraHost
