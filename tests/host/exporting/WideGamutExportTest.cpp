// SPDX-License-Identifier: GPL-2.0-or-later
// Photos in spaces wider than sRGB, from file to file.
#include "ExportSamples.h"

#include "host/engine/TestPictures.h"
#include "host/engine/TestSpaces.h"
#include "host/photo/PhotoSamples.h"

#include "engine/run/Renderer.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/MetadataTags.h"

#include <gmock/gmock.h>

#include <optional>
#include <tuple>

#include <exiv2/exiv2.hpp>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// The primaries and their mixtures at several brightnesses, in fields of 16 pixels.
Image MakePatches(Image::Depth depth, const TestSpace& space, int alpha = 255)
{
    constexpr int field = 16;
    Image picture = Image::Allocate(8 * field, 3 * field, depth);
    picture.SetSpace(space.space);
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x) {
            const int level = 255 - 70 * (y / field);
            for (int c = 0; c < 4; ++c) {
                const int value = c == 3 ? alpha : (x / field >> c & 1) * level;
                if (depth == Image::Depth::Bits16)
                    picture.Row16(y)[4 * x + c] = static_cast<std::uint16_t>(257 * value);
                else
                    picture.Row(y)[4 * x + c] = static_cast<std::uint8_t>(value);
            }
        }
    return picture;
}

Bytes MakeFile(const Image& picture, PhotoFormat format)
{
    Photo photo;
    photo.image = picture;
    photo.metadata.iccProfile = picture.GetSpace()->GetProfile();
    PhotoWriter::Options options;
    options.quality = 100;
    return PhotoWriter::Encode(photo, format, options, "in");
}

/// So little that nobody sees it, and yet everything is drawn.
Packages MakeTrace()
{
    return {MakeSettings(
        {MakeEffect("exposure", {{"stops", 1e-5}}), MakeEffect("contrast", {{"amount", 1e-3}})})};
}

