// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/PictureRows.h"

#include "image/DepthConversion.h"
#include "image/Resize.h"

namespace LumetraHost {

PictureRows::PictureRows(const Image& picture) : m_picture(picture), m_form(DescribeForm(picture))
{
}

void PictureRows::Read(int y, int count, Image& rows, int first)
{
    CopyRows(m_picture, y, rows, first, count);
}

Image PictureRows::Reduce(int width, int height, int /*threads*/, ThreadPool& /*pool*/,
                          const CancelToken* /*cancel*/) const
{
    return Resize(m_picture, {0, 0, m_form.width, m_form.height}, width, height,
                  ResizeQuality::Fine);
}

} // namespace LumetraHost
