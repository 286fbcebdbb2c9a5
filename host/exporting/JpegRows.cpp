// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/JpegRows.h"

#include "exporting/ExportStream.h"
#include "image/DepthConversion.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/MetadataReader.h"
#include "photo/metadata/MetadataWriter.h"

namespace LumetraHost {

std::unique_ptr<JpegRows> JpegRows::Open(const Bytes& content, const std::string& name)
{
    if (DetectPhotoFormat(content) != PhotoFormat::Jpeg)
        return nullptr;
    std::unique_ptr<JpegRows> rows(new JpegRows(content, name));
    const JpegRowReader& reader = rows->m_reader;
    auto read = MetadataReader::Read(content, {}, rows->m_warnings);
    QByteArray profile = reader.GetProfile();
    if (profile.isEmpty() && read.adobeRgb && reader.GetMeaning() == PixelMeaning::Rgb)
        profile = ColorConversion::GetAdobeRgbProfile();
    const auto kept = ColorConversion::FindKept(reader.GetMeaning(), profile, Image::Depth::Bits8);
    if (read.orientation > 1 || reader.IsProfileDamaged() || !kept)
        return nullptr;
    read.metadata.iccProfile = profile;
    rows->m_space = kept->space;
    rows->m_metadata = MetadataWriter::Normalise(
        read.metadata, reader.GetWidth(), reader.GetHeight(), !kept->space, rows->m_warnings);
    return rows;
}

PictureForm JpegRows::GetForm() const
{
    return {m_reader.GetWidth(), m_reader.GetHeight(), Image::Depth::Bits8, true, m_space};
}

void JpegRows::Read(int /*y*/, int count, Image& rows, int first)
{
    if (rows.GetDepth() == Image::Depth::Bits8)
        return m_reader.Read(rows, first, count);
    if (m_narrow.GetHeight() < count)
        m_narrow = Image::AllocateUninitialised(m_reader.GetWidth(), count, Image::Depth::Bits8);
    m_reader.Read(m_narrow, 0, count);
    CopyRows(m_narrow, 0, rows, first, count);
}

Image JpegRows::Reduce(int width, int height, int threads, ThreadPool& pool,
                       const CancelToken* cancel) const
{
    JpegRows again(m_content, m_name);
    ExportStream stream(again, Image::Depth::Bits8, threads);
    stream.ShrinkTo(width, height);
    Image reduced = Image::AllocateUninitialised(width, height, Image::Depth::Bits8, m_space);
    int y = 0;
    const auto keep = [&reduced, &y](const Image& rows, int first, int count) {
        CopyRows(rows, first, reduced, y, count);
        y += count;
    };
    return stream.Run(keep, pool, cancel) ? reduced : Image();
}

} // namespace LumetraHost
