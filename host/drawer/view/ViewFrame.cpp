// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/ViewFrame.h"

namespace LumetraHost {
namespace {

QImage::Format GetFormat(Image::Depth depth, bool isOpaque)
{
    if (depth == Image::Depth::Bits16)
        return isOpaque ? QImage::Format_RGBX64 : QImage::Format_RGBA64;
    return isOpaque ? QImage::Format_RGBX8888 : QImage::Format_RGBA8888;
}

void ReleasePixels(void* holder)
{
    delete static_cast<Image*>(holder);
}

} // namespace

QImage ViewFrame::WrapImage(const Image& picture, bool isOpaque)
{
    if (picture.IsNull())
        return {};
    auto* const holder = new Image(picture);
    // Const pixels: Qt copies them before anybody writes.
    const uchar* const pixels = static_cast<const Image*>(holder)->Row(0);
    return QImage(pixels, picture.GetWidth(), picture.GetHeight(),
                  static_cast<int>(picture.GetStride()), GetFormat(picture.GetDepth(), isOpaque),
                  ReleasePixels, holder);
}

} // namespace LumetraHost
