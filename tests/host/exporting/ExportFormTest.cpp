// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportSamples.h"

#include "host/photo/PhotoSamples.h"
#include "host/photo/metadata/MetadataSamples.h"

#include "exporting/RecipeWords.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/metadata/EditRecord.h"

#include <gmock/gmock.h>

#include <atomic>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::Contains;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::StartsWith;

namespace {

std::string Shrink(int width, int height, int longestSide, int mostPixels)
{
    ExportRecipe recipe;
    recipe.longestSide = longestSide;
    recipe.mostPixels = mostPixels;
    const auto size = recipe.GetSize(width, height);
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

/// A photo with metadata of all kinds and two earlier records.
Photo MakeAgencyPhoto()
{
    Photo photo;
    photo.image = MakeGradient(120, 80);
    photo.metadata = MakeBlocks();
    photo.metadata.xmp = EditRecords::Add(photo.metadata.xmp, {{"Earlier", 50}}, "Some program");
    return photo;
}

PhotoMetadata ExportWith(PhotoFormat format, KeptMetadata kept)
{
    ExportRecipe recipe = MakeRecipe(MakeColours(), format);
    recipe.records = {{"Golden", 80}};
    recipe.metadata = kept;
    return PhotoReader::Decode(Export().MakeFromPhoto(MakeAgencyPhoto(), recipe, "out").file, "out")
        .metadata;
}

TEST(ExportForm, limitsThePixelsOfAPhotoAndNeverEnlarges)
{
    EXPECT_EQ(Shrink(6000, 4000, 0, 6'000'000), "3000 x 2000");
    EXPECT_EQ(Shrink(4000, 6000, 0, 6'000'000), "2000 x 3000");
    EXPECT_EQ(Shrink(6000, 4000, 0, 24'000'000), "6000 x 4000");
    EXPECT_EQ(Shrink(600, 400, 0, 12'000'000), "600 x 400");
    EXPECT_EQ(Shrink(100, 100, 0, 99), "9 x 9");
    EXPECT_EQ(Shrink(65'500, 1, 0, 1000), "1000 x 1");
    EXPECT_EQ(Shrink(3, 65'500, 0, 1), "1 x 1");
}

TEST(ExportForm, keepsWithinBothLimitsWhereBothAreAskedFor)
{
    EXPECT_EQ(Shrink(6000, 4000, 3000, 1'500'000), "1500 x 1000");
    EXPECT_EQ(Shrink(6000, 4000, 300, 1'500'000), "300 x 200");
}

TEST(ExportForm, neverHasMorePixelsThanAreAllowed)
{
    for (int width = 1; width < 90; ++width)
        for (int height = 1; height < 90; height += 7)
            for (const int most : {1, 2, 50, 333, 4000}) {
                ExportRecipe recipe;
                recipe.mostPixels = most;
                const auto size = recipe.GetSize(width, height);
                EXPECT_LE(size.width * size.height, most);
                EXPECT_GE(std::min(size.width, size.height), 1);
                EXPECT_LE(size.width, width);
                EXPECT_LE(size.height, height);
            }
}

TEST(ExportForm, refusesWhatNoFileCanHave)
{
    ExportRecipe recipe;
    recipe.format = PhotoFormat::Webp;
    recipe.depth = Image::Depth::Bits16;
    EXPECT_THAT(ErrorOf([&] { recipe.Check("out"); }),
                StartsWith("out: expected 8 bits for a WebP file, found 16"));
    recipe.depth = {};
    recipe.mostPixels = -1;
    EXPECT_THAT(ErrorOf([&] { recipe.Check("out"); }),
                StartsWith("out: expected at most 500000000 pixels, found -1"));
}

TEST(ExportForm, takesTheMetadataThatAreAskedForIntoEveryFormat)
{
    for (const auto& written : WrittenFormats) {
        const auto all = ExportWith(written.format, KeptMetadata::All);
        EXPECT_THAT(DescribeExif(all.exif), Contains(Key("Exif.GPSInfo.GPSLatitude")))
            << written.word;
        EXPECT_THAT(DescribeXmp(all.xmp), Contains(Key("Xmp.exif.GPSLatitude"))) << written.word;

        const auto noGps = ExportWith(written.format, KeptMetadata::NoGps);
        EXPECT_THAT(DescribeExif(noGps.exif), Contains(Key("Exif.Image.Make"))) << written.word;
        EXPECT_THAT(noGps.exif.toStdString() + noGps.xmp.toStdString(), Not(HasSubstr("GPS")))
            << written.word;

        const auto copyright = ExportWith(written.format, KeptMetadata::Copyright);
        EXPECT_EQ(DescribeExif(copyright.exif).count("Exif.Image.Make"), 0u) << written.word;
        EXPECT_THAT(DescribeExif(copyright.exif), Contains(Key("Exif.Image.Artist")))
            << written.word;

        const auto none = ExportWith(written.format, KeptMetadata::None);
        EXPECT_EQ((none.xmp + none.iptc).size(), 0) << written.word;
        for (const auto& [key, value] : DescribeExif(none.exif))
            EXPECT_EQ(key, "Exif.Image.Orientation")
                << written.word; // TIFF says it of each picture
        for (const auto& metadata : {all, noGps, copyright, none})
            EXPECT_THAT(metadata.iccProfile.size(), Ge(100)) << written.word;
    }
}

TEST(ExportForm, recordsTheLooksOnlyBesideMetadataOfThePhoto)
{
    const auto count = [](KeptMetadata kept) {
        return EditRecords::Read(ExportWith(PhotoFormat::Jpeg, kept).xmp).size();
    };
    EXPECT_EQ(count(KeptMetadata::All), 2u);
    EXPECT_EQ(count(KeptMetadata::NoGps), 2u);
    EXPECT_EQ(count(KeptMetadata::Copyright), 0u);
    EXPECT_EQ(count(KeptMetadata::None), 0u);
}

TEST(ExportForm, aWebpFileOfAPhotoAndOfItsFileAreTheSame)
{
    const Bytes jpeg = AddTags(MakeJpeg(200, 300), 1);
    for (const bool isLossless : {false, true}) {
        ExportRecipe recipe = MakeRecipe(MakeLayers(), PhotoFormat::Webp);
        recipe.encoding.isLossless = isLossless;

        EXPECT_EQ(Convert(jpeg, recipe, 1).file, ConvertPhoto(jpeg, recipe).file);
    }
}

TEST(ExportForm, canBeCancelledWhileAWebpIsEncoded)
{
    Photo photo;
    photo.image = MakePattern(400, 300, Image::Depth::Bits8);
    CancelToken cancel;
    ExportControl control;
    control.cancel = &cancel;
    std::atomic<int> last{0};
    control.progress = [&](int percent) {
        last = percent;
        if (percent > 60) // the rows are with the encoder by then
            cancel.Cancel();
    };

    EXPECT_THAT(
        Export().MakeFromPhoto(photo, MakeRecipe({}, PhotoFormat::Webp), "out", control).file,
        IsEmpty());
    EXPECT_GT(last, 60);
    EXPECT_LT(last, 95);
}

} // namespace
