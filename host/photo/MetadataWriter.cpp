// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/MetadataWriter.h"

#include "photo/MetadataTags.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <exception>

#include <exiv2/error.hpp>
#include <zlib.h>

namespace LumetraHost {
namespace {

template <class Work>
auto Run(const std::string& name, const Work& work)
{
    try {
        return work();
    } catch (const std::exception& error) {
        throw Zorvik::Exception(name + ": the metadata cannot be written: " + error.what(),
                                BOOST_CURRENT_FUNCTION, "photo/MetadataWriter", __LINE__);
    }
}

std::optional<MetadataWriter::Resolution> ReadResolution(const Exiv2::ExifData& tags)
{
    const auto x = tags.findKey(Exiv2::ExifKey("Exif.Image.XResolution"));
    const auto y = tags.findKey(Exiv2::ExifKey("Exif.Image.YResolution"));
    const auto unit = tags.findKey(Exiv2::ExifKey("Exif.Image.ResolutionUnit"));
    if (x == tags.end() || y == tags.end() || !(x->toFloat() > 0) || !(y->toFloat() > 0))
        return std::nullopt;
    constexpr long centimetre = 3;
    MetadataWriter::Resolution resolution;
    resolution.x = static_cast<double>(x->toFloat());
    resolution.y = static_cast<double>(y->toFloat());
    resolution.perCentimetre = unit != tags.end() && unit->toLong() == centimetre;
    return resolution;
}

Bytes WriteBlocks(const Bytes& encoded, bool withExif, const PhotoMetadata& metadata)
{
    const auto file = Exiv2::ImageFactory::open(encoded.data(), static_cast<long>(encoded.size()));
    file->readMetadata();
    if (withExif) {
        Exiv2::ExifData tags;
        file->setByteOrder(MetadataTags::DecodeExif(metadata.exif, tags));
        // Beside the tags that a TIFF file needs for its pixels.
        for (const auto& tag : tags)
            file->exifData()[tag.key()] = tag.value();
    }
    if (!metadata.iptc.isEmpty())
        file->setIptcData(MetadataTags::DecodeIptc(metadata.iptc));
    if (!metadata.xmp.isEmpty()) {
        file->setXmpPacket(metadata.xmp.toStdString());
        file->writeXmpFromPacket(true);
    }
    file->writeMetadata();

    Exiv2::BasicIo& io = file->io();
    if (io.open() != 0)
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the result cannot be read back");
    const Exiv2::byte* const data = io.mmap();
    return Bytes(data, data + io.size());
}

/// A JPEG file as far as the metadata library looks: the start, the JFIF segment, one of another
/// kind and an empty scan.
Bytes MakeCarrier()
{
    return {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 'J',  'F',  'I',  'F',  0x00, 0x01, 0x01,
            0x00, 0x00, 0x01, 0x00, 0x01, 0x00, 0x00, 0xFF, 0xDB, 0x00, 0x03, 0x00, 0xFF,
            0xDA, 0x00, 0x08, 0x01, 0x01, 0x00, 0x00, 0x3F, 0x00, 0xFF, 0xD9};
}

/// The application segments before the picture, without that of JFIF.
std::vector<MetadataWriter::JpegBlock> FindBlocks(const Bytes& jpeg)
{
    constexpr int firstApplication = 0xE0;
    constexpr int lastApplication = 0xEF;
    std::vector<MetadataWriter::JpegBlock> blocks;
    std::size_t position = 2;
    while (position + 4 <= jpeg.size()) {
        const int marker = jpeg[position + 1];
        if (marker < firstApplication || marker > lastApplication)
            break;
        const std::size_t size = jpeg[position + 2] * 256u + jpeg[position + 3];
        const auto* const content = reinterpret_cast<const char*>(jpeg.data() + position + 4);
        if (marker != firstApplication)
            blocks.push_back({marker, QByteArray(content, static_cast<int>(size) - 2)});
        position += 2 + size;
    }
    return blocks;
}

void AppendBigEndian(Bytes& bytes, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

/// Behind the header chunk, which comes first in every PNG file.
void InsertExifChunk(Bytes& png, const QByteArray& exif)
{
    constexpr std::ptrdiff_t headerEnd = 33;
    constexpr std::size_t lengthSize = 4;
    Bytes chunk;
    AppendBigEndian(chunk, static_cast<std::uint32_t>(exif.size()));
    chunk.insert(chunk.end(), {'e', 'X', 'I', 'f'});
    chunk.insert(chunk.end(), exif.begin(), exif.end());
    const auto checked = static_cast<uInt>(chunk.size() - lengthSize);
    AppendBigEndian(chunk,
                    static_cast<std::uint32_t>(crc32(0, chunk.data() + lengthSize, checked)));
    png.insert(png.begin() + headerEnd, chunk.begin(), chunk.end());
}

} // namespace

PhotoMetadata MetadataWriter::Normalise(const PhotoMetadata& metadata, int width, int height,
                                        const std::string& name)
{
    MetadataTags::Initialise();
    return Run(name, [&] {
        PhotoMetadata result = metadata;
        if (!metadata.exif.isEmpty()) {
            Exiv2::ExifData tags;
            const Exiv2::ByteOrder order = MetadataTags::DecodeExif(metadata.exif, tags);
            MetadataTags::Normalise(tags, width, height);
            result.exif = MetadataTags::EncodeExif(tags, order);
        }
        result.xmp = MetadataTags::NormaliseXmp(metadata.xmp, width, height);
        return result;
    });
}

PhotoMetadata MetadataWriter::NormaliseOrDrop(const PhotoMetadata& metadata, int width, int height,
                                              const std::string& name,
                                              std::vector<std::string>& warnings)
{
    try {
        return Normalise(metadata, width, height, name);
    } catch (const Zorvik::Exception& error) {
        warnings.push_back(error.GetDescription() + "; EXIF and XMP are left out");
    }
    PhotoMetadata result = metadata;
    result.exif.clear();
    result.xmp.clear();
    return result;
}

std::optional<MetadataWriter::Resolution>
MetadataWriter::GetResolution(const PhotoMetadata& metadata, const std::string& name)
{
    if (metadata.exif.isEmpty())
        return std::nullopt;
    MetadataTags::Initialise();
    return Run(name, [&] {
        Exiv2::ExifData tags;
        MetadataTags::DecodeExif(metadata.exif, tags);
        return ReadResolution(tags);
    });
}

std::vector<MetadataWriter::JpegBlock> MetadataWriter::MakeJpegBlocks(const PhotoMetadata& metadata,
                                                                      const std::string& name)
{
    if (metadata.exif.isEmpty() && metadata.xmp.isEmpty() && metadata.iptc.isEmpty())
        return {};
    return FindBlocks(Embed(MakeCarrier(), PhotoFormat::Jpeg, metadata, name));
}

Bytes MetadataWriter::Embed(Bytes encoded, PhotoFormat format, const PhotoMetadata& metadata,
                            const std::string& name)
{
    MetadataTags::Initialise();
    return Run(name, [&] {
        // The metadata library would hide the block in a text chunk that few programs read.
        const bool ownExif = format == PhotoFormat::Png;
        const bool hasExif = !metadata.exif.isEmpty();
        if (!metadata.xmp.isEmpty() || !metadata.iptc.isEmpty() || (hasExif && !ownExif))
            encoded = WriteBlocks(encoded, hasExif && !ownExif, metadata);
        if (hasExif && ownExif)
            InsertExifChunk(encoded, metadata.exif);
        return std::move(encoded);
    });
}

} // namespace LumetraHost
