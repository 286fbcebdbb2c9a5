// SPDX-License-Identifier: GPL-2.0-or-later
// Small pictures and times that cameras store in a photo's file.
#include "PhotoSamples.h"

#include "image/RgbSpace.h"
#include "photo/EmbeddedPreview.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/PhotoOrigin.h"

#include <QDateTime>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <functional>

#include <sys/stat.h>

using namespace LumetraTest;
using LumetraHost::EmbeddedPreview;
using LumetraHost::PhotoOrigin;

namespace {

/// A picture of one colour.
Image Plain(int width, int height, std::uint8_t red)
{
    Image image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* const pixel = image.Row(y) + Image::Channels * x;
            pixel[0] = red;
            pixel[1] = pixel[2] = 40;
            pixel[3] = 255;
        }
    return image;
}

class EmbeddedPreviewTest : public testing::Test
{
protected:
    QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    QString WriteJpeg(const char* name, const Image& image, const QByteArray& profile = {}) const
    {
        LumetraHost::Photo photo;
        photo.image = image;
        photo.metadata.iccProfile = profile;
        LumetraHost::PhotoWriter::Write(Path(name), photo);
        return Path(name);
    }

    /// Changes the EXIF block of a file that is there.
    static void Tag(const QString& path, const std::function<void(Exiv2::ExifData&)>& change)
    {
        const auto file = Exiv2::ImageFactory::open(path.toStdString());
        file->readMetadata();
        change(file->exifData());
        file->writeMetadata();
    }

    /// A red photo with a preview of another red.
    QString WriteWithPreview(const Image& photo, const Image& preview, int orientation = 1,
                             const QByteArray& profile = {}) const
    {
        const QString path = WriteJpeg("photo.jpg", photo, profile);
        const Bytes small = ReadFile(WriteJpeg("preview.jpg", preview));
        Tag(path, [&](Exiv2::ExifData& tags) {
            tags["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
            Exiv2::ExifThumb(tags).setJpegThumbnail(small.data(), static_cast<long>(small.size()));
        });
        return path;
    }

    QTemporaryDir folder;
};

constexpr std::uint8_t PhotoRed = 200, PreviewRed = 90;
constexpr int RedTolerance = 4; // of JPEG

} // namespace

TEST_F(EmbeddedPreviewTest, isThePictureThatTheCameraHasStored)
{
    const QString path = WriteWithPreview(Plain(600, 400, PhotoRed), Plain(150, 100, PreviewRed));

    const auto preview = EmbeddedPreview::Read(path, 120);

    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->image.GetWidth(), 150);
    EXPECT_EQ(preview->image.GetHeight(), 100);
    EXPECT_NEAR(preview->image.Row(50)[0], PreviewRed, RedTolerance);
    EXPECT_EQ(preview->photoWidth, 600);
    EXPECT_EQ(preview->photoHeight, 400);
}

TEST_F(EmbeddedPreviewTest, isNotThereWhereItIsTooSmall)
{
    const QString path = WriteWithPreview(Plain(600, 400, PhotoRed), Plain(150, 100, PreviewRed));

    EXPECT_FALSE(EmbeddedPreview::Read(path, 151));
}

TEST_F(EmbeddedPreviewTest, isUpright)
{
    const QString path =
        WriteWithPreview(Plain(600, 400, PhotoRed), Plain(150, 100, PreviewRed), 6);

    const auto preview = EmbeddedPreview::Read(path, 120);

    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->image.GetWidth(), 100);
    EXPECT_EQ(preview->image.GetHeight(), 150);
    EXPECT_EQ(preview->photoWidth, 400);
    EXPECT_EQ(preview->photoHeight, 600);
}

