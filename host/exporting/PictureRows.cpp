// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/PictureRows.h"

#include "image/Resize.h"

namespace LumetraHost {

PictureRows::PictureRows(const KeptImage& picture)
    : m_picture(picture), m_form(DescribeForm(picture))
{
}

void PictureRows::Read(int y, int count, Image& rows, int first)
{
    m_picture.CopyRows(y, count, rows, first);
}

Image PictureRows::Reduce(int width, int height, int /*threads*/, ThreadPool& /*pool*/,
                          const CancelToken* /*cancel*/) const
{
    return Resize(m_picture, {0, 0, m_form.width, m_form.height}, width, height,
                  ResizeQuality::Fine);
}

} // namespace LumetraHost
