// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/PhotoPart.h"

#include <tuple>

namespace LumetraHost {

PictureArea PhotoPart::GetArea(int photoWidth, int photoHeight) const
{
    PictureArea area = PictureArea::Whole(photoWidth, photoHeight);
    area.originX = part.x;
    area.originY = part.y;
    area.scaleX = double(part.width) / width;
    area.scaleY = double(part.height) / height;
    return area;
}

bool operator==(const PhotoPart& first, const PhotoPart& second)
{
    const auto tie = [](const PhotoPart& p) {
        return std::tie(p.part.x, p.part.y, p.part.width, p.part.height, p.width, p.height,
                        p.quality);
    };
    return tie(first) == tie(second);
}

} // namespace LumetraHost
