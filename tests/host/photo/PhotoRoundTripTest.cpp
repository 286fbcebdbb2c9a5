// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include "PhotoSamples.h"

#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cstring>
#include <thread>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::HasSubstr;

namespace {

struct PhotoRoundTripTest : testing::Test
{
    QString PathOf(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

    Image Store(const Image& image, const char* name) const
    {
        Photo photo;
        photo.image = image;
        PhotoWriter::Write(PathOf(name), photo);
        return PhotoReader::Read(PathOf(name)).image;
    }

    QTemporaryDir folder;
};

using Lossless = std::tuple<const char*, Image::Depth, Alpha>;

struct LosslessRoundTripTest : PhotoRoundTripTest, testing::WithParamInterface<Lossless>
{
};

std::string NameOf(const Lossless& parameters)
{
    const auto& [name, depth, alpha] = parameters;
    return std::string(name).substr(2) + (depth == Image::Depth::Bits16 ? "16" : "8") +
           (alpha == Alpha::Varying ? "WithAlpha" : "Opaque");
}

Bytes EncodeJpeg(const Image& image, int quality)
{
    Photo photo;
    photo.image = image;
    PhotoWriter::Options options;
    options.quality = quality;
    return PhotoWriter::Encode(photo, PhotoFormat::Jpeg, options, "a.jpg");
}

/// How often the sampling marker says that colours are stored at a quarter.
bool HasQuarterColor(const Bytes& jpeg)
{
    for (std::size_t i = 0; i + 11 < jpeg.size(); ++i) {
        const bool frame = jpeg[i] == 0xFF && jpeg[i + 1] == 0xC0; // SOF0
        if (frame)
            return jpeg[i + 11] == 0x22;
    }
    ADD_FAILURE() << "no baseline frame header";
    return false;
}

} // namespace

TEST_P(LosslessRoundTripTest, comesBackBitForBit)
{
    const auto& [name, depth, alpha] = GetParam();
    const Image image = MakePattern(211, 97, depth, alpha);

    EXPECT_TRUE(HaveSamePixels(Store(image, name), image));
}

INSTANTIATE_TEST_SUITE_P(Formats, LosslessRoundTripTest,
                         testing::Combine(testing::Values("a.png", "a.tif"),
                                          testing::Values(Image::Depth::Bits8,
                                                          Image::Depth::Bits16),
                                          testing::Values(Alpha::Opaque, Alpha::Varying)),
                         [](const auto& test) { return NameOf(test.param); });

TEST_F(PhotoRoundTripTest, singlePixelComesBackInEveryFormat)
{
    Image image = Image::Allocate(1, 1, Image::Depth::Bits8);
    for (int channel = 0; channel < 4; ++channel)
        image.Row(0)[channel] = 255;

    for (const char* name : {"a.png", "a.tiff", "a.jpeg"})
        EXPECT_TRUE(HaveSamePixels(Store(image, name), image)) << name;
}

TEST_F(PhotoRoundTripTest, jpegComesBackNearly)
{
    const Image image = MakeGradient(320, 200);

    const int difference = LargestDifference(Store(image, "a.jpg"), image);

    EXPECT_GE(difference, 0);
    EXPECT_LE(difference, 4);
}

TEST_F(PhotoRoundTripTest, otherReadersSeeTheSamePixels)
{
    const Image image = MakePattern(61, 33, Image::Depth::Bits8, Alpha::Varying);
    Store(image, "a.png");

    const QImage seen = QImage(PathOf("a.png")).convertToFormat(QImage::Format_RGBA8888);

    ASSERT_EQ(seen.size(), QSize(61, 33));
    for (int y = 0; y < 33; ++y)
        EXPECT_EQ(std::memcmp(seen.constScanLine(y), image.Row(y), 61 * 4), 0) << y;
}

TEST_F(PhotoRoundTripTest, jpegStoresColorsFullyFromQuality90)
{
    const Image image = MakeGradient(64, 64);

    EXPECT_TRUE(HasQuarterColor(EncodeJpeg(image, 89)));
    EXPECT_FALSE(HasQuarterColor(EncodeJpeg(image, 90)));
}

TEST_F(PhotoRoundTripTest, higherQualityMakesLargerFiles)
{
    const Image image = MakePattern(64, 64, Image::Depth::Bits8);

    EXPECT_LT(EncodeJpeg(image, 1).size(), EncodeJpeg(image, 50).size());
    EXPECT_LT(EncodeJpeg(image, 50).size(), EncodeJpeg(image, 100).size());
}

TEST_F(PhotoRoundTripTest, jpegComposesAlphaOverWhite)
{
    Image image = Image::Allocate(16, 16, Image::Depth::Bits8);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            image.Row(y)[4 * x + 3] = 128; // half black
    }

