// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/metadata/ExtendedXmp.h"
#include "photo/metadata/JpegSegments.h"
#include "photo/metadata/MetadataTags.h"

#include "MetadataSamples.h"
#include "host/photo/PhotoSamples.h"

#include <QCryptographicHash>

#include <gmock/gmock.h>

#include <exiv2/exiv2.hpp>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Le;
using testing::Pair;
using testing::SizeIs;

namespace {

constexpr PhotoFormat Formats[] = {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff};
/// A record that is longer than the block.
const QByteArray DamagedIptc("\x1c\x02\x5a\x70\x00 too long for the block", 27);
constexpr char NoteKey[] = "Xmp.xmpNote.HasExtendedXMP";

QByteArray MakeExif(int commentSize = 10)
{
    MetadataTags::Initialise();
    Exiv2::ExifData tags;
    tags["Exif.Image.Make"] = "Lumetra Works";
    tags["Exif.Photo.DateTimeOriginal"] = "2021:06:05 14:13:12";
    tags["Exif.Photo.UserComment"] = "charset=Ascii " + MakeText(commentSize).toStdString();
    return MetadataTags::EncodeExif(tags, Exiv2::littleEndian);
}

QByteArray MakeIptc(int captionSize = 10)
{
    Exiv2::IptcData records;
    records["Iptc.Application2.City"] = "Berlin";
    records["Iptc.Application2.Caption"] = MakeText(captionSize).toStdString();
    return MetadataTags::EncodeIptc(records);
}

std::string GetExif(const PhotoMetadata& metadata, const char* key)
{
    Exiv2::ExifData tags;
    if (!metadata.exif.isEmpty())
        MetadataTags::DecodeExif(metadata.exif, tags);
    const auto found = tags.findKey(Exiv2::ExifKey(key));
    return found == tags.end() ? "none" : found->toString();
}

Photo MakePhoto(const QByteArray& xmp)
{
    Photo photo;
    photo.image = MakeGradient(48, 32);
    photo.metadata.exif = MakeExif();
    photo.metadata.iptc = MakeIptc();
    photo.metadata.xmp = xmp;
    return photo;
}

struct Written
{
    Bytes file;
    Photo photo;
    Warnings warnings;
};

Written WriteAs(const Photo& photo, PhotoFormat format)
{
    Written written;
    written.file = PhotoWriter::Encode(photo, format, {}, "out", &written.warnings);
    written.photo = PhotoReader::Decode(written.file, "out");
    return written;
}

Bytes EncodePlain()
{
    Photo photo;
    photo.image = MakeGradient(48, 32);
    return PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "plain");
}

QByteArray GetGuid(const QByteArray& extension)
{
    return QCryptographicHash::hash(extension, QCryptographicHash::Md5).toHex().toUpper();
}

