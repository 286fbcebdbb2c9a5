// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/colour/ColorConversion.h"

#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

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

using Color = std::array<double, 3>;

double EncodeSrgb(double linear)
{
    linear = std::clamp(linear, 0.0, 1.0);
    return linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

/// The published matrices of Adobe RGB (1998) to XYZ and of XYZ to sRGB, both for D65, multiplied.
Color AdobeRgbToSrgb(const Color& color)
{
    constexpr double toXyz[3][3] = {{0.5767309, 0.1855540, 0.1881852},
                                    {0.2973769, 0.6273491, 0.0752741},
                                    {0.0270343, 0.0706872, 0.9911085}};
    constexpr double toSrgb[3][3] = {{3.2404542, -1.5371385, -0.4985314},
                                     {-0.9692660, 1.8760108, 0.0415560},
                                     {0.0556434, -0.2040259, 1.0572252}};
    Color result{};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        double linear = 0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            for (std::size_t source = 0; source < 3; ++source)
                linear += toSrgb[channel][axis] * toXyz[axis][source] *
                          std::pow(color[source], 563.0 / 256.0);
        }
        result[channel] = EncodeSrgb(linear);
    }
    return result;
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

TEST(ColorConversion, adobeRgbOf8BitsIsWithinOneStepOfTheFormula)
{
    const Image stored = MakePattern(64, 64, Image::Depth::Bits8, Alpha::Varying);
    DecodedPhoto decoded = MakeDecoded(stored, ColorConversion::GetAdobeRgbProfile());
    std::vector<std::string> warnings;

    const QByteArray profile = ColorConversion::ToSrgb(decoded, warnings);

    EXPECT_EQ(profile, ColorConversion::GetSrgbProfile());
    EXPECT_THAT(warnings, IsEmpty());
    double largest = 0;
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const std::uint8_t* const before = stored.Row(y) + 4 * x;
            const std::uint8_t* const after = decoded.pixels.Row(y) + 4 * x;
            const Color expected =
                AdobeRgbToSrgb({before[0] / 255.0, before[1] / 255.0, before[2] / 255.0});
            for (std::size_t c = 0; c < 3; ++c)
                largest = std::max(largest, std::abs(255 * expected[c] - after[c]));
            ASSERT_EQ(after[3], before[3]);
        }
    }
    EXPECT_LT(largest, 1.0);
}

TEST(ColorConversion, adobeRgbOf16BitsIsWithinAQuarterOfAnEightBitStep)
{
    const Image stored = MakePattern(64, 64, Image::Depth::Bits16, Alpha::Varying);
    DecodedPhoto decoded = MakeDecoded(stored, ColorConversion::GetAdobeRgbProfile());
    std::vector<std::string> warnings;

    ColorConversion::ToSrgb(decoded, warnings);

    double largest = 0;
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const std::uint16_t* const before = stored.Row16(y) + 4 * x;
            const std::uint16_t* const after = decoded.pixels.Row16(y) + 4 * x;
            const Color expected =
                AdobeRgbToSrgb({before[0] / 65535.0, before[1] / 65535.0, before[2] / 65535.0});
            for (std::size_t c = 0; c < 3; ++c)
                largest = std::max(largest, std::abs(65535 * expected[c] - after[c]));
            ASSERT_EQ(after[3], before[3]);
        }
    }
    EXPECT_LT(largest, 64);
}

TEST(ColorConversion, agreesWithTheColorLibrarysExactTransform)
{
    const Image stored = MakePattern(64, 64, Image::Depth::Bits16);
    const QByteArray bytes = ColorConversion::GetAdobeRgbProfile();
    DecodedPhoto decoded = MakeDecoded(stored, bytes);
    std::vector<std::string> warnings;
    const cmsHPROFILE source =
        cmsOpenProfileFromMem(bytes.constData(), static_cast<cmsUInt32Number>(bytes.size()));
    const cmsHPROFILE target = cmsCreate_sRGBProfile();
    const cmsHTRANSFORM transform = cmsCreateTransform(
        source, TYPE_RGBA_16, target, TYPE_RGBA_16, INTENT_RELATIVE_COLORIMETRIC,
        cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOOPTIMIZE | cmsFLAGS_COPY_ALPHA);
    Image expected = stored.Clone();
    for (int y = 0; y < 64; ++y)
        cmsDoTransform(transform, stored.Row(y), expected.Row(y), 64);

    ColorConversion::ToSrgb(decoded, warnings);

    EXPECT_LE(LargestDifference(decoded.pixels, expected), 8);
    cmsDeleteTransform(transform);
    cmsCloseProfile(target);
    cmsCloseProfile(source);
}

TEST(ColorConversion, srgbPixelsStayUntouchedUnderTheirOwnProfile)
{
    const Image stored = MakePattern(64, 64, Image::Depth::Bits8);
    const QByteArray srgb = Save(cmsCreate_sRGBProfile());
    DecodedPhoto decoded = MakeDecoded(stored, srgb);
    std::vector<std::string> warnings;

    EXPECT_EQ(ColorConversion::ToSrgb(decoded, warnings), srgb);
    EXPECT_TRUE(HaveSamePixels(decoded.pixels, stored));
}

TEST(ColorConversion, photosWithoutProfileStayUntouchedAndGetNone)
{
    const Image stored = MakePattern(64, 64, Image::Depth::Bits8);
    DecodedPhoto decoded = MakeDecoded(stored, {});
    std::vector<std::string> warnings;

    EXPECT_TRUE(ColorConversion::ToSrgb(decoded, warnings).isEmpty());
    EXPECT_TRUE(HaveSamePixels(decoded.pixels, stored));
}

TEST(ColorConversion, damagedOrForeignProfileIsLeftOutWithAWarning)
{
    const Image stored = MakePattern(8, 8, Image::Depth::Bits8);
    for (const QByteArray& profile : {QByteArray(200, 'x'), MakeGrayProfile(1.8)}) {
        DecodedPhoto decoded = MakeDecoded(stored, profile);
        std::vector<std::string> warnings;

        EXPECT_TRUE(ColorConversion::ToSrgb(decoded, warnings).isEmpty());
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

        ColorConversion::ToSrgb(decoded, warnings);

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

        ColorConversion::ToSrgb(decoded, warnings);

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

TEST(ColorConversion, photoTaggedAdobeRgbIsConvertedAndTaggedSrgb)
{
    Photo photo;
    photo.image = MakeGradient(32, 32);
    photo.metadata.iccProfile = ColorConversion::GetAdobeRgbProfile();

    const Photo read = Reread(photo, PhotoFormat::Png);

    EXPECT_EQ(read.metadata.iccProfile, ColorConversion::GetSrgbProfile());
    const Color expected = AdobeRgbToSrgb(
        {photo.image.Row(20)[40] / 255.0, photo.image.Row(20)[41] / 255.0, 96 / 255.0});
    for (int c = 0; c < 3; ++c)
        EXPECT_NEAR(read.image.Row(20)[40 + c], 255 * expected[static_cast<std::size_t>(c)], 1);
}
