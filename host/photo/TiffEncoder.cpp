// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/TiffEncoder.h"

#include "photo/MetadataWriter.h"
#include "photo/RowWriter.h"
#include "photo/TiffStream.h"

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
    bool opaque = true;
    std::size_t rowSize = 0; // bytes
    int rowsPerStrip = 1;
};

StripLayout ChooseLayout(const Image& image)
{
    StripLayout layout;
    layout.opaque = IsOpaque(image);
    const std::size_t channels = layout.opaque ? 3 : 4;
    layout.rowSize =
        channels * image.GetBytesPerChannel() * static_cast<std::size_t>(image.GetWidth());
    const auto rows = static_cast<int>(std::max<std::size_t>(1, StripSize / layout.rowSize));
    layout.rowsPerStrip = std::min(rows, image.GetHeight());
    return layout;
}

void WriteTags(TIFF* tiff, const Image& image, const StripLayout& layout,
               const QByteArray& iccProfile)
{
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<std::uint32_t>(image.GetWidth()));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<std::uint32_t>(image.GetHeight()));
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, static_cast<int>(8 * image.GetBytesPerChannel()));
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, layout.opaque ? 3 : 4);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, static_cast<std::uint32_t>(layout.rowsPerStrip));
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_ADOBE_DEFLATE);
    TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(tiff, TIFFTAG_ZIPQUALITY, CompressionLevel);
    if (!layout.opaque) {
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

void CopyRow(const Image& image, int y, const StripLayout& layout, std::uint8_t* target)
{
    if (layout.opaque)
        CopyRowWithoutAlpha(image, y, target);
    else
        std::memcpy(target, image.Row(y), layout.rowSize);
}

} // namespace

Bytes TiffEncoder::Encode(const Image& image, const PhotoMetadata& metadata,
                          const std::string& name)
{
    TiffStream stream(name);
    const StripLayout layout = ChooseLayout(image);
    WriteTags(stream.Get(), image, layout, metadata.iccProfile);
    WriteResolution(stream.Get(), MetadataWriter::GetResolution(metadata, name));
    // The library changes the strip in place, so every strip is copied afresh.
    Bytes strip(layout.rowSize * static_cast<std::size_t>(layout.rowsPerStrip));
    std::uint32_t index = 0;
    for (int y = 0; y < image.GetHeight(); y += layout.rowsPerStrip, ++index) {
        const int rows = std::min(layout.rowsPerStrip, image.GetHeight() - y);
        for (int row = 0; row < rows; ++row)
            CopyRow(image, y + row, layout,
                    strip.data() + layout.rowSize * static_cast<std::size_t>(row));
        const auto size = static_cast<tmsize_t>(layout.rowSize * static_cast<std::size_t>(rows));
        if (TIFFWriteEncodedStrip(stream.Get(), index, strip.data(), size) != size)
            stream.Throw("cannot be encoded as TIFF");
    }
    return stream.Finish();
}

} // namespace LumetraHost
