// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/Export.h"

#include "ExportSamples.h"

#include "host/engine/TestPictures.h"
#include "host/photo/PhotoSamples.h"
#include "support/AddressSanitizer.h"

#include "engine/run/Renderer.h"
#include "exporting/ExportMemory.h"
#include "image/DepthConversion.h"
#include "image/Resize.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/EditRecord.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include <sys/resource.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Zorvik::Quindle::EffectsSettings;

namespace {

using Packages = std::vector<EffectsSettings>;

/// The expected picture: drawn at the larger of both depths, one package after the other, rounded
/// to the depth of the file, then shrunk.
Image MakeStepByStep(const Photo& photo, const Packages& packages, const ExportRecipe& recipe)
{
    Image image = photo.image;
    const auto depth = recipe.GetDepth(image.GetDepth());
    const auto convert = [&image](Image::Depth to) {
        Image result = Image::Allocate(image.GetWidth(), image.GetHeight(), to);
        CopyRows(image, 0, result, 0, image.GetHeight());
        image = result;
    };
    if (depth == Image::Depth::Bits16)
        convert(depth);
    for (const EffectsSettings& package : packages)
        image = Renderer().Render(image, package);
    convert(depth);
    const auto size = recipe.GetSize(image.GetWidth(), image.GetHeight());
    return Resize(image, {0, 0, image.GetWidth(), image.GetHeight()}, size.width, size.height,
                  ResizeQuality::Fine);
}

TEST(Export, drawsWithTheBitsOfTheFileRoundsOnceAndShrinksThen)
{
    for (const auto photoDepth : {Image::Depth::Bits8, Image::Depth::Bits16})
        for (const auto alpha : {LumetraTest::Alpha::Opaque, LumetraTest::Alpha::Varying})
            for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16})
                for (const int longestSide : {0, 80, 111}) {
                    Photo photo;
                    photo.image = MakePattern(160, 120, photoDepth, alpha);
                    ExportRecipe recipe = MakeRecipe(MakeLayers(), PhotoFormat::Png);
                    recipe.depth = depth;
                    recipe.longestSide = longestSide;

                    const Bytes png = Export().MakeFromPhoto(photo, recipe, "out").file;

                    const Image expected = MakeStepByStep(photo, MakeLayers(), recipe);
                    EXPECT_TRUE(HaveSamePixels(PhotoReader::Decode(png, "out.png").image, expected))
                        << "from depth " << int(photoDepth) << " to " << int(depth) << ", "
                        << longestSide << " pixels, alpha " << int(alpha);
                }
}

TEST(Export, keepsTheBitsOfThePhotoWhenNoneAreAskedFor)
{
    Photo photo;
    photo.image = MakePattern(40, 30, Image::Depth::Bits16);
    const auto getDepth = [&photo](PhotoFormat format) {
        const Bytes file = Export().MakeFromPhoto(photo, MakeRecipe({}, format), "out").file;
        return PhotoReader::Decode(file, "out").image.GetDepth();
    };
    EXPECT_EQ(getDepth(PhotoFormat::Tiff), Image::Depth::Bits16);
    EXPECT_EQ(getDepth(PhotoFormat::Jpeg), Image::Depth::Bits8);
}

// One pixel that lets a little through vanishes among the others when they are averaged.
TEST(Export, storesNoAlphaThatRoundingHasMadeOpaque)
{
    Photo photo;
    photo.image = MakePattern(100, 100, Image::Depth::Bits8);
    photo.image.Row(50)[4 * 50 + 3] = 254;
    ExportRecipe recipe = MakeRecipe({}, PhotoFormat::Png);
    recipe.longestSide = 10;
    Photo opaque;
    opaque.image = MakeStepByStep(photo, {}, recipe);
    ASSERT_TRUE(opaque.image.IsOpaque());

    EXPECT_EQ(Export().MakeFromPhoto(photo, recipe, "out").file,
              Export().MakeFromPhoto(opaque, MakeRecipe({}, PhotoFormat::Png), "out").file);
}

