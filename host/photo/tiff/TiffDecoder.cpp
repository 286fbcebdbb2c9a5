// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/Decoders.h"

#include "photo/file/PhotoLimits.h"
#include "photo/tiff/TiffSamples.h"
#include "photo/tiff/TiffStream.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <tiffio.h>

namespace LumetraHost {
namespace {

constexpr std::uint64_t LargestTile = 1 << 28; // samples
/// Directories that are followed at most; a damaged file may chain them for long.
constexpr int MostDirectories = 1000;

/// Words for a sample format; empty for whole numbers from 0, and for a file that does not say.
std::string DescribeSampleFormat(std::uint16_t format)
{
    switch (format) {
    case SAMPLEFORMAT_INT:
        return "whole numbers with a sign";
    case SAMPLEFORMAT_IEEEFP:
        return "floating-point numbers";
    case SAMPLEFORMAT_COMPLEXINT:
    case SAMPLEFORMAT_COMPLEXIEEEFP:
        return "complex numbers";
    default:
        return {};
    }
}

std::string DescribePhotometric(std::uint16_t photometric)
{
    switch (photometric) {
    case PHOTOMETRIC_PALETTE:
        return "a palette";
    case PHOTOMETRIC_MASK:
        return "a mask";
    case PHOTOMETRIC_SEPARATED:
        return "inks other than CMYK";
    case PHOTOMETRIC_YCBCR:
        return "YCbCr";
    case PHOTOMETRIC_CIELAB:
    case PHOTOMETRIC_ICCLAB:
    case PHOTOMETRIC_ITULAB:
        return "L*a*b*";
    case PHOTOMETRIC_LOGL:
    case PHOTOMETRIC_LOGLUV:
        return "LogLuv";
    default:
        return "colours of kind " + std::to_string(photometric);
    }
}

class Decoding
{
public:
    Decoding(const Bytes& content, const std::string& name) : m_stream(content, name), m_name(name)
    {
    }

    DecodedPhoto Run();

private:
    void ReadDescription();
    bool HasPlainSamples() const;
    int GetPlaneCount() const { return m_separatePlanes ? m_sampleCount : 1; }
    PixelMeaning GetMeaning() const;
    TiffSamples DescribeSamples() const;

    Image ReadPlainSamples();
    void ReadStrips(Image& pixels, const TiffSamples& samples);
    void ReadTiles(Image& pixels, const TiffSamples& samples);
    Image ReadConverted();
    int CountPages();

    std::uint16_t GetShort(std::uint32_t tag) const;

