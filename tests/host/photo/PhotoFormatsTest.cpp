// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/Renderer.h"
#include "image/ImageOrientation.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/MetadataTags.h"

#include "FormatSamples.h"
#include "PhotoSamples.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include <exiv2/exiv2.hpp>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string ErrorOfDecoding(const Bytes& content)
{
    return ErrorOf([&] { PhotoReader::Decode(content, "photo"); });
}

QByteArray MakeExif(int orientation)
{
    Exiv2::ExifData tags;
    tags["Exif.Image.Make"] = "Lumetra Works";
    tags["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
    tags["Exif.Photo.ISOSpeedRatings"] = std::uint16_t(400);
    return MetadataTags::EncodeExif(tags, Exiv2::littleEndian);
}

std::string GetTag(const PhotoMetadata& metadata, const char* key)
{
    Exiv2::ExifData tags;
    MetadataTags::DecodeExif(metadata.exif, tags);
    const auto found = tags.findKey(Exiv2::ExifKey(key));
    return found == tags.end() ? "none" : found->toString();
}

double Encode(double linear)
{
    return linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

TEST(Webp, isReadWithEveryPixelAndItsMetadata)
{
    const Image pixels = MakePattern(37, 21, Image::Depth::Bits8);
    const QByteArray xmp("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"/>");

    const Photo photo =
        PhotoReader::Decode(MakeWebp(pixels, MakeExif(1), xmp, GetSrgb()), "photo.webp");

    EXPECT_TRUE(HaveSamePixels(photo.image, pixels));
    EXPECT_EQ(GetTag(photo.metadata, "Exif.Image.Make"), "Lumetra Works");
    EXPECT_EQ(photo.metadata.xmp, xmp);
    EXPECT_EQ(photo.metadata.iccProfile, GetSrgb());
    EXPECT_THAT(photo.warnings, IsEmpty());
}

TEST(Webp, isTurnedAsItsExifBlockSays)
{
    const Image pixels = MakePattern(30, 20, Image::Depth::Bits8);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const Photo photo =
            PhotoReader::Decode(MakeWebp(pixels, MakeExif(orientation), {}, {}), "photo.webp");
        EXPECT_TRUE(HaveSamePixels(photo.image, TurnUpright(pixels, orientation))) << orientation;
        EXPECT_EQ(GetTag(photo.metadata, "Exif.Image.Orientation"), "1");
    }
}

TEST(Webp, keepsItsColourProfile)
{
    const Image pixels = MakePattern(30, 20, Image::Depth::Bits8);
    const Photo photo = PhotoReader::Decode(
        MakeWebp(pixels, {}, {}, ColorConversion::GetDisplayP3Profile()), "photo.webp");
    EXPECT_TRUE(HaveSamePixels(photo.image, pixels));
    EXPECT_EQ(photo.metadata.iccProfile, ColorConversion::GetDisplayP3Profile());
    EXPECT_TRUE(photo.image.GetSpace());
}

TEST(Webp, isRefusedWhenItIsTruncated)
{
    Bytes webp = MakeWebp(MakePattern(200, 100, Image::Depth::Bits8), {}, {}, {});
    webp.resize(webp.size() / 2);
    EXPECT_THAT(ErrorOfDecoding(webp), HasSubstr("the WebP data cannot be read"));
    webp.resize(14);
    EXPECT_THAT(ErrorOfDecoding(webp), HasSubstr("expected a WebP header"));
}

TEST(Webp, isRefusedWhenItsHeaderClaimsTooMuch)
{
    EXPECT_THAT(ErrorOfDecoding(MakeWebpHeader(30'000, 30'000)),
                AllOf(HasSubstr("30000 x 30000"), HasSubstr("at most 500 megapixels")));
}

TEST(Heif, isReadWithItsMetadata)
{
    const Image pixels = MakeGradient(128, 64);

    const Photo photo = PhotoReader::Decode(MakeHeif(pixels, 1, MakeExif(6)), "photo.heic");

    EXPECT_LE(LargestDifference(photo.image, pixels), 12);
    EXPECT_EQ(GetTag(photo.metadata, "Exif.Image.Make"), "Lumetra Works");
    EXPECT_EQ(GetTag(photo.metadata, "Exif.Image.Orientation"), "1");
    EXPECT_THAT(photo.warnings, IsEmpty());
}

TEST(Heif, isTurnedAsTheFileItselfSays)
{
    const Image pixels = MakeGradient(128, 64);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const Photo photo = PhotoReader::Decode(MakeHeif(pixels, orientation, {}), "photo.heic");
        const int difference = LargestDifference(photo.image, TurnUpright(pixels, orientation));
        EXPECT_GE(difference, 0) << orientation;
        EXPECT_LE(difference, 12) << orientation;
    }
}

TEST(Heif, isRefusedWhenItsHeaderClaimsTooMuch)
{
    Bytes heif = MakeHeif(MakeGradient(128, 64), 1, {});
    SetHeifSize(heif, 30'000, 30'000);
    EXPECT_THAT(ErrorOfDecoding(heif),
                AllOf(HasSubstr("30000 x 30000"), HasSubstr("at most 500 megapixels")));
}

TEST(Heif, isRefusedWhenItIsTruncated)
{
    Bytes heif = MakeHeif(MakeGradient(128, 64), 1, {});
    heif.resize(heif.size() - 200);
    EXPECT_THAT(ErrorOfDecoding(heif), HasSubstr("photo: the HEIF data cannot be read"));
}

TEST(Raw, isDevelopedToItsLight)
{
    const double light[] = {0.05, 0.4, 0.2};
    const Bytes dng = MakeDng(64, 48, light, 1);

    const Photo photo = PhotoReader::Decode(dng, "photo.dng");

    EXPECT_EQ(photo.image.GetWidth(), 64);
    EXPECT_EQ(photo.image.GetHeight(), 48);
    ASSERT_EQ(photo.image.GetDepth(), Image::Depth::Bits16);
    for (int channel = 0; channel < 3; ++channel)
        EXPECT_NEAR(photo.image.Row16(24)[4 * 32 + channel] / 65535.0, Encode(light[channel]), 0.01)
            << channel;
    EXPECT_EQ(photo.image.Row16(24)[4 * 32 + 3], 65535);
}

TEST(Raw, isHalfAsLargeWhileBrowsing)
{
    const double light[] = {0.05, 0.4, 0.2};
    const Photo photo = PhotoReader::DecodeReduced(MakeDng(64, 48, light, 1), "photo.dng", 32);
    EXPECT_EQ(photo.image.GetWidth(), 32);
    EXPECT_EQ(photo.image.GetHeight(), 24);
    EXPECT_NEAR(photo.image.Row16(12)[4 * 16 + 1] / 65535.0, Encode(light[1]), 0.01);
}

TEST(Raw, isTurnedUpright)
{
    const double light[] = {0.1, 0.1, 0.1};
    for (const int orientation : {3, 6, 8}) {
        const Photo photo = PhotoReader::Decode(MakeDng(64, 48, light, orientation), "photo.dng");
        EXPECT_EQ(photo.image.GetWidth(), orientation == 3 ? 64 : 48) << orientation;
    }
}

TEST(Raw, bringsNoTagsOfItsStorageIntoAnotherFile)
{
    const double light[] = {0.1, 0.1, 0.1};
    const Photo photo = PhotoReader::Decode(MakeDng(64, 48, light, 1), "photo.dng");
    EXPECT_EQ(GetTag(photo.metadata, "Exif.Image.Make"), "Lumetra Works");
    for (const char* key : {"Exif.Image.DNGVersion", "Exif.Image.ColorMatrix1",
                            "Exif.Image.PhotometricInterpretation", "Exif.Image.CFAPattern"})
        EXPECT_EQ(GetTag(photo.metadata, key), "none") << key;
    const Bytes jpeg = PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "out.jpg");
    EXPECT_EQ(PhotoReader::Decode(jpeg, "out.jpg").image.GetWidth(), 64);
}

