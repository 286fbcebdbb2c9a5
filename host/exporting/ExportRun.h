// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/Export.h"
#include "exporting/RowSource.h"

namespace LumetraHost {

class ExportStream;

/// One export from the rows of a picture to the bytes of a file. Made and used by Export, once.
class ExportRun
{
public:
    /// All are kept by reference. `losses` grows.
    ExportRun(const ExportRecipe& recipe, const std::string& targetName,
              const ExportControl& control, ThreadPool& pool, Warnings& losses);

    /// Empty when it was cancelled. `metadata`: the photo's.
    Bytes Run(RowSource& source, const PhotoMetadata& metadata);

private:
    /// A part of the progress.
    struct Percent
    {
        int from;
        int to;
    };

    bool IsCancelled() const { return m_control.cancel && m_control.cancel->IsCancelled(); }
    void Report(int percent);
    PhotoMetadata SettleSpace(const std::shared_ptr<const RgbSpace>& space, PhotoMetadata metadata);
    void AddDrawing(ExportStream& stream, const PictureForm& source, Image::Depth depth);
    Image Collect(RowSource& source, const PictureForm& form);
    Bytes Encode(RowSource& source, const PictureForm& form, bool isDrawn);
    bool Stream(RowSource& source, const PictureForm& form, bool isDrawn, Percent percent,
                const std::function<void(const Image&, int, int)>& write);

    const ExportRecipe& m_recipe;
    const std::string& m_targetName;
    const ExportControl& m_control;
    ThreadPool& m_pool;
    Warnings& m_losses;
    PhotoMetadata m_metadata;
    bool m_isConverted = false; ///< the file is sRGB, the photo is not
    int m_threads;
    int m_reported = -1;
};

} // namespace LumetraHost
