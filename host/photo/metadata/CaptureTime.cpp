// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/CaptureTime.h"

#include "photo/file/PhotoFile.h"
#include "photo/file/PhotoFormat.h"
#include "photo/metadata/JpegMetadata.h"
#include "photo/metadata/MetadataTags.h"

#include <QString>

#include <exiv2/exiv2.hpp>

#include <exception>

namespace LumetraHost {
namespace {

/// Cameras write the EXIF block in front; in a raw file it is part of the first directories.
constexpr std::size_t StartSize = 256 * 1024; // bytes

/// An EXIF block at the beginning of a file.
Exiv2::ExifData ReadTags(const Bytes& start)
{
    Exiv2::ExifData tags;
    if (DetectPhotoFormat(start) == PhotoFormat::Jpeg) {
        Warnings warnings; // damage elsewhere in the file is nothing to the time
        MetadataTags::DecodeExif(JpegMetadata::Read(start, warnings).exif, tags);
        return tags;
    }
    const auto file = Exiv2::ImageFactory::open(start.data(), static_cast<long>(start.size()));
    const auto lock = MetadataTags::LockXmp();
    file->readMetadata();
    return file->exifData();
}

QString FindText(const Exiv2::ExifData& tags, const char* key)
{
    const auto tag = tags.findKey(Exiv2::ExifKey(key));
    return tag == tags.end() ? QString() : QString::fromStdString(tag->toString()).trimmed();
}

QDateTime ReadTime(const Exiv2::ExifData& tags)
{
    const auto time = QDateTime::fromString(FindText(tags, "Exif.Photo.DateTimeOriginal"),
                                            QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    const QString fraction = FindText(tags, "Exif.Photo.SubSecTimeOriginal");
    bool isNumber = false;
    const double seconds = (QStringLiteral("0.") + fraction).toDouble(&isNumber);
    return isNumber ? time.addMSecs(static_cast<qint64>(seconds * 1000)) : time;
}

} // namespace

QDateTime CaptureTime::Find(const QString& path)
{
    MetadataTags::Initialise();
    try {
        PhotoFile file(path);
        return ReadTime(ReadTags(file.ReadPart(0, StartSize)));
    } catch (const std::exception&) {
        return {}; // the caller goes by the file's own time
    }
}

} // namespace LumetraHost
