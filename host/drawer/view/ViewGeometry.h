// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/view/ViewFrame.h"

#include "drawer/render/PhotoPart.h"

#include <QRect>
#include <QSize>

namespace LumetraHost {

/// Which whole pixels of the photo a view shows, and with how many pixels it is rendered.
struct ViewGeometry
{
    QRect part;           ///< of the photo; empty when nothing of it is to be seen
    QSize size;           ///< of the rendered picture
    bool isDraft = false; ///< scaled quickly

    static ViewGeometry Make(const QSize& photo, const ViewRequest& request);

    /// The part with 1/2^halvings of the pixels in each direction, at least one.
    ViewGeometry GetReduced(int halvings) const;
    /// The part with that many more rendered pixels on every side, where the photo has them.
    ViewGeometry GetEnlarged(int border, const QSize& photo) const;
    PhotoPart GetPhotoPart() const;
    double GetPixelCount() const { return double(size.width()) * size.height(); }
};

} // namespace LumetraHost
