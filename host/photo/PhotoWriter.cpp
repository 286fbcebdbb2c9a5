// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoWriter.h"

#include "photo/JpegEncoder.h"
#include "photo/MetadataWriter.h"
#include "photo/PhotoLimits.h"
#include "photo/PngEncoder.h"
#include "photo/TiffEncoder.h"
#include "storage/CheckedFileWriter.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <optional>

namespace LumetraHost {
namespace {

[[noreturn]] void Fail(const std::string& name, const std::string& text)
{
    throw Zorvik::Exception(name + ": " + text, BOOST_CURRENT_FUNCTION, "photo/PhotoWriter",
                            __LINE__);
}

Bytes EncodePixels(const Photo& photo, PhotoFormat format, int quality,
                   const PhotoMetadata& metadata, const std::string& name)
{
    switch (format) {
    case PhotoFormat::Jpeg:
        return JpegEncoder::Encode(photo.image, quality, metadata.iccProfile, name);
    case PhotoFormat::Png:
        return PngEncoder::Encode(photo.image, metadata.iccProfile, name);
    case PhotoFormat::Tiff:
        return TiffEncoder::Encode(photo.image, metadata, name);
    }
    Fail(name, "unknown format");
}

} // namespace

void PhotoWriter::Write(const QString& path, const Photo& photo, const Options& options)
{
    const std::string name = path.toStdString();
    const std::optional<PhotoFormat> format = GetPhotoFormatOfName(path);
    if (!format)
        Fail(name, "expected a file name that ends in .jpg, .jpeg, .png, .tif or .tiff");
    const Bytes encoded = Encode(photo, *format, options, name);
    CheckedFileWriter::Write(path, encoded.data(), encoded.size());
}

Bytes PhotoWriter::Encode(const Photo& photo, PhotoFormat format, const Options& options,
                          const std::string& name)
{
    if (options.quality < 1 || options.quality > 100)
        Fail(name, "expected a quality from 1 to 100, found " + std::to_string(options.quality));
    const int width = photo.image.GetWidth();
    const int height = photo.image.GetHeight();
    PhotoLimits::Check(name, static_cast<std::uint64_t>(width), static_cast<std::uint64_t>(height));
    const PhotoMetadata metadata = MetadataWriter::Normalise(photo.metadata, width, height, name);
    return MetadataWriter::Embed(EncodePixels(photo, format, options.quality, metadata, name),
                                 format, metadata, name);
}

} // namespace LumetraHost
