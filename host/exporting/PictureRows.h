// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/RowSource.h"
#include "image/KeptImage.h"

namespace LumetraHost {

/// The rows of a picture in memory, which is only read.
class PictureRows : public RowSource
{
public:
    explicit PictureRows(const KeptImage& picture);

    PictureForm GetForm() const override { return m_form; }
    bool IsInOrder() const override { return false; }
    void Read(int y, int count, Image& rows, int first) override;
    Image Reduce(int width, int height, int threads, ThreadPool& pool,
                 const CancelToken* cancel) const override;

private:
    const KeptImage m_picture;
    const PictureForm m_form;
};

} // namespace LumetraHost
