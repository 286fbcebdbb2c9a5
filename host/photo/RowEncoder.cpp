// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/RowEncoder.h"

#include "photo/RowWriter.h"

namespace LumetraHost {

PictureForm DescribeForm(const Image& image)
{
    return {image.GetWidth(), image.GetHeight(), image.GetDepth(), IsOpaque(image)};
}

} // namespace LumetraHost
