// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/Decoders.h"

#include "photo/PhotoReader.h"

#include "host/photo/PhotoSamples.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <functional>

#include <tiffio.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::HasSubstr;

namespace {

struct Layout
{
    const char* mode = "w"; // "wb" is big endian
    int width = 3;
    int height = 2;
    int bits = 8;
    int samples = 3;
    int photometric = PHOTOMETRIC_RGB;
    int planes = PLANARCONFIG_CONTIG;
    int tileSide = 0;
    int compression = COMPRESSION_NONE;
    int extra = -1;
    int format = SAMPLEFORMAT_UINT;
};

struct TiffDecoderTest : testing::Test
{
    /// Writes `rows`: each is one row of one plane, or one tile.
    Bytes Make(const Layout& layout, std::vector<std::vector<std::uint16_t>> rows) const
    {
        const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("a.tif")));
        TIFF* const tiff = TIFFOpen(path.constData(), layout.mode);
        WriteTags(tiff, layout);
        std::uint32_t index = 0;
        for (const auto& row : rows) {
            const int plane = layout.planes == PLANARCONFIG_SEPARATE
                                  ? static_cast<int>(index) / layout.height
                                  : 0;
            const auto y = index % static_cast<std::uint32_t>(layout.height);
            std::vector<std::uint8_t> bytes(row.begin(), row.end());
            auto* const deep = const_cast<std::uint16_t*>(row.data());
            void* const data = layout.bits == 16 ? static_cast<void*>(deep) : bytes.data();
            if (layout.tileSide > 0)
                TIFFWriteEncodedTile(tiff, index, data,
                                     static_cast<tmsize_t>(row.size()) * layout.bits / 8);
            else
                TIFFWriteScanline(tiff, data, y, static_cast<std::uint16_t>(plane));
            ++index;
        }
        TIFFClose(tiff);
        return ReadFile(folder.filePath(QStringLiteral("a.tif")));
    }

    /// Pages of these kinds, all of whose values are the page's number.
    Bytes MakePages(const std::vector<int>& kinds) const
    {
        const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("a.tif")));
        TIFF* const tiff = TIFFOpen(path.constData(), "w");
        for (std::size_t page = 0; page < kinds.size(); ++page) {
            WriteTags(tiff, Layout());
            TIFFSetField(tiff, TIFFTAG_SUBFILETYPE, kinds[page]);
            std::vector<std::uint8_t> row(9, static_cast<std::uint8_t>(page));
            for (std::uint32_t y = 0; y < 2; ++y)
                TIFFWriteScanline(tiff, row.data(), y, 0);
            TIFFWriteDirectory(tiff);
        }
        TIFFClose(tiff);
        return ReadFile(folder.filePath(QStringLiteral("a.tif")));
    }

    static void WriteTags(TIFF* tiff, const Layout& layout)
    {
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, layout.width);
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, layout.height);
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, layout.bits);
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, layout.samples);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, layout.photometric);
        TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, layout.planes);
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, layout.compression);
        TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, layout.format);
        if (layout.tileSide > 0) {
            TIFFSetField(tiff, TIFFTAG_TILEWIDTH, layout.tileSide);
            TIFFSetField(tiff, TIFFTAG_TILELENGTH, layout.tileSide);
        } else {
            TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, 1);
        }
        if (layout.extra >= 0) {
            const std::uint16_t extra[] = {static_cast<std::uint16_t>(layout.extra)};
            TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, extra);
        }
        if (layout.photometric == PHOTOMETRIC_PALETTE) {
            std::uint16_t red[256] = {};
            std::uint16_t other[256] = {};
            for (int i = 0; i < 256; ++i)
                red[i] = static_cast<std::uint16_t>((255 - i) * 257);
            TIFFSetField(tiff, TIFFTAG_COLORMAP, red, other, other);
        }
    }

    static std::vector<int> PixelOf(const Image& image, int x, int y)
    {
        std::vector<int> pixel;
        for (int i = 4 * x; i < 4 * x + 4; ++i)
            pixel.push_back(image.GetDepth() == Image::Depth::Bits16 ? image.Row16(y)[i]
                                                                     : image.Row(y)[i]);
        return pixel;
    }

    QTemporaryDir folder;
};

using Pixel = std::vector<int>;

} // namespace

