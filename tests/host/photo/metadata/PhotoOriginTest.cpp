// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/PhotoOrigin.h"

#include "host/photo/FormatSamples.h"
#include "host/photo/metadata/MetadataSamples.h"
#include "photo/PhotoWriter.h"
#include "photo/metadata/EditRecord.h"
#include "photo/metadata/JpegSegments.h"
#include "photo/metadata/MetadataTags.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace LumetraHost;
using namespace LumetraTest;

namespace {

const QDateTime Noon({2024, 5, 1}, {12, 0, 0});

QByteArray MakeExif(const char* time)
{
    Exiv2::ExifData tags;
    tags["Exif.Photo.DateTimeOriginal"] = time;
    return MetadataTags::EncodeExif(tags, Exiv2::littleEndian);
}

struct PhotoOriginTest : testing::Test
{
    QString PathOf(const char* name) const { return folder.filePath(QLatin1String(name)); }

    PhotoOrigin WriteAndRead(const char* name, const QByteArray& exif, const QByteArray& xmp) const
    {
        Photo photo{{}, MakeGradient(16, 16)};
        photo.metadata.exif = exif;
        photo.metadata.xmp = xmp;
        PhotoWriter::Write(PathOf(name), photo);
        return PhotoOrigin::Read(PathOf(name));
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(PhotoOriginTest, readsTimeAndRecordsOfWhateverIsWritten)
{
    const QByteArray exif = MakeExif("2024:05:01 12:00:00");
    const QByteArray recorded = EditRecords::Add({}, {{"Warm", 80}}, "Lumetra");
    for (const char* name : {"a.jpg", "a.png", "a.tif"}) {
        const PhotoOrigin origin = WriteAndRead(name, exif, recorded);
        EXPECT_EQ(origin.taken, Noon) << name;
        EXPECT_TRUE(origin.hasRecords) << name;
        const PhotoOrigin plain = WriteAndRead(name, {}, EditRecords::Add({}, {}, "Lumetra"));
        EXPECT_FALSE(plain.taken.isValid()) << name;
        EXPECT_FALSE(plain.hasRecords) << name;
    }
}

TEST_F(PhotoOriginTest, findsRecordsBehindLongSegments)
{
    PhotoOrigin origin = WriteAndRead("a.jpg", {}, EditRecords::Add({}, {{"Warm", 80}}, "Lumetra"));
    Bytes jpeg = ReadFile(PathOf("a.jpg"));
    for (int i = 0; i < 20; ++i) // 1.3 MB
        jpeg = AddSegment(jpeg, 0xE2, QByteArray(JpegSegment::LargestContent, 'x'));
    WriteFile(PathOf("long.jpg"), jpeg);

    EXPECT_TRUE(PhotoOrigin::Read(PathOf("long.jpg")).hasRecords);
}

TEST_F(PhotoOriginTest, readsWebpFiles)
{
    WriteFile(PathOf("a.webp"), MakeWebp(MakeGradient(8, 8), MakeExif("2024:05:01 12:00:00"),
                                         EditRecords::Add({}, {{"Warm", 80}}, "Lumetra"), {}));
    const PhotoOrigin origin = PhotoOrigin::Read(PathOf("a.webp"));
    EXPECT_EQ(origin.taken, Noon);
    EXPECT_TRUE(origin.hasRecords);
}

TEST_F(PhotoOriginTest, knowsNothingOfWhatCannotBeRead)
{
    ASSERT_EQ(::mkfifo(qPrintable(PathOf("pipe.jpg")), 0600), 0);
    WriteFile(PathOf("empty.jpg"), {});
    WriteFile(PathOf("text.jpg"), ToBytes("https://lumetra.org/ns/edit/1.0/"));
    for (const char* name : {"pipe.jpg", "empty.jpg", "text.jpg", "none.jpg", "."}) {
        const PhotoOrigin origin = PhotoOrigin::Read(PathOf(name));
        EXPECT_FALSE(origin.taken.isValid() || origin.hasRecords) << name;
    }
    EXPECT_FALSE(WriteAndRead("odd.jpg", MakeExif("    :  :     :  :  "), MakeOddXmp()).hasRecords);
    EXPECT_FALSE(WriteAndRead("zero.jpg", MakeExif("0000:00:00 00:00:00"), {}).taken.isValid());
}