TEST_F(EmbeddedPreviewTest, losesTheBarsThatFillItUp)
{
    // 160 x 120 with a picture of 160 x 107 between black bars, as cameras write it.
    Image preview = Plain(160, 120, 0);
    const Image inner = Plain(160, 107, PreviewRed);
    for (int y = 0; y < 107; ++y)
        std::copy_n(inner.Row(y), 160 * Image::Channels, preview.Row(y + 6));

    const auto read =
        EmbeddedPreview::Read(WriteWithPreview(Plain(600, 400, PhotoRed), preview), 120);

    ASSERT_TRUE(read);
    EXPECT_EQ(read->image.GetWidth(), 160);
    EXPECT_EQ(read->image.GetHeight(), 107);
    EXPECT_NEAR(read->image.Row(1)[0], PreviewRed, 3 * RedTolerance);
    EXPECT_NEAR(read->image.Row(105)[0], PreviewRed, 3 * RedTolerance);
}

TEST_F(EmbeddedPreviewTest, hasTheColoursOfThePhoto)
{
    const QString path = WriteWithPreview(Plain(600, 400, PhotoRed), Plain(150, 100, PreviewRed), 1,
                                          LumetraHost::ColorConversion::GetDisplayP3Profile());

    const auto preview = EmbeddedPreview::Read(path, 120);

    ASSERT_TRUE(preview);
    EXPECT_NE(preview->image.GetSpace(), nullptr);
}

TEST_F(EmbeddedPreviewTest, isNotThereForOtherFiles)
{
    ASSERT_EQ(::mkfifo(Path("pipe.jpg").toLocal8Bit().constData(), 0600), 0);
    WriteFile(Path("notes.jpg"), ToBytes("Dear diary"));
    WriteFile(Path("empty.jpg"), {});
    LumetraHost::Photo photo;
    photo.image = Plain(60, 40, PhotoRed);
    LumetraHost::PhotoWriter::Write(Path("photo.png"), photo);
    WriteJpeg("plain.jpg", photo.image);

    for (const char* const name :
         {"pipe.jpg", "notes.jpg", "empty.jpg", "photo.png", "plain.jpg", "gone.jpg", "."})
        EXPECT_FALSE(EmbeddedPreview::Read(Path(name), 1)) << name;
}

TEST_F(EmbeddedPreviewTest, isNotThereWhereItIsDamaged)
{
    const QString path = WriteWithPreview(Plain(600, 400, PhotoRed), Plain(150, 100, PreviewRed));
    const Bytes small = ReadFile(Path("preview.jpg"));
    Bytes content = ReadFile(path);
    const auto found = std::search(content.begin(), content.end(), small.begin(), small.end());
    ASSERT_NE(found, content.end());
    std::fill_n(found + static_cast<std::ptrdiff_t>(small.size()) / 2, small.size() / 2,
                std::uint8_t{0xFF});
    WriteFile(path, content);

    EXPECT_FALSE(EmbeddedPreview::Read(path, 120));
}

TEST_F(EmbeddedPreviewTest, timesComeFromTheCamera)
{
    const QString path = WriteJpeg("photo.jpg", Plain(60, 40, PhotoRed));
    EXPECT_FALSE(PhotoOrigin::ReadTime(path).isValid());
    Tag(path, [](Exiv2::ExifData& tags) {
        tags["Exif.Photo.DateTimeOriginal"] = "2026:05:17 18:04:09";
        tags["Exif.Photo.SubSecTimeOriginal"] = "25";
    });

    EXPECT_EQ(PhotoOrigin::ReadTime(path), QDateTime(QDate(2026, 5, 17), QTime(18, 4, 9, 250)));
}

TEST_F(EmbeddedPreviewTest, timesOfOtherFilesAreUnknown)
{
    ASSERT_EQ(::mkfifo(Path("pipe.jpg").toLocal8Bit().constData(), 0600), 0);
    WriteFile(Path("notes.jpg"), ToBytes("Dear diary"));
    WriteFile(Path("empty.jpg"), {});
    const QString odd = WriteJpeg("odd.jpg", Plain(60, 40, PhotoRed));
    Tag(odd,
        [](Exiv2::ExifData& tags) { tags["Exif.Photo.DateTimeOriginal"] = "0000:00:00 00:00:00"; });

    for (const char* const name :
         {"pipe.jpg", "notes.jpg", "empty.jpg", "gone.jpg", ".", "odd.jpg"})
        EXPECT_FALSE(PhotoOrigin::ReadTime(Path(name)).isValid()) << name;
}
