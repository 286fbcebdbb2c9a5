// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/PictureRows.h"

#include "image/DepthConversion.h"

namespace LumetraHost {

PictureRows::PictureRows(const Image& picture) : m_picture(picture), m_form(DescribeForm(picture))
{
}

void PictureRows::Read(int y, int count, Image& rows, int first)
{
    CopyRows(m_picture, y, rows, first, count);
}

} // namespace LumetraHost
