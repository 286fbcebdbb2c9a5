// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportSamples.h"

#include "host/engine/TestPictures.h"
#include "host/photo/PhotoSamples.h"
#include "host/photo/metadata/MetadataSamples.h"

#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

using namespace LumetraHost;
using namespace LumetraTest;

namespace {

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
            const Converted streamed = Convert(jpeg, packages, GetParam(), format);
            const Converted whole = ConvertPhoto(jpeg, MakeRecipe(packages, format));
            EXPECT_EQ(streamed.file, whole.file)
                << packages.size() << " packages, format " << int(format);
            EXPECT_EQ(streamed.warnings, whole.warnings);
        }
}

TEST_P(StreamedExports, doSoForSmallAndNarrowPictures)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 300}, {300, 1}, {40, 33}, {64, 64}}) {
        const Bytes jpeg = MakeJpeg(width, height);
        EXPECT_EQ(Convert(jpeg, MakeLayers(), GetParam()).file,
                  ConvertPhoto(jpeg, MakeRecipe(MakeLayers())).file)
            << width << " x " << height;
    }
}

// Large enough for tables, which both ways take, for any number of threads.
TEST_P(StreamedExports, doSoWithTables)
{
    const Bytes jpeg = MakeJpeg(1300, 801);
    for (const Packages& packages : {MakeColourRun(), MakeMixedRun()}) {
        const auto layers =
            ExportLook(packages).GetLayers({1300, 801}, true, ThreadPool::GetShared(), nullptr);
        ASSERT_TRUE(layers.front().table);
        const ExportRecipe recipe = MakeRecipe(packages, PhotoFormat::Png);
        EXPECT_EQ(Convert(jpeg, recipe, GetParam()).file, ConvertPhoto(jpeg, recipe).file);
    }
}

// Rounding, shrinking and layers that look at neighbours keep rows for each other.
TEST_P(StreamedExports, doSoAtAnyDepthAndSize)
{
    const Bytes jpeg = MakeJpeg(309, 517);
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16})
        for (const int longestSide : {0, 1, 100, 172, 500, 516, 600})
            for (const Packages& packages : {Packages(), MakeLayers()}) {
                ExportRecipe recipe = MakeRecipe(packages, PhotoFormat::Tiff);
                recipe.depth = depth;
                recipe.longestSide = longestSide;
                EXPECT_EQ(Convert(jpeg, recipe, GetParam()).file, ConvertPhoto(jpeg, recipe).file)
                    << longestSide << " pixels, depth " << int(depth);
            }
}

TEST(Export, turnsWhatCannotBeStreamed)
{
    const Bytes turned = AddTags(MakeJpeg(60, 40), 6);
    Photo transparent;
    transparent.image = MakePattern(60, 40, Image::Depth::Bits16, LumetraTest::Alpha::Varying);
    const Bytes png = PhotoWriter::Encode(transparent, PhotoFormat::Png, {}, "in.png");
    for (const Bytes& content : {turned, png}) {
        EXPECT_FALSE(CanStream(content));
        EXPECT_EQ(Convert(content, MakeColours()).file,
                  ConvertPhoto(content, MakeRecipe(MakeColours())).file);
    }
    const Bytes result = Convert(turned, MakeColours()).file;
    EXPECT_EQ(PhotoReader::Decode(result, "out.jpg").image.GetWidth(), 40);
}

TEST(Export, keepsOddAndExtendedXmpBothWays)
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
            const Converted streamed = Convert(photo, MakeColours(), 2, format);
            const Converted whole = ConvertPhoto(photo, MakeRecipe(MakeColours(), format));
            EXPECT_EQ(streamed.file, whole.file);
            EXPECT_EQ(streamed.warnings, whole.warnings);
        }
    const Bytes file = Convert(photos[1], MakeColours()).file;
    EXPECT_EQ(PhotoReader::Decode(file, "out").metadata.xmpExtension, extension);
}

} // namespace
