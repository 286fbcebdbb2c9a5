// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QImage>

namespace Zorvik::Proc {
struct Frame;
}

namespace Zorvik::Util {

/// Converts rendered frames for the display. The host implements it.
class ZORVIKPLATFORM_EXPORT IImageConverter
{
public:
    /// Returns `frame` as Rgba8Premultiplied in the display's colours and of the same size. The
    /// result may share the pixels of `frame`, which are not written. A null frame stays null.
    virtual Proc::Frame ToDisplay(const Proc::Frame& frame) const = 0;

    virtual ~IImageConverter();
};

/// Makes Qt images of frames.
class ZORVIKPLATFORM_EXPORT ImageUtils
{
public:
    /// Returns the frame, converted by `converter`, as a QImage of Format_RGBA8888_Premultiplied.
    /// The image shares the converted frame's buffer and keeps it alive; painting on the image
    /// copies it first. A null frame gives a null image.
    static QImage FrameToImage(const Proc::Frame& frame, const IImageConverter& converter);
};

} // namespace Zorvik::Util
