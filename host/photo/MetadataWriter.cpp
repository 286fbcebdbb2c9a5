// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/MetadataWriter.h"

#include "photo/MetadataTags.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <exception>

#include <exiv2/error.hpp>

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

Bytes WriteBlocks(const Bytes& encoded, bool withExif, const PhotoMetadata& metadata)
{
    const auto file = Exiv2::ImageFactory::open(encoded.data(), static_cast<long>(encoded.size()));
    file->readMetadata();
    if (withExif && !metadata.exif.isEmpty()) {
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

Bytes MetadataWriter::Embed(Bytes encoded, PhotoFormat format, const PhotoMetadata& metadata,
                            const std::string& name)
{
    const bool withExif = format != PhotoFormat::Png;
    if (metadata.xmp.isEmpty() && metadata.iptc.isEmpty() && (metadata.exif.isEmpty() || !withExif))
        return encoded;
    MetadataTags::Initialise();
    return Run(name, [&] { return WriteBlocks(encoded, withExif, metadata); });
}

} // namespace LumetraHost
