// SPDX-License-Identifier: MIT
#include "Zorvik/Util/ImageUtils.h"

#include "Zorvik/Proc/Frame.h"

namespace Zorvik::Util {

IImageConverter::~IImageConverter() = default;

QImage ImageUtils::FrameToImage(const Proc::Frame& frame, const IImageConverter& converter)
{
    if (frame.IsNull())
        return QImage();
    const Proc::Frame display = converter.ToDisplay(frame);
    if (display.IsNull())
        return QImage();
    // The image keeps the buffer alive through a reference of its own, dropped with its last copy.
    using Pixels = decltype(display.pixels);
    auto* owner = new Pixels(display.pixels);
    // Bytes that are const make painting on the image detach it instead of writing into the frame.
    const uchar* bytes = owner->get();
    return QImage(
        bytes, display.width, display.height, static_cast<int>(display.stride),
        QImage::Format_RGBA8888_Premultiplied,
        [](void* info) { delete static_cast<Pixels*>(info); }, owner);
}

} // namespace Zorvik::Util
