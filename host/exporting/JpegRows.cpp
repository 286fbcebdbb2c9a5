// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/JpegRows.h"

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
    const QByteArray profile = reader.GetProfile();
    const bool isOtherSpace = profile.isEmpty() && read.adobeRgb;
    if (read.orientation > 1 || isOtherSpace || reader.IsProfileDamaged() ||
        !ColorConversion::IsSrgb(reader.GetMeaning(), profile))
        return nullptr;
    read.metadata.iccProfile = profile;
    rows->m_metadata = MetadataWriter::Normalise(read.metadata, reader.GetWidth(),
                                                 reader.GetHeight(), rows->m_warnings);
    return rows;
}

PictureForm JpegRows::GetForm() const
{
    return {m_reader.GetWidth(), m_reader.GetHeight(), Image::Depth::Bits8, true};
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

} // namespace LumetraHost
