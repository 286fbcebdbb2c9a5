// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/PhotoExport.h"
#include "exporting/ExportMemory.h"
#include "exporting/StreamedExport.h"

#include "host/engine/TestPictures.h"
#include "host/photo/PhotoSamples.h"
#include "host/photo/metadata/MetadataSamples.h"
#include "support/AddressSanitizer.h"

#include "engine/run/Renderer.h"
#include "photo/PhotoReader.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/MetadataTags.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/resource.h>

#include <exiv2/exiv2.hpp>

using namespace LumetraHost;
using LumetraTest::ErrorOf;
using LumetraTest::MakePattern;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Zorvik::Quindle::EffectsSettings;

namespace {

using Packages = std::vector<EffectsSettings>;

Bytes MakeJpeg(int width, int height, const QByteArray& profile = {})
{
    Photo photo;
    photo.image = MakePattern(width, height, Image::Depth::Bits8);
    photo.metadata.iccProfile = profile;
    return PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "sample");
}

Bytes AddTags(const Bytes& jpeg, int orientation)
{
    MetadataTags::Initialise();
    const auto file = Exiv2::ImageFactory::open(jpeg.data(), static_cast<long>(jpeg.size()));
    file->readMetadata();
    file->exifData()["Exif.Image.Make"] = "Lumetra Works";
    file->exifData()["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
    file->iptcData()["Iptc.Application2.City"] = "Berlin";
    file->xmpData()["Xmp.xmp.Rating"] = "4";
    file->writeMetadata();
    file->io().open();
    const Exiv2::byte* const data = file->io().mmap();
    return Bytes(data, data + file->io().size());
}

Packages MakeColours()
{
    return {MakeSettings({MakeEffect("exposure", {{"stops", 0.4}}),
                          MakeEffect("contrast", {{"amount", 20}}),
                          MakeEffect("vignette", {{"amount", -1}})},
                         60)};
}

Packages MakeNeighbours()
{
    return {MakeSettings({MakeEffect("exposure", {{"stops", 0.4}}),
                          MakeEffect("clarity", {{"amount", 60}, {"radius", 3}}),
                          MakeEffect("sharpen", {{"amount", 80}, {"radius", 0.2}}),
                          MakeEffect("grain", {{"amount", 30}})},
                         100)};
}

Packages MakeLayers()
{
    Packages packages = MakeColours();
    packages.push_back(MakeSettings({MakeEffect("exposure", {})}));
    packages.push_back(MakeNeighbours().front());
    packages.push_back(MakeSettings({MakeEffect("saturation", {{"amount", -40}})}, 255));
    packages.push_back(MakeSettings({MakeEffect("gaussianBlur", {{"radius", 2}})}, 200));
    return packages;
}

/// A run of colours that a table may stand for.
Packages MakeColourRun()
{
    return {MakeSettings({MakeEffect("whiteBalance", {{"temperature", 7000}}),
                          MakeEffect("contrast", {{"amount", 20}}),
                          MakeEffect("saturation", {{"amount", 25}}),
                          MakeEffect("contrast", {{"amount", -10}})},
                         40)};
}

/// The same before effects that no table can stand for.
Packages MakeMixedRun()
{
    Packages packages = MakeColourRun();
    auto& effects = packages.front().Effects();
    effects.push_back(MakeEffect("clarity", {{"amount", 30}, {"radius", 1}}));
    effects.push_back(MakeEffect("vignette", {{"amount", -1}}));
    effects.push_back(MakeEffect("grain", {{"amount", 20}}));
    return packages;
}

struct Converted
{
    Bytes file;
    std::vector<std::string> warnings;
};

Converted Convert(const Bytes& content, const Packages& packages, bool isStreamed, int threads,
                  PhotoFormat format = PhotoFormat::Jpeg)
{
    ThreadPool pool(3);
    PhotoExport::Options options;
    options.isStreamed = isStreamed;
    options.threads = threads;
    Converted result;
    result.file = PhotoExport(pool).Convert(content, "in.jpg", format, "out", ExportLook(packages),
                                            options, result.warnings);
    return result;
}

bool CanStream(const Bytes& content)
{
    return StreamedExport::Open(content, "in.jpg") != nullptr;
}

class StreamedExports : public testing::TestWithParam<int>
{
};

INSTANTIATE_TEST_SUITE_P(Threads, StreamedExports, testing::Values(1, 2, 4));

TEST_P(StreamedExports, makeTheFileOfTheWholePicture)
{
    const Bytes jpeg = AddTags(MakeJpeg(309, 517, ColorConversion::GetSrgbProfile()), 1);
    ASSERT_TRUE(CanStream(jpeg));
    for (const Packages& packages : {Packages(), MakeColours(), MakeNeighbours(), MakeLayers()})
        for (const auto format : {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff}) {
            const Converted streamed = Convert(jpeg, packages, true, GetParam(), format);
            const Converted whole = Convert(jpeg, packages, false, 1, format);
            EXPECT_EQ(streamed.file, whole.file)
                << packages.size() << " packages, format " << int(format);
            EXPECT_EQ(streamed.warnings, whole.warnings);
        }
}

TEST_P(StreamedExports, doSoForSmallAndNarrowPictures)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 300}, {300, 1}, {40, 33}, {64, 64}}) {
        const Bytes jpeg = MakeJpeg(width, height);
        EXPECT_EQ(Convert(jpeg, MakeLayers(), true, GetParam()).file,
                  Convert(jpeg, MakeLayers(), false, 1).file)
            << width << " x " << height;
    }
}

