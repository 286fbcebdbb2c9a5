// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <opencv2/core.hpp>

namespace LumetraBench {

/// Rows of a picture as a matrix that shares its pixels. The matrix of a picture that is only read
/// must not be written; its type does not say so.
inline cv::Mat WrapRows(const LumetraHost::Image& image, int firstRow, int rows)
{
    const int type = image.GetDepth() == LumetraHost::Image::Depth::Bits16 ? CV_16UC4 : CV_8UC4;
    return {rows, image.GetWidth(), type, const_cast<std::uint8_t*>(image.Row(firstRow)),
            image.GetStride()};
}

/// All rows of a picture as a matrix.
inline cv::Mat Wrap(const LumetraHost::Image& image)
{
    return WrapRows(image, 0, image.GetHeight());
}

} // namespace LumetraBench
