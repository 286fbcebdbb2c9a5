// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/PhotoOrigin.h"

#include "photo/file/PhotoFile.h"
#include "photo/metadata/EditRecord.h"
#include "photo/metadata/JpegMetadata.h"
#include "photo/metadata/MetadataTags.h"

#include <QFile>

#include <algorithm>

#include <exiv2/exiv2.hpp>

namespace LumetraHost {
namespace {

constexpr std::size_t FirstPart = 256 * 1024; ///< bytes; most JPEG files have their blocks there
constexpr std::size_t LargestPart = 16 * 1024 * 1024;
constexpr std::size_t LargestSegment = 2 + 2 + JpegSegment::LargestContent;

/// True when the part may end within the blocks in front of the picture.
bool EndsInSegments(const Bytes& part)
{
    const auto segments = FindJpegSegments(part);
    if (segments.empty())
        return false;
    const QByteArray& last = segments.back().content;
    const auto* const end = reinterpret_cast<const std::uint8_t*>(last.constData() + last.size());
    return end + LargestSegment > part.data() + part.size();
}

Bytes ReadHead(PhotoFile& file)
{
    std::size_t size = FirstPart;
    Bytes head = file.ReadPart(0, size);
    while (DetectPhotoFormat(head) == PhotoFormat::Jpeg && head.size() < file.GetSize() &&
           size < LargestPart && EndsInSegments(head)) {
        size *= 4;
        head = file.ReadPart(0, size);
    }
    return head;
}

QString FindText(const Exiv2::ExifData& tags, const char* key)
{
    const auto tag = tags.findKey(Exiv2::ExifKey(key));
    return tag == tags.end() ? QString() : QString::fromStdString(tag->toString()).trimmed();
}

QDateTime FindTime(const Exiv2::ExifData& tags)
{
    const auto time = QDateTime::fromString(FindText(tags, "Exif.Photo.DateTimeOriginal"),
                                            QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    const QString fraction = FindText(tags, "Exif.Photo.SubSecTimeOriginal");
    bool isNumber = false;
    const double seconds = (QStringLiteral("0.") + fraction).toDouble(&isNumber);
    return isNumber ? time.addMSecs(static_cast<qint64>(seconds * 1000)) : time;
}

/// The tags at the beginning of a file: cameras write the EXIF block in front, and in a raw file it
/// is part of the first directories. Damage elsewhere in the file is nothing to them.
Exiv2::ExifData ReadTags(const Bytes& start)
{
    Exiv2::ExifData tags;
    if (DetectPhotoFormat(start) == PhotoFormat::Jpeg) {
        Warnings ignored;
        MetadataTags::DecodeExif(JpegMetadata::Read(start, ignored).exif, tags);
        return tags;
    }
    const auto file = Exiv2::ImageFactory::open(start.data(), static_cast<long>(start.size()));
    const auto lock = MetadataTags::LockXmp();
    file->readMetadata();
    return file->exifData();
}

bool HasRecords(const QByteArray& packet)
{
    try {
        return packet.contains(EditRecords::Namespace) && !EditRecords::Read(packet).empty();
    } catch (const std::exception&) {
        return false;
    }
}

PhotoOrigin ReadJpeg(const Bytes& head)
{
    Warnings ignored;
    const PhotoMetadata blocks = JpegMetadata::Read(head, ignored);
    PhotoOrigin origin;
    Exiv2::ExifData tags;
    TryOrWarn(ignored, "EXIF", [&] {
        if (!blocks.exif.isEmpty())
            MetadataTags::DecodeExif(blocks.exif, tags);
        origin.taken = FindTime(tags);
    });
    origin.hasRecords = HasRecords(blocks.xmp) || HasRecords(blocks.xmpExtension);
    return origin;
}

/// The metadata library skips the pixels of the formats that it reads.
PhotoOrigin ReadOther(const QString& path)
{
    const auto file = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    const auto lock = MetadataTags::LockXmp();
    file->readMetadata();
    PhotoOrigin origin;
    origin.taken = FindTime(file->exifData());
    std::string packet = file->xmpPacket();
    if (packet.empty() && !MetadataTags::EncodeXmp(file->xmpData(), packet))
        packet.clear();
    origin.hasRecords = HasRecords(QByteArray::fromStdString(packet));
    return origin;
}

} // namespace

PhotoOrigin PhotoOrigin::Read(const QString& path)
{
    MetadataTags::Initialise();
    try {
        PhotoFile file(path);
        const Bytes head = ReadHead(file);
        const auto format = DetectPhotoFormat(head);
        if (!format)
            return {};
        return format == PhotoFormat::Jpeg ? ReadJpeg(head) : ReadOther(path);
    } catch (const std::exception&) {
        return {};
    }
}

QDateTime PhotoOrigin::ReadTime(const QString& path)
{
    MetadataTags::Initialise();
    try {
        PhotoFile file(path);
        return FindTime(ReadTags(file.ReadPart(0, FirstPart)));
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace LumetraHost
