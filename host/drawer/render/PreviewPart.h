// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/PhotoPart.h"

#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"

namespace LumetraHost {

/// How a preview is cut and scaled, see IQuindleDrawer::RenderPreview.
struct PreviewPolicies
{
    int crop = Zorvik::Quindle::IQuindleDrawer::CropToCentre;
    int fit = Zorvik::Quindle::IQuindleDrawer::FitByScaling;
    unsigned flags = 0;
    /// The share of a portrait's height at which the middle of the cut lies, see MakePreviewPart().
    double portraitMiddle = PortraitCentre;

    static constexpr double PortraitCentre = 0.5;
    /// Keeps the heads of people, which are in the upper part of most portraits.
    static constexpr double PortraitUpperThird = 1.0 / 3;
};

/// The part of the photo that a preview shows. Crop 0: the whole photo, inside the target; 1 (and
/// all others): the centre of it, filling the target. Fit 0 (and all others): scaled up or down; 1:
/// never enlarged. The photo has square pixels, the preview pixels of the target's aspect (width /
/// height). Zorvik::Exception for a target without pixels or with an aspect that is not positive
/// and finite.
///
/// The part of a photo that is higher than it is wide has its middle at the share
/// `portraitMiddle` of the height, as far as the photo's edges allow it.
PhotoPart MakePreviewPart(int photoWidth, int photoHeight, const Zorvik::Proc::FrameTarget& target,
                          int cropPolicy, int fitPolicy,
                          double portraitMiddle = PreviewPolicies::PortraitCentre);

} // namespace LumetraHost
