// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QImage>

namespace Zorvik::Proc {
struct Frame;
}

namespace Zorvik::Util {

/// Converts rendered frames to what the display shows.
class ZORVIKPLATFORM_EXPORT IImageConverter
{
public:
    /// `frame` as Rgba8Premultiplied in display colours. A null frame stays null.
    virtual Proc::Frame ToDisplay(const Proc::Frame& frame) const = 0;

    virtual ~IImageConverter();
};

class ZORVIKPLATFORM_EXPORT ImageUtils
{
public:
    /// The converted frame as a QImage of Format_RGBA8888_Premultiplied that shares its buffer;
    /// a null image for a null frame.
    static QImage FrameToImage(const Proc::Frame& frame, const IImageConverter& converter);
};

} // namespace Zorvik::Util
