// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"

#include "host/photo/PhotoSamples.h"
#include "host/photo/metadata/MetadataSamples.h"

#include <gmock/gmock.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

PhotoWriter::Options Lossless()
{
    PhotoWriter::Options options;
    options.isLossless = true;
    return options;
}

Bytes Encode(const Image& image, const PhotoWriter::Options& options)
{
    Photo photo;
    photo.image = image;
    return PhotoWriter::Encode(photo, PhotoFormat::Webp, options, "a.webp");
}

Image Decode(const Bytes& webp)
{
    return PhotoReader::Decode(webp, "a.webp").image;
}

TEST(WebpEncoder, keepsEveryPixelWhenItIsLossless)
{
    for (const auto alpha : {Alpha::Opaque, Alpha::Varying}) {
        const Image image = MakePattern(211, 97, Image::Depth::Bits8, alpha);

        EXPECT_TRUE(HaveSamePixels(Decode(Encode(image, Lossless())), image));
    }
}

TEST(WebpEncoder, roundsSixteenBitsToTheNearest)
{
    Image image = MakePattern(5, 3, Image::Depth::Bits16);
    image.Row16(0)[0] = 128 * 257 + 200; // nearer to 129

    EXPECT_EQ(Decode(Encode(image, Lossless())).Row(0)[0], 129);
}

TEST(WebpEncoder, losesLittleAtHighQualityAndIsSmallerAtLowQuality)
{
    const Image image = MakeGradient(200, 120);
    PhotoWriter::Options high;
    high.quality = 95;
    PhotoWriter::Options low;
    low.quality = 20;

    EXPECT_LE(LargestDifference(Decode(Encode(image, high)), image), 12);
    EXPECT_LT(Encode(image, low).size(), Encode(image, high).size());
}

TEST(WebpEncoder, keepsProfileExifAndXmpAndTellsThatItHoldsNoIptc)
{
    Photo photo;
    photo.image = MakeGradient(30, 20);
    photo.metadata = MakeBlocks();
    photo.metadata.iccProfile = ColorConversion::GetDisplayP3Profile();
    Warnings warnings;

    const Bytes webp = PhotoWriter::Encode(photo, PhotoFormat::Webp, {}, "a.webp", &warnings);

    const PhotoMetadata read = PhotoReader::Decode(webp, "a.webp").metadata;
    EXPECT_EQ(read.iccProfile, photo.metadata.iccProfile);
    EXPECT_EQ(DescribeExif(read.exif)["Exif.Image.Artist"], "A. Photographer");
    EXPECT_EQ(DescribeXmp(read.xmp)["Xmp.photoshop.Credit"], "Agency");
    EXPECT_THAT(warnings, ElementsAre("WebP holds no IPTC data; they are left out"));
}

TEST(WebpEncoder, refusesASideThatTheFormatCannotHold)
{
    EXPECT_THAT(ErrorOf([] { Encode(MakePattern(16384, 1, Image::Depth::Bits8), {}); }),
                HasSubstr("a.webp: expected at most 16383 pixels along a side, which is all that "
                          "WebP holds, found 16384 x 1"));
    EXPECT_EQ(Decode(Encode(MakePattern(16383, 1, Image::Depth::Bits8), {})).GetWidth(), 16383);
}

TEST(WebpEncoder, makesNoFileWhenItIsStopped)
{
    const Image image = MakePattern(300, 200, Image::Depth::Bits8);
    int asked = 0;
    const auto stop = [&asked](int) { return ++asked < 2; };

    const auto encoder =
        PhotoWriter::Start(DescribeForm(image), {}, PhotoFormat::Webp, {}, "a.webp", nullptr, stop);
    encoder->Write(image, 0, image.GetHeight());

    EXPECT_THAT(encoder->Finish(), IsEmpty());
    EXPECT_EQ(asked, 2);
}

} // namespace
