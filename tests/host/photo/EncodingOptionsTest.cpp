// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/tiff/TiffStream.h"

#include "PhotoSamples.h"

#include <gmock/gmock.h>

#include <tiffio.h>

using namespace LumetraHost;
using namespace LumetraTest;

namespace {

constexpr int SequentialFrame = 0xC0;
constexpr int ProgressiveFrame = 0xC2;

struct Frame
{
    int marker = 0;
    int sampling = 0; ///< of the brightness: 0x21 is twice as wide as the colours
};

Bytes Encode(const Image& image, PhotoFormat format, const PhotoWriter::Options& options)
{
    Photo photo;
    photo.image = image;
    return PhotoWriter::Encode(photo, format, options, "a");
}

Frame FindFrame(const Bytes& jpeg)
{
    for (std::size_t i = 0; i + 11 < jpeg.size(); ++i)
        if (jpeg[i] == 0xFF && (jpeg[i + 1] == SequentialFrame || jpeg[i + 1] == ProgressiveFrame))
            return {jpeg[i + 1], jpeg[i + 11]};
    ADD_FAILURE() << "no frame header";
    return {};
}

int GetSampling(ChromaSampling sampling, int quality)
{
    PhotoWriter::Options options;
    options.sampling = sampling;
    options.quality = quality;
    return FindFrame(Encode(MakeGradient(48, 48), PhotoFormat::Jpeg, options)).sampling;
}

std::uint16_t GetTag(const Bytes& tiff, std::uint32_t tag)
{
    const TiffStream stream(tiff, "a.tif");
    std::uint16_t value = 0;
    EXPECT_EQ(TIFFGetFieldDefaulted(stream.Get(), tag, &value), 1);
    return value;
}

TEST(EncodingOptions, storesTheColoursOfAJpegAtTheResolutionThatIsAskedFor)
{
    EXPECT_EQ(GetSampling(ChromaSampling::Full, 50), 0x11);
    EXPECT_EQ(GetSampling(ChromaSampling::Half, 95), 0x21);
    EXPECT_EQ(GetSampling(ChromaSampling::Quarter, 95), 0x22);
    EXPECT_EQ(GetSampling(ChromaSampling::Automatic, 90), 0x11);
    EXPECT_EQ(GetSampling(ChromaSampling::Automatic, 89), 0x22);
}

TEST(EncodingOptions, aProgressiveJpegHasThePixelsOfASequentialOne)
{
    const Image image = MakePattern(130, 70, Image::Depth::Bits8);
    PhotoWriter::Options options;
    const Bytes sequential = Encode(image, PhotoFormat::Jpeg, options);
    options.isProgressive = true;
    const Bytes progressive = Encode(image, PhotoFormat::Jpeg, options);

    EXPECT_EQ(FindFrame(sequential).marker, SequentialFrame);
    EXPECT_EQ(FindFrame(progressive).marker, ProgressiveFrame);
    EXPECT_TRUE(HaveSamePixels(PhotoReader::Decode(progressive, "a").image,
                               PhotoReader::Decode(sequential, "b").image));
}

TEST(EncodingOptions, everyCompressionOfTiffKeepsEveryPixel)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image image = MakePattern(300, 211, depth, Alpha::Varying);
        const auto encode = [&image](TiffCompression compression) {
            PhotoWriter::Options options;
            options.compression = compression;
            const Bytes tiff = Encode(image, PhotoFormat::Tiff, options);
            EXPECT_TRUE(HaveSamePixels(PhotoReader::Decode(tiff, "a").image, image));
            return tiff;
        };
        const Bytes plain = encode(TiffCompression::None);
        const Bytes lzw = encode(TiffCompression::Lzw);
        const Bytes deflate = encode(TiffCompression::Deflate);

        EXPECT_EQ(GetTag(plain, TIFFTAG_COMPRESSION), COMPRESSION_NONE);
        EXPECT_EQ(GetTag(lzw, TIFFTAG_COMPRESSION), COMPRESSION_LZW);
        EXPECT_EQ(GetTag(lzw, TIFFTAG_PREDICTOR), PREDICTOR_HORIZONTAL);
        EXPECT_EQ(GetTag(deflate, TIFFTAG_COMPRESSION), COMPRESSION_ADOBE_DEFLATE);
        EXPECT_EQ(GetTag(deflate, TIFFTAG_PREDICTOR), PREDICTOR_HORIZONTAL);
        EXPECT_GT(plain.size(), image.GetBytesPerPixel() * 300 * 211);
    }
}

} // namespace
