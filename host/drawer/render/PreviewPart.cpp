// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/PreviewPart.h"

#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "storage/FailWith.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::IQuindleDrawer;

int RoundToPixels(double length, int largest)
{
    return static_cast<int>(std::clamp(std::floor(length + 0.5), 1.0, double(largest)));
}

/// Where a length begins that is to have its middle at that share of the whole.
int PlaceMiddle(double middle, int length, int whole)
{
    const auto start = static_cast<int>(std::floor(middle * whole - length / 2.0));
    return std::clamp(start, 0, whole - length);
}

void CheckTarget(const Zorvik::Proc::FrameTarget& target)
{
    const bool hasAspect = std::isfinite(target.pixelAspect) && target.pixelAspect > 0;
    if (target.width < 1 || target.height < 1 || !hasAspect)
        FailWith("preview of " + std::to_string(target.width) + " x " +
                 std::to_string(target.height) + " pixels of aspect " +
                 std::to_string(target.pixelAspect) +
                 ": expected at least 1 x 1 and a positive aspect");
}

} // namespace

PhotoPart MakePreviewPart(int photoWidth, int photoHeight, const Zorvik::Proc::FrameTarget& target,
                          int cropPolicy, int fitPolicy, double portraitMiddle)
{
    CheckTarget(target);
    const double aspect = target.pixelAspect;
    const double scaleX = target.width * aspect / photoWidth;
    const double scaleY = double(target.height) / photoHeight;
    double scale = cropPolicy == IQuindleDrawer::CropNothing ? std::min(scaleX, scaleY)
                                                             : std::max(scaleX, scaleY);
    // Neither direction may get more pixels than the photo has.
    if (fitPolicy == IQuindleDrawer::FitWithoutEnlarging)
        scale = std::min({scale, 1.0, aspect});

    PhotoPart preview;
    preview.width = RoundToPixels(photoWidth * scale / aspect, target.width);
    preview.height = RoundToPixels(photoHeight * scale, target.height);
    preview.part = {0, 0, photoWidth, photoHeight};
    if (cropPolicy != IQuindleDrawer::CropNothing) {
        preview.part.width = RoundToPixels(target.width * aspect / scale, photoWidth);
        preview.part.height = RoundToPixels(target.height / scale, photoHeight);
        preview.part.x = (photoWidth - preview.part.width) / 2;
        const double middle =
            photoHeight > photoWidth ? portraitMiddle : PreviewPolicies::PortraitCentre;
        preview.part.y = PlaceMiddle(middle, preview.part.height, photoHeight);
    }
    return preview;
}

} // namespace LumetraHost
