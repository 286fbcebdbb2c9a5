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
#include <utility>

namespace LumetraHost {
namespace {

[[noreturn]] void Fail(const std::string& name, const std::string& text)
{
    throw Zorvik::Exception(name + ": " + text, BOOST_CURRENT_FUNCTION, "photo/PhotoWriter",
                            __LINE__);
}

/// Puts the metadata into what another encoder makes.
class EmbeddingEncoder : public RowEncoder
{
public:
    EmbeddingEncoder(std::unique_ptr<RowEncoder> pixels, PhotoFormat format,
                     const PhotoMetadata& metadata, const std::string& name)
        : m_pixels(std::move(pixels)), m_format(format), m_metadata(metadata), m_name(name)
    {
    }

    void Write(const Image& rows, int first, int count) override
    {
        m_pixels->Write(rows, first, count);
    }

    Bytes Finish() override
    {
        return MetadataWriter::Embed(m_pixels->Finish(), m_format, m_metadata, m_name);
    }

private:
    std::unique_ptr<RowEncoder> m_pixels;
    PhotoFormat m_format;
    PhotoMetadata m_metadata;
    std::string m_name;
};

std::unique_ptr<RowEncoder> StartPixels(const PictureForm& form, const PhotoMetadata& metadata,
                                        PhotoFormat format, const std::string& name)
{
    if (format == PhotoFormat::Png)
        return PngEncoder::Start(form, metadata.iccProfile, name);
    return TiffEncoder::Start(form, metadata, name);
}

} // namespace

PhotoFormat PhotoWriter::GetFormatOf(const QString& path)
{
    const std::optional<PhotoFormat> format = GetPhotoFormatOfName(path);
    if (!format)
        Fail(path.toStdString(),
             "expected a file name that ends in .jpg, .jpeg, .png, .tif or .tiff");
    return *format;
}

void PhotoWriter::Write(const QString& path, const Photo& photo, const Options& options)
{
    const Bytes encoded = Encode(photo, GetFormatOf(path), options, path.toStdString());
    CheckedFileWriter::Write(path, encoded.data(), encoded.size());
}

std::unique_ptr<RowEncoder> PhotoWriter::Start(const PictureForm& form,
                                               const PhotoMetadata& metadata, PhotoFormat format,
                                               const Options& options, const std::string& name)
{
    if (options.quality < 1 || options.quality > 100)
        Fail(name, "expected a quality from 1 to 100, found " + std::to_string(options.quality));
    PhotoLimits::Check(name, static_cast<std::uint64_t>(form.width),
                       static_cast<std::uint64_t>(form.height));
    const PhotoMetadata upright =
        MetadataWriter::Normalise(metadata, form.width, form.height, name);
    if (format == PhotoFormat::Jpeg)
        return JpegEncoder::Start(form, options.quality, upright, name);
    return std::make_unique<EmbeddingEncoder>(StartPixels(form, upright, format, name), format,
                                              upright, name);
}

Bytes PhotoWriter::Encode(const Photo& photo, PhotoFormat format, const Options& options,
                          const std::string& name)
{
    const auto encoder = Start(DescribeForm(photo.image), photo.metadata, format, options, name);
    encoder->Write(photo.image, 0, photo.image.GetHeight());
    return encoder->Finish();
}

} // namespace LumetraHost
