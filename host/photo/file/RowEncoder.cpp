// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/RowEncoder.h"

namespace LumetraHost {

PictureForm DescribeForm(const Image& image)
{
    return {image.GetWidth(), image.GetHeight(), image.GetDepth(), image.IsOpaque(),
            image.GetSpace()};
}

} // namespace LumetraHost