    const Image seen = Store(image, "a.jpg");

    EXPECT_NEAR(seen.Row(8)[32], 127, 1);
    EXPECT_EQ(seen.Row(8)[35], 255);
}

TEST_F(PhotoRoundTripTest, jpegRoundsSixteenBitsToNearest)
{
    Image deep = Image::Allocate(16, 16, Image::Depth::Bits16);
    Image shallow = Image::Allocate(16, 16, Image::Depth::Bits8);
    for (int y = 0; y < 16; ++y) {
        for (int i = 0; i < 64; ++i) {
            deep.Row16(y)[i] = i % 4 == 3 ? 0xFFFF : 100 * 257 + 128; // nearest is 100
            shallow.Row(y)[i] = i % 4 == 3 ? 255 : 100;
        }
    }

    EXPECT_EQ(EncodeJpeg(deep, 95), EncodeJpeg(shallow, 95));
    deep.Row16(0)[0] = 100 * 257 + 129; // nearest is 101
    shallow.Row(0)[0] = 101;
    EXPECT_EQ(EncodeJpeg(deep, 95), EncodeJpeg(shallow, 95));
}

TEST_F(PhotoRoundTripTest, samePhotoGivesSameFile)
{
    const Image image = MakePattern(40, 30, Image::Depth::Bits8);

    Store(image, "a.tif");
    Store(image, "b.tif");

    EXPECT_EQ(ReadFile(PathOf("a.tif")), ReadFile(PathOf("b.tif")));
}

TEST_F(PhotoRoundTripTest, formatIsChosenByExtensionInAnyCase)
{
    const Image image = MakePattern(8, 8, Image::Depth::Bits8);
    Store(image, "a.PNG");
    Store(image, "a.Tiff");
    Store(image, "a.JPG");

    EXPECT_EQ(DetectPhotoFormat(ReadFile(PathOf("a.PNG"))), PhotoFormat::Png);
    EXPECT_EQ(DetectPhotoFormat(ReadFile(PathOf("a.Tiff"))), PhotoFormat::Tiff);
    EXPECT_EQ(DetectPhotoFormat(ReadFile(PathOf("a.JPG"))), PhotoFormat::Jpeg);
}

TEST_F(PhotoRoundTripTest, wrongRequestsAreErrorsAndWriteNothing)
{
    Photo photo;
    photo.image = MakePattern(8, 8, Image::Depth::Bits8);
    PhotoWriter::Options options;
    options.quality = 0;

    EXPECT_THAT(ErrorOf([&] { PhotoWriter::Write(PathOf("a.heic"), photo); }),
                HasSubstr("a.heic: expected a file name that ends in"));
    EXPECT_THAT(ErrorOf([&] { PhotoWriter::Write(PathOf("a.jpg"), photo, options); }),
                HasSubstr("expected a quality from 1 to 100, found 0"));
    EXPECT_THAT(ErrorOf([&] { PhotoWriter::Write(PathOf("a.jpg"), Photo()); }),
                HasSubstr("0 x 0 pixels"));
    EXPECT_THAT(ErrorOf([&] { PhotoWriter::Write(PathOf("no/a.jpg"), photo); }),
                HasSubstr("expected an existing folder"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PhotoRoundTripTest, severalThreadsReadAndWriteAtOnce)
{
    const Image image = MakePattern(64, 48, Image::Depth::Bits16);
    std::vector<Image> results(4);
    std::vector<std::thread> threads;

    for (std::size_t i = 0; i < results.size(); ++i) {
        threads.emplace_back([&, i] {
            const std::string name = std::to_string(i) + (i % 2 == 0 ? ".png" : ".tif");
            results[i] = Store(image, name.c_str());
        });
    }
    for (auto& thread : threads)
        thread.join();

    for (const Image& result : results)
        EXPECT_TRUE(HaveSamePixels(result, image));
}

TEST(PhotoWriter, transparencyThatJpegDoesNotHoldIsTold)
{
    Photo photo;
    photo.image = MakePattern(20, 10, Image::Depth::Bits8, Alpha::Varying);
    Warnings ofJpeg;
    Warnings ofPng;

    PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "a.jpg", &ofJpeg);
    PhotoWriter::Encode(photo, PhotoFormat::Png, {}, "a.png", &ofPng);

    EXPECT_THAT(ofJpeg,
                testing::ElementsAre("JPEG holds no transparency: the picture is laid over white"));
    EXPECT_THAT(ofPng, testing::IsEmpty());
}
