// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <QImage>
#include <QMetaType>
#include <QRect>
#include <QRectF>
#include <QSize>

namespace LumetraHost {

/// The part of the photo that a canvas wants to see.
struct ViewRequest
{
    QRectF part; ///< of the photo, in its pixels; what lies outside of the photo is left out
    QSize size;  ///< of that part on the screen, in device pixels
};

inline bool operator==(const ViewRequest& first, const ViewRequest& second)
{
    return first.part == second.part && first.size == second.size;
}

/// A picture for a canvas, to be drawn over `part` of the photo whatever its size: the part
/// contains the requested one, as far as the photo goes, and may be larger, which the canvas cuts
/// off; the picture has as many pixels as the screen shows there, but never more than the photo
/// has.
struct ViewFrame
{
    /// In the photo's space, or in that of the screen where a drag is shown; see
    /// Image::GetSpace(). Null without a photo, and when nothing of it is to be seen.
    Image picture;
    /// `picture` in the monitor's colours, in sRGB without a display profile; may share its pixels.
    Image shown;
    QRect part;             ///< of the photo, in its pixels
    quint64 serial = 0;     ///< counts upwards; a frame of the same serial is a better one
    bool isReduced = false; ///< a first preview, of fewer pixels or not exact; a full one follows
    bool isOpaque = true;   ///< every alpha is full

    /// The shown picture as a QImage: RGBX8888 or RGBX64 when opaque, else RGBA8888 or RGBA64
    /// (straight alpha). It shares the pixels and may outlive the frame.
    QImage ToQImage() const { return WrapImage(shown, isOpaque); }

    /// A picture as a QImage that shares its pixels; a null one for a null picture. Read only.
    static QImage WrapImage(const Image& picture, bool isOpaque);
};

} // namespace LumetraHost

Q_DECLARE_METATYPE(LumetraHost::ViewFrame)