TEST(Export, leavesThePhotoOfItsCallerAsItIs)
{
    Photo photo;
    photo.image = MakePattern(64, 64, Image::Depth::Bits8);
    const Image before = photo.image.Clone();

    Export().MakeFromPhoto(photo, MakeRecipe(MakeLayers()), "out");

    EXPECT_TRUE(HaveSamePixels(photo.image, before));
}

TEST(Export, refusesSixteenBitsInAJpeg)
{
    ExportRecipe recipe = MakeRecipe(Packages());
    recipe.depth = Image::Depth::Bits16;

    EXPECT_THAT(ErrorOf([&] { Convert(MakeJpeg(8, 8), recipe); }),
                StartsWith("out: expected 8 bits for a JPEG file, found 16"));
}

TEST(Export, tellsItsProgressUpwardsBothWays)
{
    const Bytes jpeg = MakeJpeg(200, 300);
    const Photo photo = PhotoReader::Decode(jpeg, "in.jpg");
    Photo transparent;
    transparent.image = MakePattern(200, 300, Image::Depth::Bits8, LumetraTest::Alpha::Varying);
    ExportRecipe recipe = MakeRecipe(MakeLayers(), PhotoFormat::Png);
    recipe.longestSide = 250;
    std::vector<int> told;
    ExportControl control;
    control.progress = [&told](int percent) { told.push_back(percent); };
    const std::function<void()> exports[] = {
        [&] { Export().MakeFromFile(jpeg, "in.jpg", recipe, "out", control); },
        [&] { Export().MakeFromPhoto(photo, recipe, "out", control); },
        [&] { Export().MakeFromPhoto(transparent, recipe, "out", control); }};
    for (const auto& makeFile : exports) {
        told.clear();
        makeFile();
        ASSERT_GE(told.size(), 10u);
        EXPECT_EQ(told.front(), 0);
        EXPECT_EQ(told.back(), 95);
        EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    }
}

TEST(Export, canBeCancelledOnTheWay)
{
    const Bytes jpeg = MakeJpeg(200, 300);
    Photo transparent;
    transparent.image = MakePattern(200, 300, Image::Depth::Bits8, LumetraTest::Alpha::Varying);
    ExportRecipe recipe = MakeRecipe(MakeLayers(), PhotoFormat::Png);
    recipe.longestSide = 250;
    for (const int last : {0, 30, 70, 94}) {
        CancelToken cancel;
        ExportControl control;
        control.cancel = &cancel;
        control.progress = [&](int percent) {
            if (percent >= last)
                cancel.Cancel();
        };
        EXPECT_TRUE(Export().MakeFromFile(jpeg, "in.jpg", recipe, "out", control).file.empty());
    }
    for (const int last : {0, 30, 70, 94}) {
        CancelToken cancel;
        ExportControl control;
        control.cancel = &cancel;
        control.progress = [&](int percent) {
            if (percent >= last)
                cancel.Cancel();
        };
        EXPECT_TRUE(Export().MakeFromPhoto(transparent, recipe, "out", control).file.empty());
    }
}

TEST(Export, recordsThePresetsAndTheProgram)
{
    const Bytes jpeg = AddTags(MakeJpeg(64, 48), 1);
    ExportRecipe recipe = MakeRecipe(MakeColours());
    recipe.records = {{"Soft <Light>", 40}};

    const QByteArray xmp = PhotoReader::Decode(Convert(jpeg, recipe).file, "out").metadata.xmp;

    const auto records = EditRecords::Read(xmp);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].preset, "Soft <Light>");
    EXPECT_EQ(records[0].intensity, 40);
    EXPECT_TRUE(xmp.contains("CreatorTool"));
    EXPECT_TRUE(xmp.contains("xmp:Rating"));
}

TEST(Export, leavesMetadataAndProfileOutWhenToldTo)
{
    const Bytes jpeg = AddTags(MakeJpeg(64, 48, ColorConversion::GetSrgbProfile()), 1);
    ExportRecipe recipe = MakeRecipe(MakeColours());
    recipe.records = {{"Soft Light", 40}};
    recipe.metadata = LumetraHost::KeptMetadata::None;

    const PhotoMetadata bare = PhotoReader::Decode(Convert(jpeg, recipe).file, "out").metadata;
    EXPECT_EQ(bare.iccProfile, ColorConversion::GetSrgbProfile());
    EXPECT_TRUE(bare.exif.isEmpty() && bare.xmp.isEmpty() && bare.iptc.isEmpty());

    recipe.embedsProfile = false;
    EXPECT_TRUE(PhotoReader::Decode(Convert(jpeg, recipe).file, "out").metadata.IsEmpty());
}

