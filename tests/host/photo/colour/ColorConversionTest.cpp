// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/colour/ColorConversion.h"

#include "engine/run/Renderer.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ProfileHandles.h"
#include "photo/colour/ProfileSpaces.h"

#include "host/engine/TestSpaces.h"
#include "host/photo/PhotoSamples.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include <lcms2.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

double EncodeSrgb(double linear)
{
    linear = std::clamp(linear, 0.0, 1.0);
    return linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

DecodedPhoto MakeDecoded(const Image& pixels, const QByteArray& profile)
{
    DecodedPhoto decoded;
    decoded.pixels = pixels.Clone();
    decoded.iccProfile = profile;
    return decoded;
}

QByteArray Save(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(static_cast<int>(size), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

QByteArray MakeGrayProfile(double gamma)
{
    cmsToneCurve* const curve = cmsBuildGamma(nullptr, gamma);
    const QByteArray profile = Save(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    return profile;
}

Photo Reread(const Photo& photo, PhotoFormat format)
{
    return PhotoReader::Decode(PhotoWriter::Encode(photo, format, {}, "a"), "a");
}

} // namespace

TEST(ColorConversion, leavesPixelsOfMatrixProfilesInTheirSpace)
{
    for (const Image::Depth depth : {Image::Depth::Bits8, Image::Depth::Bits16})
        for (const QByteArray& profile :
             {ColorConversion::GetAdobeRgbProfile(), ColorConversion::GetDisplayP3Profile(),
              MakeProPhotoProfile()}) {
            const Image stored = MakePattern(64, 64, depth, Alpha::Varying);
            DecodedPhoto decoded = MakeDecoded(stored, profile);
            std::vector<std::string> warnings;

            EXPECT_EQ(ColorConversion::Settle(decoded, warnings), profile);
            EXPECT_TRUE(HaveSamePixels(decoded.pixels, stored));
            ASSERT_TRUE(decoded.pixels.GetSpace());
            EXPECT_EQ(decoded.pixels.GetSpace()->GetProfile(), profile);
            EXPECT_THAT(warnings, IsEmpty());
            EXPECT_THAT(decoded.reductions, IsEmpty());
        }
}

TEST(ColorConversion, knowsThatTheCurvesOfDisplayP3AreThoseOfSrgb)
{
    const auto find = [](const QByteArray& profile) {
        return ProfileSpaces::Find(profile, Image::Depth::Bits16);
    };
    EXPECT_TRUE(find(ColorConversion::GetDisplayP3Profile())->HasSrgbCurves());
    EXPECT_FALSE(find(ColorConversion::GetAdobeRgbProfile())->HasSrgbCurves());
    EXPECT_EQ(find(ColorConversion::GetDisplayP3Profile())->GetName(), "Display P3");
    EXPECT_EQ(find(ColorConversion::GetDisplayP3Profile()),
              find(ColorConversion::GetDisplayP3Profile()));
}

/// The space leads to the same sRGB as the colour library's own transform.
TEST(ColorConversion, spacesAgreeWithTheColorLibrarysExactTransform)
{
    for (const QByteArray& bytes :
         {ColorConversion::GetAdobeRgbProfile(), ColorConversion::GetDisplayP3Profile(),
          MakeProPhotoProfile(), MakeTableProfile(1024)}) {
        Image stored = MakePattern(64, 64, Image::Depth::Bits8);
        stored.SetSpace(ProfileSpaces::Find(bytes, Image::Depth::Bits8));
        ASSERT_TRUE(stored.GetSpace());
        const ProfileHandle source = OpenProfile(bytes);
        const ProfileHandle target(cmsCreate_sRGBProfile());
        const TransformHandle transform(cmsCreateTransform(
            source.get(), TYPE_RGBA_8, target.get(), TYPE_RGBA_8, INTENT_RELATIVE_COLORIMETRIC,
            cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOOPTIMIZE | cmsFLAGS_COPY_ALPHA));
        Image expected = stored.Clone();
        for (int y = 0; y < 64; ++y)
            cmsDoTransform(transform.get(), stored.Row(y), expected.Row(y), 64);

        EXPECT_LE(LargestDifference(Renderer().ToSrgb(stored), expected), 1);
    }
}

TEST(ColorConversion, convertsPicturesWhoseCurvesAreTooCoarse)
{
    for (const QByteArray& profile : {MakeTableProfile(4096), MakeTableProfile(4)}) {
        DecodedPhoto decoded = MakeDecoded(MakePattern(8, 8, Image::Depth::Bits16), profile);
        std::vector<std::string> warnings;
        const bool isKept =
            ColorConversion::FindKept(PixelMeaning::Rgb, profile, Image::Depth::Bits16).has_value();

        const QByteArray left = ColorConversion::Settle(decoded, warnings);

        EXPECT_EQ(left, isKept ? profile : ColorConversion::GetSrgbProfile());
        EXPECT_THAT(decoded.reductions, SizeIs(isKept ? 0 : 1));
        EXPECT_THAT(warnings, IsEmpty());
    }
    EXPECT_FALSE(
        ColorConversion::FindKept(PixelMeaning::Rgb, MakeTableProfile(4096), Image::Depth::Bits16));
    EXPECT_TRUE(
        ColorConversion::FindKept(PixelMeaning::Rgb, MakeTableProfile(4096), Image::Depth::Bits8));
}

TEST(ColorConversion, srgbPixelsStayUntouchedUnderTheirOwnProfile)
{
    const Image stored = MakePattern(64, 64, Image::Depth::Bits8);
    const QByteArray srgb = Save(cmsCreate_sRGBProfile());
    DecodedPhoto decoded = MakeDecoded(stored, srgb);
    std::vector<std::string> warnings;

    EXPECT_EQ(ColorConversion::Settle(decoded, warnings), srgb);
    EXPECT_TRUE(HaveSamePixels(decoded.pixels, stored));
}

TEST(ColorConversion, photosWithoutProfileStayUntouchedAndGetNone)
{
    const Image stored = MakePattern(64, 64, Image::Depth::Bits8);
    DecodedPhoto decoded = MakeDecoded(stored, {});
    std::vector<std::string> warnings;

    EXPECT_TRUE(ColorConversion::Settle(decoded, warnings).isEmpty());
    EXPECT_TRUE(HaveSamePixels(decoded.pixels, stored));
}

TEST(ColorConversion, damagedOrForeignProfileIsLeftOutWithAWarning)
{
    const Image stored = MakePattern(8, 8, Image::Depth::Bits8);
    for (const QByteArray& profile : {QByteArray(200, 'x'), MakeGrayProfile(1.8)}) {
        DecodedPhoto decoded = MakeDecoded(stored, profile);
        std::vector<std::string> warnings;

        EXPECT_TRUE(ColorConversion::Settle(decoded, warnings).isEmpty());
        EXPECT_TRUE(HaveSamePixels(decoded.pixels, stored));
        ASSERT_THAT(warnings, SizeIs(1));
        EXPECT_THAT(warnings[0], HasSubstr("colour profile"));
    }
}

TEST(ColorConversion, grayProfileActsOnGrayPictures)
{
    for (const Image::Depth depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const bool deep = depth == Image::Depth::Bits16;
        const double white = deep ? 65535 : 255;
        Image stored = Image::Allocate(256, 1, depth);
        for (int i = 0; i < 4 * 256; ++i) {
            if (deep)
                stored.Row16(0)[i] = static_cast<std::uint16_t>(i / 4 * 257);
            else
                stored.Row(0)[i] = static_cast<std::uint8_t>(i / 4);
        }
        DecodedPhoto decoded = MakeDecoded(stored, MakeGrayProfile(1.8));
        decoded.meaning = PixelMeaning::Gray;
        std::vector<std::string> warnings;

        ColorConversion::Settle(decoded, warnings);

        EXPECT_THAT(decoded.reductions, SizeIs(1));
        EXPECT_FALSE(decoded.pixels.GetSpace());

        for (int x = 0; x < 256; ++x) {
            const double expected = white * EncodeSrgb(std::pow(x / 255.0, 1.8));
            for (int i = 4 * x; i < 4 * x + 3; ++i) {
                const double seen = deep ? decoded.pixels.Row16(0)[i] : decoded.pixels.Row(0)[i];
                EXPECT_NEAR(seen, expected, deep ? 64 : 1) << x;
            }
            const int alpha = 4 * x + 3;
            EXPECT_EQ(deep ? decoded.pixels.Row16(0)[alpha] : decoded.pixels.Row(0)[alpha],
                      deep ? x * 257 : x);
        }
    }
}

TEST(ColorConversion, inksWithoutProfileMultiply)
{
    Image stored = Image::Allocate(1, 1, Image::Depth::Bits8);
    const std::uint8_t inks[] = {51, 0, 255, 51};
    std::copy_n(inks, 4, stored.Row(0));
    for (const bool inverted : {false, true}) {
        DecodedPhoto decoded = MakeDecoded(stored, {});
        decoded.meaning = inverted ? PixelMeaning::CmykInverted : PixelMeaning::Cmyk;
        std::vector<std::string> warnings;

        ColorConversion::Settle(decoded, warnings);

        EXPECT_THAT(decoded.reductions, SizeIs(1));

        const std::array<int, 4> expected =
            inverted ? std::array<int, 4>{10, 0, 51, 255} : std::array<int, 4>{163, 204, 0, 255};
        for (int channel = 0; channel < 4; ++channel)
            EXPECT_EQ(decoded.pixels.Row(0)[channel], expected[static_cast<std::size_t>(channel)]);
    }
}

TEST(ColorConversion, profileTravelsThroughEveryFormat)
{
    Photo photo;
    photo.image = MakeGradient(32, 32);
    photo.metadata.iccProfile = ColorConversion::GetSrgbProfile();

    for (const PhotoFormat format : {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff}) {
        const Photo read = Reread(photo, format);
        EXPECT_EQ(read.metadata.iccProfile, photo.metadata.iccProfile);
        EXPECT_THAT(read.warnings, IsEmpty());
    }
}

TEST(ColorConversion, wideProfileTravelsThroughEveryFormat)
{
    Photo photo;
    photo.image = MakeGradient(32, 32);
    photo.metadata.iccProfile = ColorConversion::GetAdobeRgbProfile();

    for (const PhotoFormat format : {PhotoFormat::Png, PhotoFormat::Tiff}) {
        const Photo read = Reread(photo, format);
        EXPECT_EQ(read.metadata.iccProfile, photo.metadata.iccProfile);
        EXPECT_TRUE(HaveSamePixels(read.image, photo.image));
        EXPECT_THAT(read.reductions, IsEmpty());
        EXPECT_TRUE(HaveSamePixels(Reread(read, format).image, photo.image));
    }
}
