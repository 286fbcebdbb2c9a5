// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/PhotoFile.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/file/PhotoHead.h"
#include "photo/file/PhotoLimits.h"

#include "host/photo/FormatSamples.h"
#include "host/photo/PhotoSamples.h"
#include "support/AddressSanitizer.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

struct PhotoFileTest : testing::Test
{
    QString PathOf(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

    /// Writes `content` to the beginning of a file of this size that takes no space on the disk.
    QString MakeSparse(const char* name, const Bytes& content, qint64 size) const
    {
        WriteFile(PathOf(name), content);
        EXPECT_TRUE(QFile::resize(PathOf(name), size));
        return PathOf(name);
    }

    QTemporaryDir folder;
};

constexpr qint64 ThreeGigabytes = qint64(3) << 30;

Bytes EncodeAs(PhotoFormat format, int width = 64, int height = 48,
               Image::Depth depth = Image::Depth::Bits8)
{
    Photo photo;
    photo.image = MakePattern(width, height, depth);
    return PhotoWriter::Encode(photo, format, {}, "pattern");
}

/// The most memory that this process has had, in kilobytes.
long GetPeak()
{
    struct rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

std::string DescribeHead(const QString& path)
{
    PhotoFile file(path);
    const PhotoHead head = PhotoHead::Read(file);
    return std::to_string(head.width) + "x" + std::to_string(head.height) +
           (head.is16Bit ? " 16" : " 8");
}

} // namespace

TEST_F(PhotoFileTest, headsTellTheSizeOfThePicture)
{
    WriteFile(PathOf("a"), EncodeAs(PhotoFormat::Jpeg));
    WriteFile(PathOf("b"), EncodeAs(PhotoFormat::Png));
    WriteFile(PathOf("c"), EncodeAs(PhotoFormat::Png, 30, 20, Image::Depth::Bits16));
    WriteFile(PathOf("d"), EncodeAs(PhotoFormat::Tiff));
    WriteFile(PathOf("e"), MakeWebp(MakePattern(37, 21, Image::Depth::Bits8), {}, {}, {}));
    WriteFile(PathOf("f"), MakeHeif(MakeGradient(64, 64), 1, {}));
    constexpr double light[] = {0.2, 0.2, 0.2};
    WriteFile(PathOf("g"), MakeDng(64, 32, light, 1));

    EXPECT_EQ(DescribeHead(PathOf("a")), "64x48 8");
    EXPECT_EQ(DescribeHead(PathOf("b")), "64x48 8");
    EXPECT_EQ(DescribeHead(PathOf("c")), "30x20 16");
    EXPECT_EQ(DescribeHead(PathOf("d")), "64x48 16"); // may be
    EXPECT_EQ(DescribeHead(PathOf("e")), "37x21 8");
    EXPECT_EQ(DescribeHead(PathOf("f")), "64x64 16");
    EXPECT_EQ(DescribeHead(PathOf("g")), "64x32 16");
}

TEST_F(PhotoFileTest, headsOfDamagedFilesAreRead)
{
    for (const PhotoFormat format : {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff}) {
        const Bytes whole = EncodeAs(format);
        for (std::size_t size = 8; size < whole.size(); size += 7) {
            WriteFile(PathOf("part"),
                      Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
            DescribeHead(PathOf("part")); // neither crashes nor throws
        }
    }
}

TEST_F(PhotoFileTest, hugeFilesThatAreNoPhotosAreRefusedByTheirBeginning)
{
    const QString zeros = MakeSparse("zeros.jpg", {0, 0, 0, 0}, ThreeGigabytes);
    const QString broken = MakeSparse("broken.jpg", {0xFF, 0xD8, 0xFF, 0xE1}, ThreeGigabytes);
    const QString small = MakeSparse("small.jpg", EncodeAs(PhotoFormat::Jpeg), ThreeGigabytes);
    const QString png = MakeSparse("small.png", EncodeAs(PhotoFormat::Png), ThreeGigabytes);
    const QString tiff =
        MakeSparse("zeros.tif", ToBytes(QByteArray("II*\0\0\0\0\0", 8)), ThreeGigabytes);
    const long before = GetPeak();

    EXPECT_THAT(ErrorOf([&] { PhotoReader::Read(zeros); }),
                StartsWith(zeros.toStdString() + ": expected a JPEG, PNG, TIFF, WebP, HEIC or raw "
                                                 "picture, found other content"));
    EXPECT_THAT(ErrorOf([&] { PhotoReader::Read(broken); }),
                HasSubstr("bytes for a picture whose size is not found, found 3221225472 bytes"));
    EXPECT_THAT(ErrorOf([&] { PhotoReader::Read(small); }),
                HasSubstr("bytes for a picture of 64 x 48 pixels, found 3221225472 bytes"));
    EXPECT_THAT(ErrorOf([&] { PhotoReader::Read(png); }), HasSubstr("64 x 48 pixels"));
    EXPECT_THAT(ErrorOf([&] { PhotoReader::Read(tiff); }), HasSubstr("whose size is not found"));

    EXPECT_LT(GetPeak() - before, 50'000);
}

TEST_F(PhotoFileTest, whatFollowsAPictureIsNoFault)
{
    Bytes jpeg = EncodeAs(PhotoFormat::Jpeg);
    jpeg.resize(jpeg.size() + 5'000'000); // a film, as phones append them
    WriteFile(PathOf("moving.jpg"), jpeg);

    EXPECT_EQ(PhotoReader::Read(PathOf("moving.jpg")).image.GetWidth(), 64);
}

TEST_F(PhotoFileTest, devicesAndPipesAreRefusedAtOnce)
{
    ASSERT_EQ(mkfifo(PathOf("pipe.jpg").toLocal8Bit().constData(), 0600), 0);

    for (const QString& path : {PathOf("pipe.jpg"), QStringLiteral("/dev/zero")})
        EXPECT_THAT(ErrorOf([&] { PhotoFile file(path); }),
                    AllOf(StartsWith(path.toStdString()),
                          HasSubstr("expected a regular file, found a device or a pipe")));
}

TEST_F(PhotoFileTest, fileThatShrinksWhileItIsReadIsTold)
{
    WriteFile(PathOf("a.jpg"), Bytes(1000, 1));
    PhotoFile file(PathOf("a.jpg"));
    ASSERT_TRUE(QFile::resize(PathOf("a.jpg"), 400));

    EXPECT_THAT(ErrorOf([&] { file.ReadAll(); }),
                HasSubstr("a.jpg: the file became shorter while it was read: expected 1000 bytes, "
                          "found 400"));
}

TEST_F(PhotoFileTest, fileThatGrowsWhileItIsReadIsTold)
{
    WriteFile(PathOf("a.jpg"), Bytes(1000, 1));
    PhotoFile file(PathOf("a.jpg"));
    ASSERT_TRUE(QFile::resize(PathOf("a.jpg"), 1400));

    EXPECT_THAT(ErrorOf([&] { file.ReadAll(); }),
                HasSubstr("a.jpg: the file changed while it was read: expected 1000 bytes, found "
                          "1400"));
}

TEST_F(PhotoFileTest, photosThatDoNotFitIntoMemoryAreNamed)
{
    if (LumetraTest::HasAddressSanitizer)
        GTEST_SKIP() << "the sanitizer needs more address space than any limit leaves";
    // The limit is the memory that the process has already, so that the next large request fails.
    struct rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_AS, &before), 0);
    WriteFile(PathOf("large.png"), EncodeAs(PhotoFormat::Png, 4000, 3000));
    const struct rlimit little = {1, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_AS, &little), 0);

    const std::string error = ErrorOf([&] { PhotoReader::Read(PathOf("large.png")); });

    ASSERT_EQ(setrlimit(RLIMIT_AS, &before), 0);
    EXPECT_EQ(error,
              PathOf("large.png").toStdString() + ": there is not enough memory for this photo");
}
