// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/MetadataWriter.h"

#include "photo/metadata/ExtendedXmp.h"
#include "photo/metadata/MetadataTags.h"

#include <string>
#include <utility>

#include <exiv2/error.hpp>
#include <zlib.h>

namespace LumetraHost {
namespace {

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

/// Adds the blocks that are not empty to those of the file.
Bytes WriteBlocks(const Bytes& encoded, const PhotoMetadata& metadata)
{
    const auto file = Exiv2::ImageFactory::open(encoded.data(), static_cast<long>(encoded.size()));
    const auto lock = MetadataTags::LockXmp();
    file->readMetadata();
    if (!metadata.exif.isEmpty()) {
        Exiv2::ExifData tags;
        file->setByteOrder(MetadataTags::DecodeExif(metadata.exif, tags));
        // Adds to the tags that a TIFF file needs for its pixels.
        for (const auto& tag : tags)
            file->exifData()[tag.key()] = tag.value();
    }
    if (!metadata.iptc.isEmpty())
        file->setIptcData(MetadataTags::DecodeIptc(metadata.iptc));
    if (!metadata.xmp.isEmpty()) {
        // Each format looks at another copy of the packet. The setter would decode it, which not
        // all packets allow.
        file->xmpData().setPacket(metadata.xmp.toStdString());
        file->xmpData().usePacket(true);
        file->xmpPacket() = metadata.xmp.toStdString();
        file->writeXmpFromPacket(true);
    }
    file->writeMetadata();

    Exiv2::BasicIo& io = file->io();
    if (io.open() != 0)
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the result cannot be read back");
    const Exiv2::byte* const data = io.mmap();
    return Bytes(data, data + io.size());
}

/// Writes one block after the other, so that one that fails costs none of the others. XMP is the
/// last, because a packet that cannot be decoded would not survive another pass.
Bytes WriteEach(Bytes encoded, const PhotoMetadata& metadata, Warnings& warnings)
{
    const auto add = [&](const char* name, QByteArray PhotoMetadata::*block) {
        PhotoMetadata one;
        one.*block = metadata.*block;
        if (!one.IsEmpty())
            TryOrWarn(warnings,
                      std::string("the ") + name + " data cannot be written and are left out",
                      [&] { encoded = WriteBlocks(encoded, one); });
    };
    add("EXIF", &PhotoMetadata::exif);
    add("IPTC", &PhotoMetadata::iptc);
    add("XMP", &PhotoMetadata::xmp);
    return encoded;
}

void AppendBigEndian(Bytes& bytes, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

/// Inserts the chunk behind the header chunk, which comes first in every PNG file.
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

/// Removes thumbnails from a packet that holds both parts: being large, they often stand in the
/// extension.
PhotoMetadata WithoutHiddenThumbnails(const PhotoMetadata& metadata)
{
    PhotoMetadata result = metadata;
    if (!metadata.xmpExtension.contains("Thumbnails"))
        return result;
    if (const auto merged = ExtendedXmp{metadata.xmp, metadata.xmpExtension}.Merge()) {
        result.xmp = *merged;
        result.xmpExtension.clear();
    }
    return result;
}

} // namespace

PhotoMetadata MetadataWriter::Normalise(const PhotoMetadata& metadata, int width, int height,
                                        bool isSrgb, Warnings& warnings)
{
    MetadataTags::Initialise();
    PhotoMetadata result = WithoutHiddenThumbnails(metadata);
    result.exif.clear();
    if (!metadata.exif.isEmpty())
        TryOrWarn(warnings, "the EXIF data cannot be adapted and are left out", [&] {
            Exiv2::ExifData tags;
            const Exiv2::ByteOrder order = MetadataTags::DecodeExif(metadata.exif, tags);
            MetadataTags::Normalise(tags, width, height, isSrgb);
            result.exif = MetadataTags::EncodeExif(tags, order);
        });
    TryOrWarn(warnings, "the XMP packet cannot be adapted and is carried over as it is", [&] {
        result.xmp = MetadataTags::NormaliseXmp(result.xmp, width, height, isSrgb, warnings);
    });
    return result;
}

std::optional<MetadataWriter::Resolution>
MetadataWriter::GetResolution(const PhotoMetadata& metadata)
{
    if (metadata.exif.isEmpty())
        return std::nullopt;
    MetadataTags::Initialise();
    Exiv2::ExifData tags;
    MetadataTags::DecodeExif(metadata.exif, tags);
    return ReadResolution(tags);
}

QByteArray MetadataWriter::JoinXmp(const PhotoMetadata& metadata, Warnings& warnings)
{
    const auto merged = ExtendedXmp{metadata.xmp, metadata.xmpExtension}.Merge();
    if (!merged)
        Warn(warnings, MetadataTags::ExtensionIsLost);
    return merged.value_or(metadata.xmp);
}

Bytes MetadataWriter::Embed(Bytes encoded, PhotoFormat format, const PhotoMetadata& metadata,
                            Warnings& warnings)
{
    MetadataTags::Initialise();
    PhotoMetadata blocks;
    blocks.iptc = metadata.iptc;
    blocks.xmp = JoinXmp(metadata, warnings);
    // The metadata library would hide the block in a text chunk that few programs read.
    const bool ownExif = format == PhotoFormat::Png;
    if (!ownExif)
        blocks.exif = metadata.exif;
    if (!blocks.IsEmpty()) {
        try {
            encoded = WriteBlocks(encoded, blocks);
        } catch (const Exiv2::AnyError&) {
            encoded = WriteEach(std::move(encoded), blocks, warnings);
        }
    }
    if (ownExif && !metadata.exif.isEmpty())
        InsertExifChunk(encoded, metadata.exif);
    return encoded;
}

} // namespace LumetraHost
