// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoWriter.h"

#include "photo/file/PhotoLimits.h"
#include "photo/formats/PngEncoder.h"
#include "photo/formats/WebpEncoder.h"
#include "photo/jpeg/JpegEncoder.h"
#include "photo/metadata/MetadataWriter.h"
#include "photo/tiff/TiffEncoder.h"
#include "storage/CheckedFileWriter.h"

#include "storage/FailWith.h"

#include <optional>
#include <utility>

namespace LumetraHost {
namespace {

/// Puts the metadata into the file that another encoder makes.
class EmbeddingEncoder : public RowEncoder
{
public:
    EmbeddingEncoder(std::unique_ptr<RowEncoder> pixels, PhotoFormat format,
                     const PhotoMetadata& metadata, Warnings* warnings)
        : m_pixels(std::move(pixels)), m_format(format), m_metadata(metadata), m_warnings(warnings)
    {
    }

    void Write(const Image& rows, int first, int count) override
    {
        m_pixels->Write(rows, first, count);
    }

    Bytes Finish() override
    {
        Warnings unheard;
        return MetadataWriter::Embed(m_pixels->Finish(), m_format, m_metadata,
                                     m_warnings ? *m_warnings : unheard);
    }

private:
    std::unique_ptr<RowEncoder> m_pixels;
    PhotoFormat m_format;
    PhotoMetadata m_metadata;
    Warnings* m_warnings;
};

std::unique_ptr<RowEncoder> StartPixels(const PictureForm& form, const PhotoMetadata& metadata,
                                        PhotoFormat format, const PhotoWriter::Options& options,
                                        const std::string& name, Warnings& warnings)
{
    if (format == PhotoFormat::Png)
        return PngEncoder::Start(form, metadata.iccProfile, name, warnings);
    return TiffEncoder::Start(form, options.compression, metadata, name);
}

void CheckOptions(const PictureForm& form, const PhotoWriter::Options& options,
                  const std::string& name)
{
    if (options.quality < 1 || options.quality > 100)
        FailWith(name + ": expected a quality from 1 to 100, found " +
                 std::to_string(options.quality));
    PhotoLimits::Check(name, static_cast<std::uint64_t>(form.width),
                       static_cast<std::uint64_t>(form.height));
}

} // namespace

PhotoFormat PhotoWriter::GetFormatOf(const QString& path)
{
    const std::optional<PhotoFormat> format = GetPhotoFormatOfName(path);
    if (!format)
        FailWith(path.toStdString() +
                 ": expected a file name that ends in .jpg, .jpeg, .png, .tif, .tiff or .webp");
    return *format;
}

bool PhotoWriter::HoldsProfile(PhotoFormat format, const QByteArray& iccProfile)
{
    if (format == PhotoFormat::Jpeg)
        return JpegEncoder::HoldsProfile(iccProfile);
    return format != PhotoFormat::Png || PngEncoder::HoldsProfile(iccProfile);
}

void PhotoWriter::Write(const QString& path, const Photo& photo, const Options& options)
{
    const Bytes encoded = Encode(photo, GetFormatOf(path), options, path.toStdString());
    CheckedFileWriter::Write(path, encoded.data(), encoded.size());
}

std::unique_ptr<RowEncoder> PhotoWriter::Start(const PictureForm& form,
                                               const PhotoMetadata& metadata, PhotoFormat format,
                                               const Options& options, const std::string& name,
                                               Warnings* warnings, const GoesOn& goesOn)
{
    CheckOptions(form, options, name);
    Warnings unheard;
    Warnings& heard = warnings ? *warnings : unheard;
    const PhotoMetadata upright =
        MetadataWriter::Normalise(metadata, form.width, form.height, !form.space, heard);
    if (format == PhotoFormat::Jpeg)
        return JpegEncoder::Start(form, options, upright, name, heard);
    if (format == PhotoFormat::Webp)
        return WebpEncoder::Start(form, options, upright, name, heard, goesOn);
    return std::make_unique<EmbeddingEncoder>(
        StartPixels(form, upright, format, options, name, heard), format, upright, warnings);
}

Bytes PhotoWriter::Encode(const Photo& photo, PhotoFormat format, const Options& options,
                          const std::string& name, Warnings* warnings)
{
    const auto encoder =
        Start(DescribeForm(photo.image), photo.metadata, format, options, name, warnings);
    encoder->Write(photo.image, 0, photo.image.GetHeight());
    return encoder->Finish();
}

} // namespace LumetraHost