TEST(Raw, isRefusedWhenItsHeaderClaimsTooMuch)
{
    const double light[] = {0.1, 0.1, 0.1};
    Bytes dng = MakeDng(64, 48, light, 1);
    SetDngSize(dng, 30'000, 30'000);
    EXPECT_THAT(ErrorOfDecoding(dng), AllOf(HasSubstr("photo: "), HasSubstr("500 megapixels")));
}

TEST(Raw, truncatedFilesAreRefused)
{
    constexpr double light[] = {0.2, 0.2, 0.2};
    Bytes dng = MakeDng(64, 48, light, 1);
    SetDngSize(dng, 64, 480); // ten times the data that there are

    EXPECT_THAT(ErrorOfDecoding(dng), HasSubstr("photo: the file ends before its picture does"));
}

TEST(Raw, ofAnUnknownKindIsRefusedWithAWayOut)
{
    Bytes raf(200, 0);
    const std::string magic = "FUJIFILMCCD-RAW 0201";
    std::copy(magic.begin(), magic.end(), raf.begin());
    EXPECT_THAT(ErrorOfDecoding(raf), HasSubstr("photo: "));
    EXPECT_THAT(ErrorOfDecoding(raf), HasSubstr("raw file"));
}

TEST(OtherFormats, areNamedInTheRefusal)
{
    const auto refusal = [](const std::string& begin) {
        Bytes content(begin.begin(), begin.end());
        content.resize(100);
        return ErrorOfDecoding(content);
    };
    EXPECT_EQ(refusal("GIF89a"),
              "photo: expected a JPEG, PNG, TIFF, WebP, HEIC or raw picture, found a GIF picture");
    EXPECT_THAT(refusal("8BPS"), HasSubstr("found a Photoshop document"));
    EXPECT_THAT(refusal("%PDF-1.7"), HasSubstr("found a PDF document"));
    EXPECT_THAT(refusal(std::string("\0\0\0\x18"
                                    "ftypisom",
                                    12)),
                HasSubstr("found a film"));
    EXPECT_THAT(refusal("hello"), HasSubstr("found other content"));
}