    TiffStream m_stream;
    const std::string& m_name;
    std::uint32_t m_width = 0;
    std::uint32_t m_height = 0;
    std::uint16_t m_bits = 0;
    std::uint16_t m_sampleCount = 0;
    std::uint16_t m_photometric = 0;
    bool m_separatePlanes = false;
};

std::uint16_t Decoding::GetShort(std::uint32_t tag) const
{
    std::uint16_t value = 0;
    TIFFGetFieldDefaulted(m_stream.Get(), tag, &value);
    return value;
}

void Decoding::ReadDescription()
{
    TIFFGetField(m_stream.Get(), TIFFTAG_IMAGEWIDTH, &m_width);
    TIFFGetField(m_stream.Get(), TIFFTAG_IMAGELENGTH, &m_height);
    PhotoLimits::Check(m_name, m_width, m_height);
    m_bits = GetShort(TIFFTAG_BITSPERSAMPLE);
    m_sampleCount = GetShort(TIFFTAG_SAMPLESPERPIXEL);
    m_photometric = GetShort(TIFFTAG_PHOTOMETRIC);
    m_separatePlanes = GetShort(TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE;
    const std::string kind = DescribeSampleFormat(GetShort(TIFFTAG_SAMPLEFORMAT));
    if (!kind.empty() || (m_bits > 8 && m_bits != 16))
        m_stream.Throw("expected whole numbers from 0 of 1 to 8 or of 16 bits per channel, found " +
                       std::to_string(m_bits) + " bits" + (kind.empty() ? "" : " of ") + kind);
}

PixelMeaning Decoding::GetMeaning() const
{
    switch (m_photometric) {
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_MINISBLACK:
        return PixelMeaning::Gray;
    case PHOTOMETRIC_SEPARATED:
        return HasPlainSamples() ? PixelMeaning::Cmyk : PixelMeaning::Rgb;
    default:
        return PixelMeaning::Rgb;
    }
}

bool Decoding::HasPlainSamples() const
{
    if (m_bits != 8 && m_bits != 16)
        return false;
    switch (m_photometric) {
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_MINISBLACK:
        return m_sampleCount >= 1;
    case PHOTOMETRIC_RGB:
        return m_sampleCount >= 3;
    case PHOTOMETRIC_SEPARATED:
        return m_sampleCount >= 4 && GetShort(TIFFTAG_INKSET) == INKSET_CMYK;
    default:
        return false;
    }
}

TiffSamples Decoding::DescribeSamples() const
{
    TiffSamples samples;
    samples.bytes = m_bits / 8;
    samples.perPixel = m_separatePlanes ? 1 : m_sampleCount;
    samples.invert = m_photometric == PHOTOMETRIC_MINISWHITE;
    if (m_photometric == PHOTOMETRIC_SEPARATED) {
        samples.source = {0, 1, 2, 3};
        return samples;
    }
    const int colors = m_photometric == PHOTOMETRIC_RGB ? 3 : 1;
    if (colors == 3)
        samples.source = {0, 1, 2, TiffSamples::None};
    std::uint16_t extraCount = 0;
    std::uint16_t* extra = nullptr;
    TIFFGetFieldDefaulted(m_stream.Get(), TIFFTAG_EXTRASAMPLES, &extraCount, &extra);
    if (extraCount >= 1 && m_sampleCount > colors && extra[0] != EXTRASAMPLE_UNSPECIFIED) {
        samples.source[3] = colors;
        samples.premultiplied = extra[0] == EXTRASAMPLE_ASSOCALPHA;
    }
    return samples;
}

Image Decoding::ReadPlainSamples()
{
    const TiffSamples samples = DescribeSamples();
    Image pixels =
        Image::AllocateUninitialised(static_cast<int>(m_width), static_cast<int>(m_height),
                                     m_bits == 16 ? Image::Depth::Bits16 : Image::Depth::Bits8);
    if (TIFFIsTiled(m_stream.Get()))
        ReadTiles(pixels, samples);
    else
        ReadStrips(pixels, samples);
    samples.Finish(pixels);
    return pixels;
}

/// Reads row by row, since one strip may be the whole picture.
void Decoding::ReadStrips(Image& pixels, const TiffSamples& samples)
{
    const tmsize_t rowSize = TIFFScanlineSize(m_stream.Get());
    const auto expected = static_cast<tmsize_t>(m_width) * samples.perPixel * samples.bytes;
    if (rowSize != expected)
        m_stream.Throw("expected rows of " + std::to_string(expected) + " bytes, found " +
                       std::to_string(rowSize));
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(rowSize));
    for (int plane = 0; plane < GetPlaneCount(); ++plane) {
        for (std::uint32_t y = 0; y < m_height; ++y) {
            if (TIFFReadScanline(m_stream.Get(), buffer.data(), y,
                                 static_cast<std::uint16_t>(plane)) != 1)
                m_stream.Throw("row " + std::to_string(y) +
                               " is missing or damaged; the file may be truncated");
            samples.Scatter(buffer.data(), plane, pixels, 0, static_cast<int>(y),
                            static_cast<int>(m_width));
        }
    }
}

void Decoding::ReadTiles(Image& pixels, const TiffSamples& samples)
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    TIFFGetField(m_stream.Get(), TIFFTAG_TILEWIDTH, &width);
    TIFFGetField(m_stream.Get(), TIFFTAG_TILELENGTH, &height);
    const auto area = static_cast<std::uint64_t>(width) * height;
    if (area == 0 || area > LargestTile)
        m_stream.Throw("expected tiles of at most 2^28 pixels, found " + std::to_string(width) +
                       " x " + std::to_string(height));
    const std::size_t rowSize = static_cast<std::size_t>(width) *
                                static_cast<std::size_t>(samples.perPixel) *
                                static_cast<std::size_t>(samples.bytes);
    std::vector<std::uint8_t> tile(rowSize * height);
    const auto size = static_cast<tmsize_t>(tile.size());
    for (int plane = 0; plane < GetPlaneCount(); ++plane) {
        for (std::uint32_t y = 0; y < m_height; y += height) {
            for (std::uint32_t x = 0; x < m_width; x += width) {
                const std::uint32_t index =
                    TIFFComputeTile(m_stream.Get(), x, y, 0, static_cast<std::uint16_t>(plane));
                if (TIFFReadEncodedTile(m_stream.Get(), index, tile.data(), size) != size)
                    m_stream.Throw("the tile at " + std::to_string(x) + ", " + std::to_string(y) +
                                   " is missing or damaged; the file may be truncated");
                const std::uint32_t rows = std::min(height, m_height - y);
                for (std::uint32_t row = 0; row < rows; ++row)
                    samples.Scatter(tile.data() + rowSize * row, plane, pixels, static_cast<int>(x),
                                    static_cast<int>(y + row),
                                    static_cast<int>(std::min(width, m_width - x)));
            }
        }
    }
}

/// Reads through the codec library's conversion to 8-bit RGB, with the colours multiplied by alpha.
Image Decoding::ReadConverted()
{
    if (m_bits > 8)
        m_stream.Throw("expected grey, RGB or CMYK with 16 bits per channel, found " +
                       DescribePhotometric(m_photometric) + " with " +
                       std::to_string(m_sampleCount) + " channels");
    // The photo reader turns pictures; the library would mirror, but not turn.
    TIFFSetField(m_stream.Get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    // Not zeroed: a small file that claims a large picture must not take the memory for it.
    const std::unique_ptr<std::uint32_t[]> raster(
        new std::uint32_t[static_cast<std::size_t>(m_width) * m_height]);
    if (!TIFFReadRGBAImageOriented(m_stream.Get(), m_width, m_height, raster.get(),
                                   ORIENTATION_TOPLEFT, 1))
        m_stream.Throw("the TIFF data cannot be read");
    Image pixels = Image::AllocateUninitialised(static_cast<int>(m_width),
                                                static_cast<int>(m_height), Image::Depth::Bits8);
    for (std::uint32_t y = 0; y < m_height; ++y) {
        std::uint8_t* target = pixels.Row(static_cast<int>(y));
        const std::uint32_t* const source = raster.get() + static_cast<std::size_t>(y) * m_width;
        for (std::uint32_t x = 0; x < m_width; ++x, target += Image::Channels) {
            target[0] = static_cast<std::uint8_t>(TIFFGetR(source[x]));
            target[1] = static_cast<std::uint8_t>(TIFFGetG(source[x]));
            target[2] = static_cast<std::uint8_t>(TIFFGetB(source[x]));
            target[3] = static_cast<std::uint8_t>(TIFFGetA(source[x]));
        }
    }
    TiffSamples::Unpremultiply(pixels);
    return pixels;
}

/// The number of pages. Smaller copies of a page and masks do not count. Ends at a damaged
/// directory.
int Decoding::CountPages()
{
    int pages = 1;
    for (int i = 1; i < MostDirectories && TIFFReadDirectory(m_stream.Get()) == 1; ++i) {
        std::uint32_t kind = 0;
        TIFFGetField(m_stream.Get(), TIFFTAG_SUBFILETYPE, &kind);
        if ((kind & (FILETYPE_REDUCEDIMAGE | FILETYPE_MASK)) == 0)
            ++pages;
    }
    return pages;
}

DecodedPhoto Decoding::Run()
{
    ReadDescription();
    DecodedPhoto photo;
    photo.meaning = GetMeaning();
    photo.orientation = GetShort(TIFFTAG_ORIENTATION);
    std::uint32_t size = 0;
    void* profile = nullptr;
    if (TIFFGetField(m_stream.Get(), TIFFTAG_ICCPROFILE, &size, &profile))
        photo.iccProfile = QByteArray(static_cast<const char*>(profile), static_cast<int>(size));
    photo.pixels = HasPlainSamples() ? ReadPlainSamples() : ReadConverted();
    const int pages = CountPages();
    if (pages > 1)
        Warn(photo.reductions,
             "it has " + std::to_string(pages) + " pages; only the first is read");
    return photo;
}

} // namespace

DecodedPhoto DecodeTiff(const Bytes& content, const std::string& name)
{
    return Decoding(content, name).Run();
}

} // namespace LumetraHost
