// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/RowSource.h"
#include "photo/jpeg/JpegRowReader.h"
#include "photo/metadata/PhotoMetadata.h"

#include <memory>
#include <string>

namespace LumetraHost {

/// The rows of a JPEG file that need neither be turned nor converted, decoded while they are asked
/// for: such a photo never has to be whole in memory.
class JpegRows : public RowSource
{
public:
    /// Null for a file that has to be turned or converted, and so be read whole. `content` is kept
    /// by reference. Zorvik::Exception that begins with `name` for a damaged header.
    static std::unique_ptr<JpegRows> Open(const Bytes& content, const std::string& name);

    /// Metadata equal to those that PhotoReader delivers.
    const PhotoMetadata& GetMetadata() const { return m_metadata; }
    const Warnings& GetWarnings() const { return m_warnings; }

    PictureForm GetForm() const override;
    bool IsInOrder() const override { return true; }
    void Read(int y, int count, Image& rows, int first) override;
    /// Decodes the file another time, band by band: it is never whole in memory for this either.
    Image Reduce(int width, int height, int threads, ThreadPool& pool,
                 const CancelToken* cancel) const override;

private:
    JpegRows(const Bytes& content, const std::string& name)
        : m_content(content), m_name(name), m_reader(content, name)
    {
    }

    const Bytes& m_content;
    const std::string m_name;
    JpegRowReader m_reader;
    PhotoMetadata m_metadata;
    std::shared_ptr<const RgbSpace> m_space; ///< null: sRGB
    Warnings m_warnings;
    Image m_narrow; ///< decoded rows on their way to 16 bits
};

} // namespace LumetraHost