TEST(OtherFormats, framesOfAnimationsAreTold)
{
    Photo photo;
    photo.image = MakePattern(8, 8, Image::Depth::Bits8);
    Bytes png = PhotoWriter::Encode(photo, PhotoFormat::Png, {}, "animation");
    Bytes chunk = ToBytes(QByteArray("\0\0\0\x08"
                                     "acTL"
                                     "\0\0\0\x05\0\0\0\0",
                                     16));
    const std::uint32_t crc = Crc(chunk, 4, 16);
    for (int shift = 24; shift >= 0; shift -= 8)
        chunk.push_back(static_cast<std::uint8_t>(crc >> shift));
    png.insert(png.begin() + 33, chunk.begin(), chunk.end());

    EXPECT_THAT(PhotoReader::Decode(png, "animation.png").reductions,
                testing::ElementsAre("it is an animation of 5 frames; only its still picture is "
                                     "read"));
}

TEST(DisplayP3, isKeptAndSrgbWithinAStepOfTheFormula)
{
    Photo photo;
    photo.image = Image::Allocate(3, 1, Image::Depth::Bits8);
    const std::uint8_t colours[3][4] = {
        {180, 120, 90, 255}, {60, 130, 100, 255}, {90, 90, 200, 255}};
    std::copy_n(colours[0], 12, photo.image.Row(0));
    photo.metadata.iccProfile = ColorConversion::GetDisplayP3Profile();
    const Bytes png = PhotoWriter::Encode(photo, PhotoFormat::Png, {}, "p3.png");

    const Photo read = PhotoReader::Decode(png, "p3.png");
    const Image converted = Renderer().ToSrgb(read.image);

    EXPECT_TRUE(HaveSamePixels(read.image, photo.image));
    EXPECT_EQ(read.metadata.iccProfile, photo.metadata.iccProfile);
    EXPECT_THAT(read.reductions, IsEmpty());
    EXPECT_THAT(read.warnings, IsEmpty());
    const double matrix[3][3] = {{1.2249402, -0.2249402, 0.0},
                                 {-0.0420570, 1.0420570, 0.0},
                                 {-0.0196376, -0.0786360, 1.0982736}};
    for (int i = 0; i < 3; ++i) {
        double linear[3];
        for (int c = 0; c < 3; ++c) {
            const double e = colours[i][c] / 255.0;
            linear[c] = e <= 0.04045 ? e / 12.92 : std::pow((e + 0.055) / 1.055, 2.4);
        }
        for (int c = 0; c < 3; ++c) {
            const double sum =
                matrix[c][0] * linear[0] + matrix[c][1] * linear[1] + matrix[c][2] * linear[2];
            EXPECT_NEAR(converted.Row(0)[4 * i + c], 255 * Encode(std::clamp(sum, 0.0, 1.0)), 1.0)
                << i << ", " << c;
        }
    }
}

TEST(JpegThumbnails, areDecodedAtAFractionOfTheirSize)
{
    Photo photo;
    photo.image = MakeGradient(1600, 1200);
    const Bytes jpeg = PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "large.jpg");

    EXPECT_EQ(PhotoReader::DecodeReduced(jpeg, "large.jpg", 200).image.GetWidth(), 200);
    EXPECT_EQ(PhotoReader::DecodeReduced(jpeg, "large.jpg", 201).image.GetWidth(), 400);
    EXPECT_EQ(PhotoReader::DecodeReduced(jpeg, "large.jpg", 900).image.GetWidth(), 1600);
    EXPECT_EQ(PhotoReader::DecodeReduced(jpeg, "large.jpg", 9000).image.GetWidth(), 1600);
}

} // namespace
