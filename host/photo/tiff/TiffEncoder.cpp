// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/tiff/TiffEncoder.h"

#include "photo/file/RowWriter.h"
#include "photo/metadata/MetadataWriter.h"
#include "photo/tiff/TiffStream.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include <tiffio.h>

namespace LumetraHost {
namespace {

constexpr int CompressionLevel = 4;
constexpr std::size_t StripSize = std::size_t(1) << 18; // bytes

struct StripLayout
{
    std::size_t rowSize = 0; // bytes
    int rowsPerStrip = 1;
};

int GetBytesPerChannel(const PictureForm& form)
{
    return form.depth == Image::Depth::Bits16 ? 2 : 1;
}

StripLayout ChooseLayout(const PictureForm& form)
{
    StripLayout layout;
    const int pixelSize = (form.isOpaque ? 3 : 4) * GetBytesPerChannel(form);
    layout.rowSize = static_cast<std::size_t>(pixelSize) * static_cast<std::size_t>(form.width);
    const auto rows = static_cast<int>(std::max<std::size_t>(1, StripSize / layout.rowSize));
    layout.rowsPerStrip = std::min(rows, form.height);
    return layout;
}

void WriteCompression(TIFF* tiff, TiffCompression compression)
{
    if (compression == TiffCompression::None) {
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
        return;
    }
    const bool isLzw = compression == TiffCompression::Lzw;
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, isLzw ? COMPRESSION_LZW : COMPRESSION_ADOBE_DEFLATE);
    TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    if (!isLzw)
        TIFFSetField(tiff, TIFFTAG_ZIPQUALITY, CompressionLevel);
}

void WriteTags(TIFF* tiff, const PictureForm& form, const StripLayout& layout,
               const QByteArray& iccProfile)
{
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<std::uint32_t>(form.width));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<std::uint32_t>(form.height));
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8 * GetBytesPerChannel(form));
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, form.isOpaque ? 3 : 4);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, static_cast<std::uint32_t>(layout.rowsPerStrip));
    if (!form.isOpaque) {
        const std::uint16_t straight = EXTRASAMPLE_UNASSALPHA;
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &straight);
    }
    if (!iccProfile.isEmpty())
        TIFFSetField(tiff, TIFFTAG_ICCPROFILE, static_cast<std::uint32_t>(iccProfile.size()),
                     iccProfile.constData());
}

void WriteResolution(TIFF* tiff, const std::optional<MetadataWriter::Resolution>& resolution)
{
    if (!resolution)
        return;
    TIFFSetField(tiff, TIFFTAG_XRESOLUTION, resolution->x);
    TIFFSetField(tiff, TIFFTAG_YRESOLUTION, resolution->y);
    TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT,
                 resolution->perCentimetre ? RESUNIT_CENTIMETER : RESUNIT_INCH);
}

/// Copies every strip, since the library changes it in place.
class Encoding : public RowEncoder
{
public:
    Encoding(const PictureForm& form, TiffCompression compression, const PhotoMetadata& metadata,
             const std::string& name);

    void Write(const Image& rows, int first, int count) override;
    Bytes Finish() override { return m_stream.Finish(); }

private:
    void AddRow(const Image& rows, int y);
    void WriteStrip();

    const PictureForm m_form;
    const StripLayout m_layout;
    TiffStream m_stream;
    Bytes m_strip;
    int m_rowsInStrip = 0;
    int m_rowsAdded = 0;
    std::uint32_t m_stripIndex = 0;
};

Encoding::Encoding(const PictureForm& form, TiffCompression compression,
                   const PhotoMetadata& metadata, const std::string& name)
    : m_form(form), m_layout(ChooseLayout(form)), m_stream(name),
      m_strip(m_layout.rowSize * static_cast<std::size_t>(m_layout.rowsPerStrip))
{
    WriteTags(m_stream.Get(), form, m_layout, metadata.iccProfile);
    WriteCompression(m_stream.Get(), compression);
    WriteResolution(m_stream.Get(), MetadataWriter::GetResolution(metadata));
}

void Encoding::Write(const Image& rows, int first, int count)
{
    for (int y = first; y < first + count; ++y)
        AddRow(rows, y);
}

void Encoding::AddRow(const Image& rows, int y)
{
    std::uint8_t* const target =
        m_strip.data() + m_layout.rowSize * static_cast<std::size_t>(m_rowsInStrip);
    if (m_form.isOpaque)
        CopyRowWithoutAlpha(rows, y, target);
    else
        std::memcpy(target, rows.Row(y), m_layout.rowSize);
    ++m_rowsInStrip;
    ++m_rowsAdded;
    if (m_rowsInStrip == m_layout.rowsPerStrip || m_rowsAdded == m_form.height)
        WriteStrip();
}

void Encoding::WriteStrip()
{
    const auto size =
        static_cast<tmsize_t>(m_layout.rowSize * static_cast<std::size_t>(m_rowsInStrip));
    if (TIFFWriteEncodedStrip(m_stream.Get(), m_stripIndex++, m_strip.data(), size) != size)
        m_stream.Throw("cannot be encoded as TIFF");
    m_rowsInStrip = 0;
}

} // namespace

std::unique_ptr<RowEncoder> TiffEncoder::Start(const PictureForm& form, TiffCompression compression,
                                               const PhotoMetadata& metadata,
                                               const std::string& name)
{
    return std::make_unique<Encoding>(form, compression, metadata, name);
}

} // namespace LumetraHost