// Large enough for tables, which both ways take, for any number of threads.
TEST_P(StreamedExports, doSoWithTables)
{
    const Bytes jpeg = MakeJpeg(1300, 801);
    for (const Packages& packages : {MakeColourRun(), MakeMixedRun()}) {
        const auto layers =
            ExportLook(packages).GetLayers(1300, 801, true, ThreadPool::GetShared(), nullptr);
        ASSERT_TRUE(layers.front().table);
        const Bytes whole = Convert(jpeg, packages, false, 1, PhotoFormat::Png).file;
        EXPECT_EQ(Convert(jpeg, packages, true, GetParam(), PhotoFormat::Png).file, whole);
    }
}

TEST(PhotoExport, drawsThePackagesOneOnTheOther)
{
    const Bytes jpeg = MakeJpeg(100, 80);
    Photo expected = PhotoReader::Decode(jpeg, "in.jpg");
    for (const EffectsSettings& package : MakeLayers())
        expected.image = Renderer().Render(expected.image, package);

    const Bytes png = Convert(jpeg, MakeLayers(), true, 2, PhotoFormat::Png).file;

    EXPECT_TRUE(HaveSamePixels(PhotoReader::Decode(png, "out.png").image, expected.image));
}

TEST(PhotoExport, keepsMetadataAndProfile)
{
    const Bytes jpeg = AddTags(MakeJpeg(64, 48, ColorConversion::GetSrgbProfile()), 1);
    const Photo before = PhotoReader::Decode(jpeg, "in.jpg");

    const Photo after = PhotoReader::Decode(Convert(jpeg, MakeColours(), true, 2).file, "out.jpg");

    EXPECT_EQ(after.metadata.exif, before.metadata.exif);
    EXPECT_EQ(after.metadata.xmp, before.metadata.xmp);
    EXPECT_EQ(after.metadata.iptc, before.metadata.iptc);
    EXPECT_EQ(after.metadata.iccProfile, ColorConversion::GetSrgbProfile());
    EXPECT_FALSE(after.metadata.exif.isEmpty());
    EXPECT_FALSE(after.metadata.xmp.isEmpty());
    EXPECT_FALSE(after.metadata.iptc.isEmpty());
}

TEST(PhotoExport, turnsAndConvertsWhatCannotBeStreamed)
{
    const Bytes turned = AddTags(MakeJpeg(60, 40), 6);
    const Bytes wide = MakeJpeg(60, 40, ColorConversion::GetAdobeRgbProfile());
    Photo transparent;
    transparent.image = MakePattern(60, 40, Image::Depth::Bits16, LumetraTest::Alpha::Varying);
    const Bytes png = PhotoWriter::Encode(transparent, PhotoFormat::Png, {}, "in.png");
    for (const Bytes& content : {turned, wide, png}) {
        EXPECT_FALSE(CanStream(content));
        EXPECT_EQ(Convert(content, MakeColours(), true, 2).file,
                  Convert(content, MakeColours(), false, 1).file);
    }
    const Bytes result = Convert(turned, MakeColours(), true, 2).file;
    EXPECT_EQ(PhotoReader::Decode(result, "out.jpg").image.GetWidth(), 40);
}

