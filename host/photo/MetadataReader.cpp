// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/MetadataReader.h"

#include "photo/MetadataTags.h"

#include <exception>

namespace LumetraHost {
namespace {

constexpr long AdobeRgbColorSpace = 2; // outside the standard, but written by several makers

int GetOrientation(const Exiv2::ExifData& tags)
{
    const auto tag = tags.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    if (tag == tags.end() || tag->count() < 1)
        return 0;
    const long value = tag->toLong();
    return value >= 1 && value <= 8 ? static_cast<int>(value) : 0;
}

bool SaysAdobeRgb(const Exiv2::ExifData& tags)
{
    const auto index = tags.findKey(Exiv2::ExifKey("Exif.Iop.InteroperabilityIndex"));
    if (index != tags.end() && index->toString() == "R03")
        return true;
    const auto space = tags.findKey(Exiv2::ExifKey("Exif.Photo.ColorSpace"));
    return space != tags.end() && space->count() == 1 && space->toLong() == AdobeRgbColorSpace;
}

/// Runs one block's reading; a block that cannot be read is told of and left out.
template <class Reading>
void Try(const std::string& block, std::vector<std::string>& warnings, const Reading& reading)
{
    try {
        reading();
    } catch (const std::exception& error) {
        warnings.push_back("the " + block + " cannot be read and are left out: " + error.what());
    }
}

void ReadExif(Exiv2::ExifData tags, Exiv2::ByteOrder order, MetadataReader::Result& result,
              std::vector<std::string>& warnings)
{
    result.orientation = GetOrientation(tags);
    result.adobeRgb = SaysAdobeRgb(tags);
    MetadataTags::RemoveStorageTags(tags);
    Exiv2::ExifThumb(tags).erase();
    result.metadata.exif = MetadataTags::EncodeExif(tags, order);

    // The encoder drops the largest fields of a block that would not fit a JPEG file.
    Exiv2::ExifData kept;
    if (!result.metadata.exif.isEmpty())
        MetadataTags::DecodeExif(result.metadata.exif, kept);
    if (kept.count() < tags.count())
        warnings.push_back(std::to_string(tags.count() - kept.count()) +
                           " EXIF fields are too large and are left out");
}

void ReadExifBlock(const QByteArray& exif, MetadataReader::Result& result,
                   std::vector<std::string>& warnings)
{
    Try("EXIF data", warnings, [&] {
        Exiv2::ExifData tags;
        const Exiv2::ByteOrder order = MetadataTags::DecodeExif(exif, tags);
        ReadExif(tags, order, result, warnings);
    });
}

/// As it stands in the file; of formats that deliver the properties alone, a packet made of them.
QByteArray GetXmpPacket(Exiv2::Image& file)
{
    file.writeXmpFromPacket(true);
    const QByteArray packet = QByteArray::fromStdString(file.xmpPacket());
    if (!packet.isEmpty())
        return packet;
    file.writeXmpFromPacket(false);
    return QByteArray::fromStdString(file.xmpPacket());
}

void ReadFile(const Bytes& content, bool withExif, std::vector<std::string>& warnings,
              MetadataReader::Result& result)
{
    const auto file = Exiv2::ImageFactory::open(content.data(), static_cast<long>(content.size()));
    file->readMetadata();
    if (withExif)
        Try("EXIF data", warnings,
            [&] { ReadExif(file->exifData(), file->byteOrder(), result, warnings); });
    Try("IPTC data", warnings,
        [&] { result.metadata.iptc = MetadataTags::EncodeIptc(file->iptcData()); });
    result.metadata.xmp = GetXmpPacket(*file);
}

} // namespace

MetadataReader::Result MetadataReader::Read(const Bytes& content, const QByteArray& exif,
                                            std::vector<std::string>& warnings)
{
    MetadataTags::Initialise();
    Result result;
    Try("metadata", warnings, [&] { ReadFile(content, exif.isEmpty(), warnings, result); });
    if (!exif.isEmpty())
        ReadExifBlock(exif, result, warnings);
    return result;
}

MetadataReader::Result MetadataReader::ReadBlocks(const QByteArray& exif, const QByteArray& xmp,
                                                  std::vector<std::string>& warnings)
{
    MetadataTags::Initialise();
    Result result;
    result.metadata.xmp = xmp;
    if (!exif.isEmpty())
        ReadExifBlock(exif, result, warnings);
    return result;
}

} // namespace LumetraHost
