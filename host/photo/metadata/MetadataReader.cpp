// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/MetadataReader.h"

#include "photo/metadata/JpegMetadata.h"
#include "photo/metadata/MetadataTags.h"

#include <string>
#include <vector>

namespace LumetraHost {
namespace {

std::string Unreadable(const std::string& block)
{
    return "the " + block + " cannot be read and are left out";
}

void ReadExif(Exiv2::ExifData tags, Exiv2::ByteOrder order, MetadataReader::Result& result)
{
    result.orientation = MetadataTags::GetOrientation(tags);
    result.adobeRgb = MetadataTags::SaysAdobeRgb(tags);
    MetadataTags::RemoveStorageTags(tags);
    Exiv2::ExifThumb(tags).erase();
    result.metadata.exif = MetadataTags::EncodeExif(tags, order);
}

void ReadExifBlock(const QByteArray& exif, MetadataReader::Result& result, Warnings& warnings)
{
    TryOrWarn(warnings, Unreadable("EXIF data"), [&] {
        Exiv2::ExifData tags;
        const Exiv2::ByteOrder order = MetadataTags::DecodeExif(exif, tags);
        ReadExif(tags, order, result);
    });
}

/// The bytes of a tag's value; empty when there is no such tag.
QByteArray GetTagBytes(Exiv2::Image& file, const char* key)
{
    const Exiv2::ExifData& tags = file.exifData();
    const auto tag = tags.findKey(Exiv2::ExifKey(key));
    if (tag == tags.end())
        return {};
    std::vector<Exiv2::byte> bytes(static_cast<std::size_t>(tag->size()));
    tag->copy(bytes.data(), file.byteOrder());
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()));
}

/// The packet as it stands in the file, without trailing zeros, with which TIFF files may fill it
/// up; from formats that deliver the properties alone, a packet made of them.
QByteArray GetXmpPacket(Exiv2::Image& file)
{
    QByteArray packet = GetTagBytes(file, "Exif.Image.XMLPacket");
    while (packet.endsWith('\0'))
        packet.chop(1);
    if (!packet.isEmpty())
        return packet;
    file.writeXmpFromPacket(true);
    packet = QByteArray::fromStdString(file.xmpPacket());
    if (!packet.isEmpty())
        return packet;
    file.writeXmpFromPacket(false);
    return QByteArray::fromStdString(file.xmpPacket());
}

/// The IPTC block. Decodes it again when the metadata library found none: that drops damaged
/// records silently.
QByteArray GetIptc(Exiv2::Image& file)
{
    if (file.iptcData().empty())
        MetadataTags::DecodeIptc(GetTagBytes(file, "Exif.Image.IPTCNAA"));
    return MetadataTags::EncodeIptc(file.iptcData());
}

void ReadFile(const Bytes& content, bool withExif, Warnings& warnings,
              MetadataReader::Result& result)
{
    const auto file = Exiv2::ImageFactory::open(content.data(), static_cast<long>(content.size()));
    {
        const auto lock = MetadataTags::LockXmp();
        file->readMetadata();
    }
    if (withExif)
        TryOrWarn(warnings, Unreadable("EXIF data"),
                  [&] { ReadExif(file->exifData(), file->byteOrder(), result); });
    TryOrWarn(warnings, Unreadable("IPTC data"), [&] { result.metadata.iptc = GetIptc(*file); });
    result.metadata.xmp = GetXmpPacket(*file);
}

/// Reads block by block, since the metadata library reads no extended XMP and is silent about
/// damage.
MetadataReader::Result ReadJpeg(const Bytes& content, Warnings& warnings)
{
    MetadataReader::Result result;
    const PhotoMetadata stored = JpegMetadata::Read(content, warnings);
    result.metadata.xmp = stored.xmp;
    result.metadata.xmpExtension = stored.xmpExtension;
    if (!stored.exif.isEmpty())
        ReadExifBlock(stored.exif, result, warnings);
    TryOrWarn(warnings, Unreadable("IPTC data"), [&] {
        result.metadata.iptc = MetadataTags::EncodeIptc(MetadataTags::DecodeIptc(stored.iptc));
    });
    return result;
}

} // namespace

MetadataReader::Result MetadataReader::Read(const Bytes& content, const QByteArray& exif,
                                            Warnings& warnings)
{
    MetadataTags::Initialise();
    if (DetectPhotoFormat(content) == PhotoFormat::Jpeg)
        return ReadJpeg(content, warnings);
    Result result;
    TryOrWarn(warnings, Unreadable("metadata"),
              [&] { ReadFile(content, exif.isEmpty(), warnings, result); });
    if (!exif.isEmpty())
        ReadExifBlock(exif, result, warnings);
    return result;
}

MetadataReader::Result MetadataReader::ReadBlocks(const QByteArray& exif, const QByteArray& xmp,
                                                  Warnings& warnings)
{
    MetadataTags::Initialise();
    Result result;
    result.metadata.xmp = xmp;
    if (!exif.isEmpty())
        ReadExifBlock(exif, result, warnings);
    return result;
}

} // namespace LumetraHost