TEST(Export, embedsTheProfileOfPhotosWithoutOne)
{
    const Bytes file = Convert(MakeJpeg(64, 48), Packages()).file;

    EXPECT_EQ(PhotoReader::Decode(file, "out").metadata.iccProfile,
              ColorConversion::GetSrgbProfile());
}

TEST(ExportRecipe, shrinksTheLongestSideAndNeverEnlarges)
{
    ExportRecipe recipe;
    recipe.longestSide = 100;
    const auto getSize = [&recipe](int width, int height) {
        const auto size = recipe.GetSize(width, height);
        return std::pair(size.width, size.height);
    };
    EXPECT_EQ(getSize(300, 200), std::pair(100, 67));
    EXPECT_EQ(getSize(200, 300), std::pair(67, 100));
    EXPECT_EQ(getSize(100, 40), std::pair(100, 40));
    EXPECT_EQ(getSize(99, 40), std::pair(99, 40));
    EXPECT_EQ(getSize(3000, 4), std::pair(100, 1));
}

TEST(Export, drawsThePackagesOneOnTheOther)
{
    const Bytes jpeg = MakeJpeg(100, 80);
    Photo expected = PhotoReader::Decode(jpeg, "in.jpg");
    for (const EffectsSettings& package : MakeLayers())
        expected.image = Renderer().Render(expected.image, package);

    const Bytes png = Convert(jpeg, MakeLayers(), 2, PhotoFormat::Png).file;

    EXPECT_TRUE(HaveSamePixels(PhotoReader::Decode(png, "out.png").image, expected.image));
}

TEST(Export, keepsMetadataAndProfile)
{
    const Bytes jpeg = AddTags(MakeJpeg(64, 48, ColorConversion::GetSrgbProfile()), 1);
    const Photo before = PhotoReader::Decode(jpeg, "in.jpg");

    const Photo after = PhotoReader::Decode(Convert(jpeg, MakeColours()).file, "out.jpg");

    EXPECT_EQ(after.metadata.exif, before.metadata.exif);
    EXPECT_TRUE(after.metadata.xmp.contains("xmp:Rating"));
    EXPECT_EQ(after.metadata.iptc, before.metadata.iptc);
    EXPECT_EQ(after.metadata.iccProfile, ColorConversion::GetSrgbProfile());
    EXPECT_FALSE(after.metadata.exif.isEmpty());
    EXPECT_FALSE(after.metadata.xmp.isEmpty());
    EXPECT_FALSE(after.metadata.iptc.isEmpty());
}

TEST(Export, tellsWhatThePhotoLosesOnTheWay)
{
    const Bytes wide = MakeJpeg(60, 40, ColorConversion::GetAdobeRgbProfile());
    ExportRecipe withoutProfile = MakeRecipe(Packages());
    withoutProfile.embedsProfile = false;
    Photo transparent;
    transparent.image = MakePattern(60, 40, Image::Depth::Bits8, LumetraTest::Alpha::Varying);
    const Bytes png = PhotoWriter::Encode(transparent, PhotoFormat::Png, {}, "in.png");

    EXPECT_THAT(Convert(wide, Packages()).warnings, IsEmpty());
    EXPECT_THAT(Convert(wide, withoutProfile).warnings,
                ElementsAre(HasSubstr("its colours are converted from \"Adobe RGB")));
    EXPECT_THAT(Convert(png, Packages()).warnings,
                ElementsAre(HasSubstr("JPEG holds no transparency")));
    EXPECT_THAT(Convert(png, Packages(), 1, PhotoFormat::Png).warnings, IsEmpty());
}

