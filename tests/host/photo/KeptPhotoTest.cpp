// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/MetadataTags.h"

#include "PhotoSamples.h"

#include <QTemporaryDir>

#include <exiv2/exiv2.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

using namespace LumetraHost;
using namespace LumetraTest;

namespace {

Bytes AddOrientation(const Bytes& plain, int orientation)
{
    MetadataTags::Initialise();
    const std::unique_ptr<Exiv2::Image> file(
        Exiv2::ImageFactory::open(plain.data(), static_cast<long>(plain.size())).release());
    file->readMetadata();
    file->exifData()["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
    file->exifData()["Exif.Image.Make"] = "A camera";
    file->writeMetadata();
    file->io().open();
    const Exiv2::byte* const data = file->io().mmap();
    return {data, data + file->io().size()};
}

struct KeptPhotoTest : testing::Test
{
    QString Write(const Image& image, PhotoFormat format, const QByteArray& profile = {})
    {
        Photo photo;
        photo.image = image;
        photo.metadata.iccProfile = profile;
        return Write(PhotoWriter::Encode(photo, format, {}, "photo"));
    }
    QString Write(const Bytes& content)
    {
        const QString path = folder.filePath(QStringLiteral("photo"));
        WriteFile(path, content);
        return path;
    }
    /// Reads both and compares all of it; returns the kept one.
    static KeptPhoto ExpectSame(const QString& path)
    {
        const Photo whole = PhotoReader::Read(path);
        KeptPhoto kept = PhotoReader::ReadToKeep(path);
        EXPECT_TRUE(HaveSamePixels(kept.image.ToImage(), whole.image));
        EXPECT_EQ(bool(kept.image.GetSpace()), bool(whole.image.GetSpace()));
        const auto tie = [](const PhotoDetails& photo) {
            const PhotoMetadata& metadata = photo.metadata;
            return std::tie(metadata.exif, metadata.xmp, metadata.xmpExtension, metadata.iptc,
                            metadata.iccProfile, photo.warnings, photo.reductions,
                            photo.contentHash);
        };
        EXPECT_TRUE(tie(kept) == tie(whole));
        return kept;
    }

    QTemporaryDir folder;
};

} // namespace

/// 150 rows are two bands and a part of one.
TEST_F(KeptPhotoTest, aTurnedJpegIsTheSameAsOneReadWhole)
{
    const QString plain = Write(MakePattern(201, 150, Image::Depth::Bits8), PhotoFormat::Jpeg);
    const Bytes content = ReadFile(plain);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const KeptPhoto kept = ExpectSame(Write(AddOrientation(content, orientation)));
        EXPECT_TRUE(kept.image.IsPacked());
        EXPECT_EQ(kept.image.GetWidth(), orientation < 5 ? 201 : 150);
    }
}

TEST_F(KeptPhotoTest, everyFormatIsTheSameAsReadWhole)
{
    for (const auto format :
         {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff, PhotoFormat::Webp}) {
        SCOPED_TRACE(int(format));
        EXPECT_EQ(ExpectSame(Write(MakePattern(90, 70, Image::Depth::Bits8), format))
                      .image.GetBytesPerPixel(),
                  3u);
    }
    for (const auto format : {PhotoFormat::Png, PhotoFormat::Tiff}) {
        SCOPED_TRACE(int(format));
        EXPECT_EQ(ExpectSame(Write(MakePattern(90, 70, Image::Depth::Bits16), format))
                      .image.GetBytesPerPixel(),
                  6u);
        const Image glass = MakePattern(90, 70, Image::Depth::Bits8, Alpha::Varying);
        EXPECT_FALSE(ExpectSame(Write(glass, format)).image.IsPacked());
    }
}

TEST_F(KeptPhotoTest, aPhotoInASpaceOfItsOwnStaysInIt)
{
    for (const auto format : {PhotoFormat::Jpeg, PhotoFormat::Png}) {
        SCOPED_TRACE(int(format));
        const KeptPhoto kept = ExpectSame(Write(MakePattern(60, 40, Image::Depth::Bits8), format,
                                                ColorConversion::GetDisplayP3Profile()));
        EXPECT_TRUE(kept.image.GetSpace());
        EXPECT_TRUE(kept.image.IsPacked());
    }
}

TEST_F(KeptPhotoTest, damageIsToldInTheSameWords)
{
    Bytes content = ReadFile(Write(MakePattern(100, 80, Image::Depth::Bits8), PhotoFormat::Jpeg));
    content.resize(content.size() / 2);
    const QString path = Write(content);
    const auto error = [&path](auto read) { return ErrorOf([&] { read(path); }); };
    const std::string whole = error([](const QString& file) { PhotoReader::Read(file); });
    EXPECT_NE(whole, "no error");
    EXPECT_EQ(error([](const QString& file) { PhotoReader::ReadToKeep(file); }), whole);
}