TEST(PhotoExport, keepsOddAndExtendedXmpBothWays)
{
    const QByteArray odd = LumetraTest::MakeOddXmp();
    const QByteArray extension =
        LumetraTest::MakeXmp({}, "<my:a>" + LumetraTest::MakeText(90'000) + "</my:a>");
    const QByteArray guid = QCryptographicHash::hash(extension, QCryptographicHash::Md5).toHex();
    const QByteArray main = LumetraTest::MakeXmp(LumetraTest::NameExtension(guid));
    const Bytes plain = MakeJpeg(64, 48);
    const Bytes photos[] = {
        LumetraTest::AddSegment(plain, 0xE1,
                                QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + odd),
        LumetraTest::AddExtendedXmp(plain, main, extension, guid, 50'000)};
    for (const Bytes& photo : photos)
        for (const auto format : {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff}) {
            ASSERT_TRUE(CanStream(photo));
            const Converted streamed = Convert(photo, MakeColours(), true, 2, format);
            const Converted whole = Convert(photo, MakeColours(), false, 1, format);
            EXPECT_EQ(streamed.file, whole.file);
            EXPECT_EQ(streamed.warnings, whole.warnings);
        }
    const Bytes file = Convert(photos[1], MakeColours(), true, 2).file;
    EXPECT_EQ(PhotoReader::Decode(file, "out").metadata.xmpExtension, extension);
}

TEST(PhotoExport, tellsWhatThePhotoLosesOnTheWay)
{
    const Bytes wide = MakeJpeg(60, 40, ColorConversion::GetAdobeRgbProfile());
    Photo transparent;
    transparent.image = MakePattern(60, 40, Image::Depth::Bits8, LumetraTest::Alpha::Varying);
    const Bytes png = PhotoWriter::Encode(transparent, PhotoFormat::Png, {}, "in.png");

    EXPECT_THAT(Convert(wide, {}, true, 1).warnings,
                ElementsAre(HasSubstr("its colours are converted from ")));
    EXPECT_THAT(Convert(png, {}, true, 1).warnings,
                ElementsAre(HasSubstr("JPEG holds no transparency")));
    EXPECT_THAT(Convert(png, {}, true, 1, PhotoFormat::Png).warnings, IsEmpty());
}

TEST(PhotoExport, namesThePhotoThatDoesNotFitIntoMemory)
{
    if (LumetraTest::HasAddressSanitizer)
        GTEST_SKIP() << "the sanitizer needs more address space than any limit leaves";
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    LumetraTest::WriteFile(source, MakeJpeg(3000, 2000));
    struct rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_AS, &before), 0);
    const struct rlimit little = {1, before.rlim_max}; // no more than there is already
    PhotoExport::Options options;
    options.isStreamed = false;
    options.threads = 1;
    LumetraHost::ThreadPool::GetShared(); // its threads need memory of their own
    ASSERT_EQ(setrlimit(RLIMIT_AS, &little), 0);

    const std::string error = ErrorOf([&] {
        PhotoExport().Run(source, folder.filePath(QStringLiteral("out.png")), ExportLook({}),
                          options);
    });

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

    // At least the decoded picture and a copy of it.
    EXPECT_GT(ExportMemory::Estimate(large) - ExportMemory::Estimate(small), 8'000'000u);
    EXPECT_EQ(ExportMemory::Estimate(folder.filePath(QStringLiteral("none.jpg"))), 0u);
}

TEST(PhotoExport, refusesATruncatedPhotoAndLeavesTheOldFile)
{
    const QTemporaryDir folder;
    Bytes jpeg = MakeJpeg(200, 300);
    jpeg.resize(jpeg.size() / 2);
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    const QString target = folder.filePath(QStringLiteral("out.jpg"));
    LumetraTest::WriteFile(source, jpeg);
    LumetraTest::WriteFile(target, {1, 2, 3});

    const std::string error = ErrorOf([&] {
        PhotoExport().Run(source, target, ExportLook(MakeColours()), PhotoExport::Options());
    });

    EXPECT_THAT(error, AllOf(HasSubstr(source.toStdString()), HasSubstr("expected 300 rows")));
    EXPECT_EQ(LumetraTest::ReadFile(target), (Bytes{1, 2, 3}));
}

TEST(PhotoExport, writesIntoANewFolder)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    const QString target = folder.filePath(QStringLiteral("new/deep/out.png"));
    LumetraTest::WriteFile(source, MakeJpeg(20, 30));

    const auto result = PhotoExport().Run(source, target, ExportLook({}), PhotoExport::Options());

    EXPECT_TRUE(result.isWritten);
    EXPECT_THAT(result.warnings, IsEmpty());
    EXPECT_EQ(PhotoReader::Read(target).image.GetHeight(), 30);
}

TEST(PhotoExport, writesNothingWhenCancelled)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("in.jpg"));
    const QString target = folder.filePath(QStringLiteral("out.jpg"));
    LumetraTest::WriteFile(source, MakeJpeg(200, 300));
    CancelToken cancel;
    cancel.Cancel();
    PhotoExport::Options options;
    options.cancel = &cancel;
    for (const bool isStreamed : {true, false}) {
        options.isStreamed = isStreamed;
        EXPECT_FALSE(
            PhotoExport().Run(source, target, ExportLook(MakeColours()), options).isWritten);
        EXPECT_FALSE(QFile::exists(target));
    }
}

TEST(PhotoExport, namesTheTargetOfAnUnknownKind)
{
    EXPECT_THAT(ErrorOf([] {
                    PhotoExport().Run(QStringLiteral("in.jpg"), QStringLiteral("out.bmp"),
                                      ExportLook({}), PhotoExport::Options());
                }),
                StartsWith("out.bmp: expected a file name that ends in"));
}

} // namespace
