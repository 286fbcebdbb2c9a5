// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/RowSource.h"

namespace LumetraHost {

/// The rows of a picture in memory, which is only read.
class PictureRows : public RowSource
{
public:
    explicit PictureRows(const Image& picture);

    PictureForm GetForm() const override { return m_form; }
    bool IsInOrder() const override { return false; }
    void Read(int y, int count, Image& rows, int first) override;
    Image Reduce(int width, int height, int threads, ThreadPool& pool,
                 const CancelToken* cancel) const override;

private:
    const Image m_picture;
    const PictureForm m_form;
};

} // namespace LumetraHost