/// A packet that names the extension, and this.
struct Extended
{
    QByteArray extension = MakeXmp({}, "<my:depth>" + MakeText(150'000) + "</my:depth>");
    QByteArray guid = GetGuid(extension);
    QByteArray main = MakeXmp("my:note=\"kept  as it is\" " + NameExtension(guid));
    Bytes file = AddExtendedXmp(EncodePlain(), main, extension, guid, 40'000);
};

} // namespace

TEST(MetadataBlocks, exifAndIptcSurviveAnXmpPacketThatCannotBeDecoded)
{
    for (const PhotoFormat from : Formats) {
        const Written read = WriteAs(MakePhoto(MakeOddXmp()), from);
        EXPECT_THAT(read.photo.warnings,
                    ElementsAre("the XMP packet cannot be decoded and is carried over as it is"));
        for (const PhotoFormat to : Formats) {
            const PhotoMetadata metadata = WriteAs(read.photo, to).photo.metadata;
            EXPECT_EQ(metadata.xmp, MakeOddXmp()) << int(from) << " to " << int(to);
            EXPECT_EQ(GetExif(metadata, "Exif.Image.Make"), "Lumetra Works");
            EXPECT_EQ(metadata.iptc, MakeIptc());
        }
    }
}

TEST(MetadataBlocks, xmpThatCanBeDecodedIsKeptByteForByteInEveryFormat)
{
    const QByteArray packet = MakeXmp("my:note=\"kept  as it is\"");
    for (const PhotoFormat format : Formats)
        EXPECT_EQ(WriteAs(MakePhoto(packet), format).photo.metadata.xmp, packet) << int(format);
}

TEST(MetadataBlocks, damagedExifOfJpegCostsItselfAloneAndIsTold)
{
    Bytes jpeg = AddSegment(EncodePlain(), 0xE1, QByteArray("Exif\0\0no such thing", 19));
    jpeg = AddSegment(jpeg, 0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + MakeXmp({}));

    const Photo photo = PhotoReader::Decode(jpeg, "in");

    EXPECT_EQ(photo.metadata.xmp, MakeXmp({}));
    EXPECT_TRUE(photo.metadata.exif.isEmpty());
    EXPECT_THAT(photo.warnings,
                ElementsAre(HasSubstr("the EXIF data cannot be read and are left out")));
}

TEST(MetadataBlocks, damagedIptcOfJpegIsTold)
{
    QByteArray resource("Photoshop 3.0\0"
                        "8BIM\x04\x04\0\0\0\0\0",
                        14 + 11);
    resource += static_cast<char>(DamagedIptc.size());
    const Bytes jpeg =
        AddSegment(EncodePlain(), 0xED, resource + DamagedIptc + QByteArray(1, '\0'));

    EXPECT_THAT(PhotoReader::Decode(jpeg, "in").warnings,
                ElementsAre(HasSubstr("the IPTC data cannot be read and are left out")));
}

TEST(MetadataBlocks, extendedXmpIsReadWholeInWhateverOrderItsPartsCome)
{
    const Extended sample;

    const Photo photo = PhotoReader::Decode(sample.file, "in");

    EXPECT_EQ(photo.metadata.xmp, sample.main);
    EXPECT_EQ(photo.metadata.xmpExtension, sample.extension);
    EXPECT_THAT(photo.warnings, IsEmpty());
}

TEST(MetadataBlocks, extendedXmpIsWrittenAgainByteForByteToJpeg)
{
    const Extended sample;

    const Written written = WriteAs(PhotoReader::Decode(sample.file, "in"), PhotoFormat::Jpeg);

    EXPECT_EQ(written.photo.metadata.xmp, sample.main);
    EXPECT_EQ(written.photo.metadata.xmpExtension, sample.extension);
    EXPECT_THAT(written.warnings, IsEmpty());
}

TEST(MetadataBlocks, extendedXmpBecomesOnePacketInPngAndTiff)
{
    const Extended sample;
    const Photo photo = PhotoReader::Decode(sample.file, "in");
    for (const PhotoFormat format : {PhotoFormat::Png, PhotoFormat::Tiff}) {
        const Written written = WriteAs(photo, format);
        EXPECT_THAT(
            DescribeXmp(written.photo.metadata.xmp),
            testing::UnorderedElementsAre(Pair("Xmp.my.note", "kept  as it is"),
                                          Pair("Xmp.my.depth", MakeText(150'000).toStdString())));
        EXPECT_THAT(written.warnings, IsEmpty());
    }
}

TEST(MetadataBlocks, incompleteExtensionIsLeftOutWithAWarning)
{
    const Extended sample;
    const Bytes first = AddExtendedXmp(EncodePlain(), sample.main, sample.extension.left(40'000),
                                       sample.guid, 40'000);
    Bytes jpeg = first;
    // Finds the place at which the part claims its length.
    const auto guid = std::search(jpeg.begin(), jpeg.end(), sample.guid.begin(), sample.guid.end());
    const auto second = std::search(guid + 1, jpeg.end(), sample.guid.begin(), sample.guid.end());
    ASSERT_NE(second, jpeg.end());
    *(second + 32 + 1) = 9;

    const Photo photo = PhotoReader::Decode(jpeg, "in");

    EXPECT_TRUE(photo.metadata.xmpExtension.isEmpty());
    EXPECT_EQ(photo.metadata.xmp, sample.main);
    EXPECT_THAT(photo.warnings,
                ElementsAre("the extension of the XMP packet is incomplete and is left out"));
}

TEST(MetadataBlocks, partsOfAnOlderExtensionAreNotTaken)
{
    const Extended sample;
    const QByteArray other(32, 'A');
    const Bytes jpeg = AddExtendedXmp(EncodePlain(), sample.main, sample.extension, other, 40'000);

    const Photo photo = PhotoReader::Decode(jpeg, "in");

    EXPECT_TRUE(photo.metadata.xmpExtension.isEmpty());
    EXPECT_THAT(photo.warnings,
                ElementsAre("the extension that the XMP packet names is not in the file"));
}

TEST(MetadataBlocks, longXmpBecomesExtendedXmpInJpeg)
{
    const QByteArray packet =
        MakeXmp("xmp:Rating=\"4\" my:short=\"s\"",
                "<my:long>" + MakeText(90'000) + "</my:long><my:list><rdf:Seq><rdf:li>" +
                    MakeText(30'000) + "</rdf:li><rdf:li>second</rdf:li></rdf:Seq></my:list>");
    const Photo tiff = WriteAs(MakePhoto(packet), PhotoFormat::Tiff).photo;

    const Written written = WriteAs(tiff, PhotoFormat::Jpeg);

    EXPECT_THAT(written.warnings, IsEmpty());
    const PhotoMetadata& metadata = written.photo.metadata;
    EXPECT_THAT(metadata.xmp, SizeIs(Le(ExtendedXmp::LargestMain)));
    const auto main = DescribeXmp(metadata.xmp);
    EXPECT_THAT(main, AllOf(Contains(Pair("Xmp.xmp.Rating", "4")),
                            Contains(Pair("Xmp.my.list", testing::EndsWith(", second"))),
                            Contains(Pair(NoteKey, GetGuid(metadata.xmpExtension).toStdString()))));
    // Both parts together must equal the packet before.
    EXPECT_EQ(DescribeXmp(WriteAs(written.photo, PhotoFormat::Tiff).photo.metadata.xmp),
              DescribeXmp(packet));
}

TEST(MetadataBlocks, xmpThatIsLongByBlanksAloneStaysOnePacketInJpeg)
{
    const QByteArray packet = MakeXmp("xmp:Rating=\"4\"", QByteArray(100'000, ' '));

    const PhotoMetadata metadata = WriteAs(MakePhoto(packet), PhotoFormat::Jpeg).photo.metadata;

    EXPECT_THAT(DescribeXmp(metadata.xmp), ElementsAre(Pair("Xmp.xmp.Rating", "4")));
    EXPECT_TRUE(metadata.xmpExtension.isEmpty());
}

TEST(MetadataBlocks, everySegmentOfLongXmpFitsAndIsNumbered)
{
    const Written written = WriteAs(
        MakePhoto(MakeXmp({}, "<my:long>" + MakeText(200'000) + "</my:long>")), PhotoFormat::Jpeg);

    int parts = 0;
    for (const JpegSegment& segment : FindJpegSegments(written.file))
        if (segment.content.startsWith("http://ns.adobe.com/xmp/extension/")) {
            EXPECT_LE(segment.content.size(), JpegSegment::LargestContent);
            ++parts;
        }
    EXPECT_EQ(parts, 4);
}

TEST(MetadataBlocks, longXmpThatCannotBeDecodedGoesThroughJpegByteForByte)
{
    const QByteArray packet =
        MakeXmp({}, "<xmp:Rating>3</xmp:Rating><xmp:Rating>4</xmp:Rating><my:long>" +
                        MakeText(100'000) + "</my:long>");

    const Photo jpeg = WriteAs(MakePhoto(packet), PhotoFormat::Jpeg).photo;

    EXPECT_EQ(jpeg.metadata.xmpExtension, packet);
    EXPECT_EQ(GetExif(jpeg.metadata, "Exif.Image.Make"), "Lumetra Works");
    for (const PhotoFormat format : {PhotoFormat::Png, PhotoFormat::Tiff})
        EXPECT_EQ(WriteAs(jpeg, format).photo.metadata.xmp, packet);
}

TEST(MetadataBlocks, thumbnailsInAnExtensionAreDropped)
{
    const QByteArray extension =
        MakeXmp({}, "<xmp:Thumbnails><rdf:Alt><rdf:li rdf:parseType=\"Resource\">"
                    "<my:image>" +
                        MakeText(80'000) +
                        "</my:image></rdf:li></rdf:Alt></xmp:Thumbnails><my:rest>r</my:rest>");
    const QByteArray main = MakeXmp(NameExtension(GetGuid(extension)));
    const Bytes jpeg = AddExtendedXmp(EncodePlain(), main, extension, GetGuid(extension), 60'000);

    const PhotoMetadata metadata = PhotoReader::Decode(jpeg, "in").metadata;

    EXPECT_TRUE(metadata.xmpExtension.isEmpty());
    EXPECT_THAT(DescribeXmp(metadata.xmp), ElementsAre(Pair("Xmp.my.rest", "r")));
}

TEST(MetadataBlocks, exifAboveOneSegmentIsKeptWholeInPngAndTiff)
{
    Photo photo = MakePhoto({});
    photo.metadata.exif = MakeExif(100'000);
    for (const PhotoFormat format : {PhotoFormat::Png, PhotoFormat::Tiff}) {
        const Written written = WriteAs(photo, format);
        EXPECT_EQ(GetExif(written.photo.metadata, "Exif.Photo.UserComment"),
                  "charset=Ascii " + MakeText(100'000).toStdString());
        EXPECT_THAT(written.warnings, IsEmpty());
        EXPECT_THAT(written.photo.warnings, IsEmpty());
    }
}

TEST(MetadataBlocks, exifAboveOneSegmentLosesItsLargestFieldsInJpegAndTellsThem)
{
    Photo photo = MakePhoto(MakeXmp({}));
    photo.metadata.exif = MakeExif(100'000);

    const Written written = WriteAs(photo, PhotoFormat::Jpeg);

    EXPECT_THAT(written.warnings,
                ElementsAre(AllOf(HasSubstr("the EXIF data are larger than a JPEG file can hold"),
                                  HasSubstr("left out: Exif.Photo.UserComment (100008 bytes)"))));
    const PhotoMetadata& metadata = written.photo.metadata;
    EXPECT_EQ(GetExif(metadata, "Exif.Photo.UserComment"), "none");
    EXPECT_EQ(GetExif(metadata, "Exif.Photo.DateTimeOriginal"), "2021:06:05 14:13:12");
    EXPECT_EQ(metadata.xmp, MakeXmp({}));
}

TEST(MetadataBlocks, iptcAboveOneSegmentIsKeptInJpeg)
{
    Photo photo = MakePhoto({});
    Exiv2::IptcData records;
    for (int i = 0; i < 100; ++i) {
        Exiv2::StringValue keyword(MakeText(2000 + i).toStdString());
        records.add(Exiv2::IptcKey("Iptc.Application2.Keywords"), &keyword);
    }
    photo.metadata.iptc = MetadataTags::EncodeIptc(records);

    const Written written = WriteAs(photo, PhotoFormat::Jpeg);

    EXPECT_EQ(written.photo.metadata.iptc, photo.metadata.iptc);
    EXPECT_THAT(written.warnings, IsEmpty());
}

TEST(MetadataBlocks, blockThatCannotBeWrittenCostsItselfAlone)
{
    Photo photo = MakePhoto(MakeXmp({}));
    photo.metadata.iptc = DamagedIptc;
    for (const PhotoFormat format : Formats) {
        const Written written = WriteAs(photo, format);
        EXPECT_THAT(written.warnings,
                    ElementsAre(HasSubstr("the IPTC data cannot be written and are left out")))
            << int(format);
        EXPECT_EQ(written.photo.metadata.xmp, MakeXmp({}));
        EXPECT_EQ(GetExif(written.photo.metadata, "Exif.Image.Make"), "Lumetra Works");
    }
}

TEST(MetadataBlocks, damagedExifIsNotWrittenAndTold)
{
    Photo photo = MakePhoto(MakeXmp({}));
    photo.metadata.exif = "no directory";
    for (const PhotoFormat format : Formats) {
        const Written written = WriteAs(photo, format);
        EXPECT_THAT(written.warnings,
                    ElementsAre(HasSubstr("the EXIF data cannot be adapted and are left out")));
        EXPECT_EQ(written.photo.metadata.iptc, MakeIptc());
    }
}