TEST_F(TiffDecoderTest, readsGrayOfBothDirections)
{
    Layout layout;
    layout.samples = 1;
    layout.photometric = PHOTOMETRIC_MINISBLACK;
    const Image image = DecodeTiff(Make(layout, {{1, 2, 3}, {4, 5, 6}}), "a").pixels;
    EXPECT_EQ(DescribeRed(image), "3x2: 1 2 3 4 5 6");
    EXPECT_EQ(PixelOf(image, 1, 1), (Pixel{5, 5, 5, 255}));

    layout.photometric = PHOTOMETRIC_MINISWHITE;
    const Image inverted = DecodeTiff(Make(layout, {{1, 2, 3}, {4, 5, 6}}), "a").pixels;
    EXPECT_EQ(DescribeRed(inverted), "3x2: 254 253 252 251 250 249");
}

TEST_F(TiffDecoderTest, readsBothByteOrders)
{
    Layout layout;
    layout.bits = 16;
    layout.samples = 1;
    layout.photometric = PHOTOMETRIC_MINISBLACK;
    for (const char* mode : {"wl", "wb", "w8"}) {
        layout.mode = mode;
        const Bytes file = Make(layout, {{1000, 2000, 3000}, {40000, 50000, 65535}});

        const Image image = PhotoReader::Decode(file, "a").image;

        EXPECT_EQ(DescribeRed(image), "3x2: 1000 2000 3000 40000 50000 65535") << mode;
    }
}

TEST_F(TiffDecoderTest, readsPlanes)
{
    Layout layout;
    layout.planes = PLANARCONFIG_SEPARATE;
    layout.samples = 4;
    layout.extra = EXTRASAMPLE_UNASSALPHA;

    const Image image = DecodeTiff(Make(layout, {{1, 2, 3},
                                                 {4, 5, 6},
                                                 {11, 12, 13},
                                                 {14, 15, 16},
                                                 {21, 22, 23},
                                                 {24, 25, 26},
                                                 {31, 32, 33},
                                                 {34, 35, 36}}),
                                   "a")
                            .pixels;

    EXPECT_EQ(PixelOf(image, 0, 0), (Pixel{1, 11, 21, 31}));
    EXPECT_EQ(PixelOf(image, 2, 1), (Pixel{6, 16, 26, 36}));
}

TEST_F(TiffDecoderTest, readsPlanesOfGrayWithAlpha)
{
    Layout layout;
    layout.planes = PLANARCONFIG_SEPARATE;
    layout.samples = 2;
    layout.photometric = PHOTOMETRIC_MINISBLACK;
    layout.extra = EXTRASAMPLE_UNASSALPHA;

    const Image image =
        DecodeTiff(Make(layout, {{1, 2, 3}, {4, 5, 6}, {31, 32, 33}, {34, 35, 36}}), "a").pixels;

    EXPECT_EQ(PixelOf(image, 1, 0), (Pixel{2, 2, 2, 32}));
}

TEST_F(TiffDecoderTest, readsTilesThatReachOverTheEdge)
{
    Layout layout;
    layout.width = 20;
    layout.height = 17;
    layout.tileSide = 16;
    layout.samples = 1;
    layout.photometric = PHOTOMETRIC_MINISBLACK;
    layout.compression = COMPRESSION_LZW;
    std::vector<std::vector<std::uint16_t>> tiles;
    for (std::uint16_t tile = 0; tile < 4; ++tile)
        tiles.emplace_back(256, static_cast<std::uint16_t>(10 * tile + 1));

    const Image image = DecodeTiff(Make(layout, tiles), "a").pixels;

    EXPECT_EQ(PixelOf(image, 15, 15)[0], 1);
    EXPECT_EQ(PixelOf(image, 19, 15)[0], 11);
    EXPECT_EQ(PixelOf(image, 0, 16)[0], 21);
    EXPECT_EQ(PixelOf(image, 19, 16)[0], 31);
}

TEST_F(TiffDecoderTest, dividesMultipliedColorsByAlpha)
{
    Layout layout;
    layout.samples = 4;
    layout.extra = EXTRASAMPLE_ASSOCALPHA;

    const Image image = DecodeTiff(Make(layout, {{50, 0, 100, 100, 9, 9, 9, 0, 1, 2, 3, 255},
                                                 std::vector<std::uint16_t>(12)}),
                                   "a")
                            .pixels;

    EXPECT_EQ(PixelOf(image, 0, 0), (Pixel{128, 0, 255, 100}));
    EXPECT_EQ(PixelOf(image, 1, 0), (Pixel{0, 0, 0, 0}));
    EXPECT_EQ(PixelOf(image, 2, 0), (Pixel{1, 2, 3, 255}));
}

