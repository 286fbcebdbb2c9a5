// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"
#include "photo/metadata/MetadataTags.h"

#include "host/photo/PhotoSamples.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include <exiv2/exiv2.hpp>
#include <lcms2.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;
using testing::SizeIs;

namespace {

using Tags = std::map<std::string, std::string>;

Bytes EncodePlain(const Image& image, PhotoFormat format)
{
    Photo photo;
    photo.image = image;
    PhotoWriter::Options options;
    options.quality = 100;
    return PhotoWriter::Encode(photo, format, options, "plain");
}

/// `content` has to outlive the result.
std::unique_ptr<Exiv2::Image> Open(const Bytes& content)
{
    MetadataTags::Initialise();
    std::unique_ptr<Exiv2::Image> file(
        Exiv2::ImageFactory::open(content.data(), static_cast<long>(content.size())).release());
    file->readMetadata();
    return file;
}

Bytes Close(Exiv2::Image& file)
{
    file.writeMetadata();
    file.io().open();
    const Exiv2::byte* const data = file.io().mmap();
    return Bytes(data, data + file.io().size());
}

void FillCameraTags(Exiv2::ExifData& exif)
{
    exif["Exif.Image.Make"] = "Lumetra Works";
    exif["Exif.Image.Model"] = "Model 7";
    exif["Exif.Image.XResolution"] = Exiv2::URational(300, 1);
    exif["Exif.Image.YResolution"] = Exiv2::URational(300, 1);
    exif["Exif.Image.ResolutionUnit"] = std::uint16_t(2);
    exif["Exif.Image.Copyright"] = "A. Photographer";
    exif["Exif.Photo.DateTimeOriginal"] = "2021:06:05 14:13:12";
    exif["Exif.Photo.ExposureTime"] = Exiv2::Rational(1, 250);
    exif["Exif.Photo.FNumber"] = Exiv2::Rational(28, 10);
    exif["Exif.Photo.ISOSpeedRatings"] = std::uint16_t(400);
    exif["Exif.Photo.UserComment"] = "charset=Ascii two words";
    exif["Exif.Photo.ColorSpace"] = std::uint16_t(1);
    exif["Exif.Photo.PixelXDimension"] = std::uint32_t(9999);
    exif["Exif.Photo.PixelYDimension"] = std::uint32_t(8888);
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLatitude"] = "48/1 8/1 1234/100";
}

/// Adds metadata as a camera and a cataloguing program would.
Bytes AddMetadata(const Bytes& plain, int orientation)
{
    const auto file = Open(plain);
    FillCameraTags(file->exifData());
    file->exifData()["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
    const Bytes thumbnail = EncodePlain(MakeGradient(16, 8), PhotoFormat::Jpeg);
    Exiv2::ExifThumb(file->exifData())
        .setJpegThumbnail(thumbnail.data(), static_cast<long>(thumbnail.size()));
    file->iptcData()["Iptc.Application2.Caption"] = "A caption";
    file->iptcData()["Iptc.Application2.City"] = "Berlin";
    file->xmpData()["Xmp.dc.title"] = "lang=\"de-DE\" Größe";
    file->xmpData()["Xmp.xmp.Rating"] = "4";
    file->xmpData()["Xmp.tiff.Orientation"] = std::to_string(orientation);
    return Close(*file);
}

/// The tags that have to survive: all that do not describe how the file stores its pixels.
Tags DescribeTags(const Bytes& content)
{
    const auto file = Open(content);
    Exiv2::ExifData exif = file->exifData();
    MetadataTags::RemoveStorageTags(exif);
    Tags tags;
    for (const auto& tag : exif) {
        const bool pointer = tag.key() == "Exif.Image.ExifTag" || tag.key() == "Exif.Image.GPSTag";
        if (!pointer)
            tags[tag.key()] = tag.toString();
    }
    for (const auto& record : file->iptcData())
        tags[record.key()] = record.toString();
    for (const auto& property : file->xmpData())
        tags[property.key()] = property.toString();
    return tags;
}

/// How often each tag stands in the file.
std::map<std::string, int> CountTags(const Bytes& content)
{
    const auto file = Open(content);
    std::map<std::string, int> counts;
    for (const auto& tag : file->exifData())
        ++counts[tag.key()];
    return counts;
}

Tags OnlyThumbnail(const Tags& tags)
{
    Tags found;
    for (const auto& tag : tags) {
        if (tag.first.rfind("Exif.Thumbnail", 0) == 0)
            found.insert(tag);
    }
    return found;
}

/// An sRGB profile with a long text in it.
QByteArray MakeLongSrgbProfile(int size)
{
    void* const profile = cmsCreate_sRGBProfile();
    cmsMLU* const text = cmsMLUalloc(nullptr, 1);
    cmsMLUsetASCII(text, "en", "US", QByteArray(size, 'x').constData());
    cmsWriteTag(profile, cmsSigCopyrightTag, text);
    cmsMLUfree(text);
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(static_cast<int>(length), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    cmsCloseProfile(profile);
    return bytes;
}

std::string NameOf(PhotoFormat format)
{
    switch (format) {
    case PhotoFormat::Jpeg:
        return "Jpeg";
    case PhotoFormat::Png:
        return "Png";
    case PhotoFormat::Tiff:
        return "Tiff";
    default:
        return "unknown";
    }
}

constexpr PhotoFormat Formats[] = {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff};

struct MetadataBetweenFormatsTest : testing::TestWithParam<std::tuple<PhotoFormat, PhotoFormat>>
{
};

struct PhotoMetadataTest : testing::TestWithParam<PhotoFormat>
{
};

} // namespace

TEST_P(MetadataBetweenFormatsTest, metadataAreTheSameBeforeAndAfter)
{
    const auto [from, to] = GetParam();
    const Bytes stored = AddMetadata(EncodePlain(MakeGradient(48, 32), from), 6);

    const Photo photo = PhotoReader::Decode(stored, "stored");
    const Bytes written = PhotoWriter::Encode(photo, to, {}, "written");

    Tags expected = DescribeTags(stored);
    for (const auto& tag : OnlyThumbnail(expected))
        expected.erase(tag.first);
    expected["Exif.Image.Orientation"] = "1";
    expected["Xmp.tiff.Orientation"] = "1";
    expected["Exif.Photo.PixelXDimension"] = "32"; // turned
    expected["Exif.Photo.PixelYDimension"] = "48";
    EXPECT_EQ(DescribeTags(written), expected);
    EXPECT_THAT(expected, Contains(Pair("Xmp.dc.title", "lang=\"de-DE\" Größe")));
    EXPECT_THAT(expected, Contains(Pair("Iptc.Application2.City", "Berlin")));
    EXPECT_THAT(photo.warnings, IsEmpty());
}

TEST_P(MetadataBetweenFormatsTest, pixelsAreTheSameWithAndWithoutMetadata)
{
    const auto [from, to] = GetParam();
    const Bytes stored = AddMetadata(EncodePlain(MakeGradient(48, 32), from), 1);
    Photo photo = PhotoReader::Decode(stored, "stored");

    const Photo with =
        PhotoReader::Decode(PhotoWriter::Encode(photo, to, {}, "written"), "written");
    photo.metadata = PhotoMetadata();
    const Photo without =
        PhotoReader::Decode(PhotoWriter::Encode(photo, to, {}, "written"), "written");

    EXPECT_TRUE(HaveSamePixels(with.image, without.image));
}

INSTANTIATE_TEST_SUITE_P(Formats, MetadataBetweenFormatsTest,
                         testing::Combine(testing::ValuesIn(Formats), testing::ValuesIn(Formats)),
                         [](const auto& test) {
                             return NameOf(std::get<0>(test.param)) + "To" +
                                    NameOf(std::get<1>(test.param));
                         });

TEST_P(PhotoMetadataTest, orientationOfTheFileIsApplied)
{
    const std::array<int, 6> marks{0, 40, 80, 120, 160, 200};
    const Bytes plain = EncodePlain(MakeMarked(marks, Image::Depth::Bits8), GetParam());
    constexpr const char* expected[] = {"3x2: 0 40 80 120 160 200", "3x2: 80 40 0 200 160 120",
                                        "3x2: 200 160 120 80 40 0", "3x2: 120 160 200 0 40 80",
                                        "2x3: 0 120 40 160 80 200", "2x3: 120 0 160 40 200 80",
                                        "2x3: 200 80 160 40 120 0", "2x3: 80 200 40 160 0 120"};

    for (int orientation = 1; orientation <= 8; ++orientation) {
        Image upright = PhotoReader::Decode(AddMetadata(plain, orientation), "photo").image;
        for (int y = 0; y < upright.GetHeight(); ++y) { // JPEG is off by a few steps
            for (int i = 0; i < 4 * upright.GetWidth(); ++i)
                upright.Row(y)[i] = static_cast<std::uint8_t>((upright.Row(y)[i] + 20) / 40 * 40);
        }
        EXPECT_EQ(DescribeRed(upright), expected[orientation - 1]) << orientation;
    }
}

TEST_P(PhotoMetadataTest, orientationOutsideItsRangeIsIgnored)
{
    const Bytes plain = EncodePlain(MakeGradient(48, 32), GetParam());

    for (int orientation : {0, 9, 200})
        EXPECT_EQ(PhotoReader::Decode(AddMetadata(plain, orientation), "photo").image.GetWidth(),
                  48);
}

TEST_P(PhotoMetadataTest, thumbnailIsDropped)
{
    const Bytes stored = AddMetadata(EncodePlain(MakeGradient(48, 32), GetParam()), 1);

    const Photo photo = PhotoReader::Decode(stored, "stored");

    EXPECT_THAT(
        OnlyThumbnail(DescribeTags(PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "written"))),
        IsEmpty());
    if (GetParam() == PhotoFormat::Jpeg) {
        EXPECT_THAT(OnlyThumbnail(DescribeTags(stored)),
                    Contains(Key("Exif.Thumbnail.JPEGInterchangeFormat")));
    }
}

TEST_P(PhotoMetadataTest, photoWithoutMetadataGetsNone)
{
    const Photo photo = PhotoReader::Decode(EncodePlain(MakeGradient(48, 32), GetParam()), "photo");

    // A TIFF file's own directory is its EXIF block: the orientation is there in any case.
    if (GetParam() != PhotoFormat::Tiff) {
        EXPECT_TRUE(photo.metadata.exif.isEmpty());
    }
    EXPECT_TRUE(photo.metadata.xmp.isEmpty());
    EXPECT_TRUE(photo.metadata.iptc.isEmpty());
    EXPECT_TRUE(photo.metadata.iccProfile.isEmpty());
    EXPECT_THAT(photo.warnings, IsEmpty());
}

TEST_P(PhotoMetadataTest, everyTagIsWrittenOnce)
{
    const Photo photo = PhotoReader::Decode(
        AddMetadata(EncodePlain(MakeGradient(48, 32), PhotoFormat::Jpeg), 1), "stored");

    for (const auto& count : CountTags(PhotoWriter::Encode(photo, GetParam(), {}, "written")))
        EXPECT_EQ(count.second, 1) << count.first;
}

TEST_P(PhotoMetadataTest, newSizeIsWritten)
{
    Photo photo = PhotoReader::Decode(
        AddMetadata(EncodePlain(MakeGradient(48, 32), PhotoFormat::Jpeg), 1), "stored");
    photo.image = MakeGradient(10, 20);

    const Tags tags = DescribeTags(PhotoWriter::Encode(photo, GetParam(), {}, "written"));

    EXPECT_THAT(tags, Contains(Pair("Exif.Photo.PixelXDimension", "10")));
    EXPECT_THAT(tags, Contains(Pair("Exif.Photo.PixelYDimension", "20")));
}

INSTANTIATE_TEST_SUITE_P(Formats, PhotoMetadataTest, testing::ValuesIn(Formats),
                         [](const auto& test) { return NameOf(test.param); });

TEST(PhotoMetadata, damagedExifIsLeftOutWithAWarning)
{
    Photo photo;
    photo.image = MakeGradient(8, 8);
    Bytes png = PhotoWriter::Encode(photo, PhotoFormat::Png, {}, "plain");
    // An EXIF chunk with a header and nothing behind it, before the closing chunk.
    const QByteArray chunk =
        QByteArray::fromHex("00000006655849664d4d002a0000") + QByteArray::fromHex("00000000");
    png.insert(png.end() - 12, chunk.begin(), chunk.end());

    const Photo read = PhotoReader::Decode(png, "damaged");

    EXPECT_TRUE(HaveSamePixels(read.image, photo.image));
    EXPECT_TRUE(read.metadata.exif.isEmpty());
    ASSERT_THAT(read.warnings, SizeIs(1));
    EXPECT_THAT(read.warnings[0], HasSubstr("cannot be read and are left out"));
}

TEST(PhotoMetadata, adobeRgbThatOnlyTheExifBlockTellsOfGetsAProfile)
{
    const Bytes plain = EncodePlain(MakeGradient(48, 32), PhotoFormat::Jpeg);
    const auto file = Open(plain);
    file->exifData()["Exif.Photo.ColorSpace"] = std::uint16_t(0xFFFF); // "uncalibrated"
    file->exifData()["Exif.Iop.InteroperabilityIndex"] = "R03";
    const Bytes stored = Close(*file);

    const Photo photo = PhotoReader::Decode(stored, "camera");

    EXPECT_EQ(photo.metadata.iccProfile, ColorConversion::GetAdobeRgbProfile());
    EXPECT_TRUE(photo.image.GetSpace());
    EXPECT_LE(LargestDifference(photo.image, MakeGradient(48, 32)), 4);
    const Tags tags = DescribeTags(PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "written"));
    EXPECT_THAT(tags, Contains(Pair("Exif.Photo.ColorSpace", "65535")));
    EXPECT_THAT(tags, Contains(Pair("Exif.Iop.InteroperabilityIndex", "R03")));
}