class WideGamutExport : public testing::TestWithParam<std::tuple<std::size_t, PhotoFormat>>
{
protected:
    const TestSpace& GetSpace() const { return GetTestSpaces()[std::get<0>(GetParam())]; }
    static PhotoFormat GetFormat() { return std::get<1>(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Spaces, WideGamutExport,
                         testing::Combine(testing::Values(0u, 1u, 2u),
                                          testing::Values(PhotoFormat::Jpeg, PhotoFormat::Png,
                                                          PhotoFormat::Tiff)));

TEST_P(WideGamutExport, coloursOutsideOfSrgbComeBackWithTheirProfile)
{
    for (const Image::Depth depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const bool isJpeg = GetFormat() == PhotoFormat::Jpeg;
        if (isJpeg && depth == Image::Depth::Bits16)
            continue;
        const Image patches = MakePatches(depth, GetSpace());
        ExportRecipe recipe = MakeRecipe(MakeTrace(), GetFormat());
        recipe.encoding.quality = 100;

        const Converted made = Convert(MakeFile(patches, GetFormat()), recipe);
        const Photo read = PhotoReader::Decode(made.file, "out");

        EXPECT_THAT(made.warnings, IsEmpty());
        EXPECT_EQ(read.metadata.iccProfile, GetSpace().space->GetProfile());
        EXPECT_EQ(read.image.GetSpace(), GetSpace().space);
        // JPEG's own rounding of brightness and colour, twice.
        const int step = depth == Image::Depth::Bits16 ? 257 : isJpeg ? 3 : 1;
        EXPECT_LE(LargestDifference(read.image, patches), step);
        EXPECT_GE(LargestDifference(read.image, patches), 0);
    }
}

TEST_P(WideGamutExport, isTheSameFromTheFileAndFromThePhoto)
{
    const Bytes file =
        MakeFile(InSpace(MakeRandomPicture(309, 217, Image::Depth::Bits8, 3), GetSpace().space),
                 PhotoFormat::Jpeg);
    ASSERT_TRUE(CanStream(file));
    for (const bool embedsProfile : {true, false})
        for (const int longestSide : {0, 100})
            for (const Packages& packages : {MakeLayers(), MakeMixedRun(), Packages()}) {
                ExportRecipe recipe = MakeRecipe(packages, GetFormat());
                recipe.embedsProfile = embedsProfile;
                recipe.longestSide = longestSide;
                for (const int threads : {1, 2})
                    EXPECT_EQ(Convert(file, recipe, threads).file, ConvertPhoto(file, recipe).file);
            }
}

TEST_P(WideGamutExport, becomesSrgbWhereItGetsNoProfile)
{
    const Image patches = MakePatches(Image::Depth::Bits8, GetSpace());
    ExportRecipe recipe = MakeRecipe(Packages(), GetFormat());
    recipe.embedsProfile = false;
    recipe.encoding.quality = 100;

    const Converted made = Convert(MakeFile(patches, PhotoFormat::Png), recipe);
    const Photo read = PhotoReader::Decode(made.file, "out");

    EXPECT_TRUE(read.metadata.iccProfile.isEmpty());
    EXPECT_FALSE(read.image.GetSpace());
    EXPECT_LE(LargestDifference(read.image, Renderer().ToSrgb(patches)),
              GetFormat() == PhotoFormat::Jpeg ? 3 : 0);
    EXPECT_THAT(made.warnings, ElementsAre(HasSubstr("its colours are converted from ")));
}

TEST(WideGamutExport, keepsTransparencyAndTurnsRoundsAndShrinks)
{
    const TestSpace& p3 = GetTestSpaces().front();
    const Image patches = MakePatches(Image::Depth::Bits16, p3, 128);
    ExportRecipe recipe = MakeRecipe(MakeTrace(), PhotoFormat::Png);
    recipe.depth = Image::Depth::Bits8;
    recipe.longestSide = 64;

    const Photo read =
        PhotoReader::Decode(Convert(MakeFile(patches, PhotoFormat::Tiff), recipe).file, "out");

    EXPECT_EQ(read.image.GetWidth(), 64);
    EXPECT_EQ(read.image.GetDepth(), Image::Depth::Bits8);
    EXPECT_EQ(read.image.GetSpace(), p3.space);
    // The middle of the green field, which is the third.
    const std::uint8_t* const green = read.image.Row(4) + 4 * (2 * 8 + 4);
    EXPECT_THAT(std::vector<int>(green, green + 4), ElementsAre(0, 255, 0, 128));
}

TEST(WideGamutExport, turnedPhotosKeepTheirSpace)
{
    const TestSpace& p3 = GetTestSpaces().front();
    const Bytes jpeg =
        AddTags(MakeFile(MakePatches(Image::Depth::Bits8, p3), PhotoFormat::Jpeg), 6);

    const Photo read = PhotoReader::Decode(Convert(jpeg, MakeTrace()).file, "out");

    EXPECT_EQ(read.image.GetWidth(), 48);
    EXPECT_EQ(read.image.GetSpace(), p3.space);
    const std::uint8_t* const green = read.image.Row(40) + 4 * 40;
    EXPECT_NEAR(green[0], 0, 3);
    EXPECT_NEAR(green[1], 255, 3);
}

TEST(WideGamutExport, isBroughtToSrgbWhereTheFormatRefusesTheProfile)
{
    QByteArray profile = ColorConversion::GetDisplayP3Profile();
    profile[64 + 3] = 77; // a rendering intent that does not exist
    Photo photo;
    photo.image = MakePatches(Image::Depth::Bits8, GetTestSpaces().front());
    photo.metadata.iccProfile = profile;
    const Bytes tiff = PhotoWriter::Encode(photo, PhotoFormat::Tiff, {}, "in");
    ASSERT_TRUE(PhotoReader::Decode(tiff, "in").image.GetSpace());

    const Converted made = Convert(tiff, MakeRecipe(Packages(), PhotoFormat::Png));
    const Photo read = PhotoReader::Decode(made.file, "out");

    EXPECT_EQ(read.metadata.iccProfile, ColorConversion::GetSrgbProfile());
    EXPECT_TRUE(HaveSamePixels(read.image, Renderer().ToSrgb(photo.image)));
    EXPECT_THAT(made.warnings, ElementsAre(HasSubstr("its colours are converted from ")));
}

TEST(WideGamutExport, saysInTheExifBlockWhatThePixelsAre)
{
    const auto getColourSpace = [](const Bytes& file) {
        Exiv2::ExifData tags;
        MetadataTags::DecodeExif(PhotoReader::Decode(file, "out").metadata.exif, tags);
        return tags["Exif.Photo.ColorSpace"].toString();
    };
    const Bytes plain =
        MakeFile(MakePatches(Image::Depth::Bits8, GetTestSpaces().front()), PhotoFormat::Jpeg);
    MetadataTags::Initialise();
    const auto file = Exiv2::ImageFactory::open(plain.data(), static_cast<long>(plain.size()));
    file->readMetadata();
    file->exifData()["Exif.Photo.ColorSpace"] = std::uint16_t(1);
    file->writeMetadata();
    file->io().open();
    const Exiv2::byte* const data = file->io().mmap();
    const Bytes tagged(data, data + file->io().size());
    ExportRecipe recipe = MakeRecipe(Packages());

    EXPECT_EQ(getColourSpace(Convert(tagged, recipe).file), "65535");
    recipe.embedsProfile = false;
    EXPECT_EQ(getColourSpace(Convert(tagged, recipe).file), "1");
}

TEST(WideGamutExport, drawsPhotosOfSeveralSpacesWithOneLook)
{
    const ExportRecipe recipe = MakeRecipe(MakeColourRun(), PhotoFormat::Png);
    for (int round = 0; round < 2; ++round)
        for (const TestSpace& space : GetTestSpaces()) {
            const Image picture =
                InSpace(MakeRandomPicture(1100, 950, Image::Depth::Bits8, 5), space.space);
            const Image exact = Renderer().Render(picture, MakeColourRun().front());

            const Photo read = PhotoReader::Decode(
                Convert(MakeFile(picture, PhotoFormat::Png), recipe).file, "out");

            EXPECT_LE(LargestDifference(read.image, exact), 1) << space.name;
            EXPECT_GE(LargestDifference(read.image, exact), 0) << space.name;
        }
}

} // namespace