TEST(Export, namesThePhotoThatDoesNotFitIntoMemory)
{
    if (LumetraTest::HasAddressSanitizer)
        GTEST_SKIP() << "the sanitizer needs more address space than any limit leaves";
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    LumetraTest::WriteFile(source, AddTags(MakeJpeg(3000, 2000), 6)); // read whole
    struct rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_AS, &before), 0);
    const struct rlimit little = {1, before.rlim_max}; // no more than there is already
    ExportControl control;
    control.threads = 1;
    LumetraHost::ThreadPool::GetShared(); // its threads need memory of their own
    ASSERT_EQ(setrlimit(RLIMIT_AS, &little), 0);

    const std::string error = ErrorOf(
        [&] { Export().Run(source, folder.filePath(QStringLiteral("out.jpg")), {}, control); });

    ASSERT_EQ(setrlimit(RLIMIT_AS, &before), 0);
    EXPECT_EQ(error, source.toStdString() + ": there is not enough memory for this photo");
}

TEST(ExportMemory, growsWithThePhoto)
{
    const QTemporaryDir folder;
    const QString small = folder.filePath(QStringLiteral("small.jpg"));
    const QString large = folder.filePath(QStringLiteral("large.jpg"));
    LumetraTest::WriteFile(small, MakeJpeg(100, 100));
    LumetraTest::WriteFile(large, MakeJpeg(1100, 1000));

    const ExportRecipe recipe;
    const std::uint64_t added =
        ExportMemory::Estimate(large, recipe) - ExportMemory::Estimate(small, recipe);
    EXPECT_GT(added, 8'000'000u); // at least the decoded picture and a copy of it
    EXPECT_EQ(ExportMemory::Estimate(folder.filePath(QStringLiteral("none.jpg")), recipe), 0u);
}

TEST(ExportMemory, growsWithTheBitsOfTheFile)
{
    const QTemporaryDir folder;
    const QString photo = folder.filePath(QStringLiteral("photo.jpg"));
    LumetraTest::WriteFile(photo, MakeJpeg(1100, 1000));
    ExportRecipe recipe = MakeRecipe({}, PhotoFormat::Tiff);
    const std::uint64_t narrow = ExportMemory::Estimate(photo, recipe);

    recipe.depth = Image::Depth::Bits16;

    // The file, and the copy of it that takes the metadata, double.
    EXPECT_GT(ExportMemory::Estimate(photo, recipe), narrow + 2 * 3 * 1'100'000u);
}

TEST(Export, refusesATruncatedPhotoAndLeavesTheOldFile)
{
    const QTemporaryDir folder;
    Bytes jpeg = MakeJpeg(200, 300);
    jpeg.resize(jpeg.size() / 2);
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    const QString target = folder.filePath(QStringLiteral("out.jpg"));
    LumetraTest::WriteFile(source, jpeg);
    LumetraTest::WriteFile(target, {1, 2, 3});

    const std::string error =
        ErrorOf([&] { Export().Run(source, target, MakeRecipe(MakeColours())); });

    EXPECT_THAT(error, AllOf(HasSubstr(source.toStdString()), HasSubstr("expected 300 rows")));
    EXPECT_EQ(LumetraTest::ReadFile(target), (Bytes{1, 2, 3}));
}

TEST(Export, writesIntoANewFolder)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    const QString target = folder.filePath(QStringLiteral("new/deep/out.png"));
    LumetraTest::WriteFile(source, MakeJpeg(20, 30));

    const auto result = Export().Run(source, target, MakeRecipe({}, PhotoFormat::Png));

    EXPECT_EQ(result.file, LumetraTest::ReadFile(target));
    EXPECT_THAT(Join(result).warnings, IsEmpty());
    EXPECT_EQ(PhotoReader::Read(target).image.GetHeight(), 30);
}

TEST(Export, writesNothingWhenCancelled)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    const QString target = folder.filePath(QStringLiteral("new/out.jpg"));
    CancelToken cancel;
    cancel.Cancel();
    ExportControl control;
    control.cancel = &cancel;
    for (const int orientation : {1, 6}) {
        LumetraTest::WriteFile(source, AddTags(MakeJpeg(200, 300), orientation));
        EXPECT_TRUE(Export().Run(source, target, MakeRecipe(MakeColours()), control).file.empty());
        EXPECT_FALSE(QFile::exists(QFileInfo(target).path()));
    }
}

} // namespace