TEST(PhotoMetadata, longProfileIsKeptInSeveralSegments)
{
    Photo photo;
    photo.image = MakeGradient(48, 32);
    photo.metadata.iccProfile = MakeLongSrgbProfile(200'000);

    for (const PhotoFormat format : Formats) {
        const Bytes written = PhotoWriter::Encode(photo, format, {}, "written");
        EXPECT_EQ(PhotoReader::Decode(written, "written").metadata.iccProfile,
                  photo.metadata.iccProfile)
            << NameOf(format);
    }
}

TEST(PhotoMetadata, profileOfWhichASegmentIsMissingIsTold)
{
    Photo photo;
    photo.image = MakeGradient(48, 32);
    photo.metadata.iccProfile = MakeLongSrgbProfile(200'000);
    Bytes jpeg = PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "written");
    const std::string first("ICC_PROFILE\0\1", 13);
    const auto found = std::search(jpeg.begin(), jpeg.end(), first.begin(), first.end());
    ASSERT_NE(found, jpeg.end());
    *found = 'X';

    const Photo read = PhotoReader::Decode(jpeg, "damaged");

    EXPECT_THAT(read.warnings,
                testing::ElementsAre(HasSubstr("the embedded colour profile is damaged")));
}

TEST(PhotoMetadata, profileThatPngDoesNotTakeCostsItselfAlone)
{
    Photo photo;
    photo.image = MakeGradient(48, 32);
    photo.metadata.iccProfile = "no profile";
    Warnings warnings;

    const Bytes png = PhotoWriter::Encode(photo, PhotoFormat::Png, {}, "written", &warnings);

    EXPECT_THAT(warnings,
                testing::ElementsAre("PNG does not take this colour profile; it is left out"));
    EXPECT_TRUE(HaveSamePixels(PhotoReader::Decode(png, "written").image, photo.image));
}