TEST_F(TiffDecoderTest, extraSampleOfNoMeaningIsNoAlpha)
{
    Layout layout;
    layout.samples = 4;
    layout.extra = EXTRASAMPLE_UNSPECIFIED;
    const std::vector<std::uint16_t> row{1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 0};

    const Image image = DecodeTiff(Make(layout, {row, row}), "a").pixels;

    EXPECT_EQ(PixelOf(image, 1, 1), (Pixel{1, 2, 3, 255}));
}

TEST_F(TiffDecoderTest, readsInksOf16Bits)
{
    Layout layout;
    layout.bits = 16;
    layout.samples = 4;
    layout.photometric = PHOTOMETRIC_SEPARATED;
    const std::vector<std::uint16_t> row{13107, 0, 65535, 13107, 0, 0, 0, 0, 0, 0, 0, 65535};

    const Image image = PhotoReader::Decode(Make(layout, {row, row}), "a").image;

    EXPECT_EQ(PixelOf(image, 0, 0), (Pixel{41942, 52428, 0, 65535}));
    EXPECT_EQ(PixelOf(image, 1, 0), (Pixel{65535, 65535, 65535, 65535}));
    EXPECT_EQ(PixelOf(image, 2, 0), (Pixel{0, 0, 0, 65535}));
}

TEST_F(TiffDecoderTest, readsPalettes)
{
    Layout layout;
    layout.samples = 1;
    layout.photometric = PHOTOMETRIC_PALETTE;

    const Image image = DecodeTiff(Make(layout, {{0, 1, 2}, {3, 4, 255}}), "a").pixels;

    EXPECT_EQ(DescribeRed(image), "3x2: 255 254 253 252 251 0");
    EXPECT_EQ(PixelOf(image, 0, 0), (Pixel{255, 0, 0, 255}));
}

TEST_F(TiffDecoderTest, floatingPointSamplesAreRefused)
{
    Layout layout;
    layout.bits = 16;
    layout.format = SAMPLEFORMAT_IEEEFP;
    const std::vector<std::uint16_t> row(9);

    EXPECT_THAT(ErrorOf([&] {
                    DecodeTiff(Make(layout, {row, row}), "a.tif");
                }),
                HasSubstr("a.tif: expected whole numbers from 0 of 1 to 8 or of 16 bits per "
                          "channel, found 16 bits of floating-point numbers"));
}

TEST_F(TiffDecoderTest, bitsThatAreNotReadAreNamed)
{
    Layout layout;
    layout.bits = 12;
    layout.samples = 1;
    layout.photometric = PHOTOMETRIC_MINISBLACK;
    const std::vector<std::uint16_t> row(6);

    EXPECT_EQ(ErrorOf([&] {
                  DecodeTiff(Make(layout, {row, row}), "a.tif");
              }),
              "a.tif: expected whole numbers from 0 of 1 to 8 or of 16 bits per channel, found 12 "
              "bits");
}

TEST_F(TiffDecoderTest, coloursThatAreNotReadWith16BitsAreNamed)
{
    Layout layout;
    layout.bits = 16;
    layout.photometric = PHOTOMETRIC_CIELAB;
    const std::vector<std::uint16_t> row(9);

    EXPECT_EQ(ErrorOf([&] {
                  DecodeTiff(Make(layout, {row, row}), "a.tif");
              }),
              "a.tif: expected grey, RGB or CMYK with 16 bits per channel, found L*a*b* with 3 "
              "channels");
}

TEST_F(TiffDecoderTest, furtherPagesAreTold)
{
    const Bytes file = MakePages({0, FILETYPE_PAGE, FILETYPE_REDUCEDIMAGE, FILETYPE_PAGE});

    const Photo photo = PhotoReader::Decode(file, "a.tif");

    EXPECT_EQ(DescribeRed(photo.image), "3x2: 0 0 0 0 0 0");
    EXPECT_THAT(photo.reductions, testing::ElementsAre("it has 3 pages; only the first is read"));
}

TEST_F(TiffDecoderTest, smallerCopiesAreNoPages)
{
    const Bytes file = MakePages({0, FILETYPE_REDUCEDIMAGE, FILETYPE_MASK});

    EXPECT_THAT(PhotoReader::Decode(file, "a.tif").reductions, testing::IsEmpty());
}
