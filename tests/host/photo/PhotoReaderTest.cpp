// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "storage/ContentHash.h"

#include "PhotoSamples.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <random>

#include <sys/stat.h>
#include <unistd.h>

#include <jpeglib.h>

namespace {

std::atomic<std::size_t> largestAllocation{0};

void* Allocate(std::size_t size, std::size_t alignment)
{
    std::size_t seen = largestAllocation;
    while (size > seen && !largestAllocation.compare_exchange_weak(seen, size)) {
    }
    void* const memory = std::aligned_alloc(alignment, (size + alignment) / alignment * alignment);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

// The whole program's allocations pass here, so that a test can tell what a header made it ask for.
void* operator new(std::size_t size)
{
    return Allocate(size, alignof(std::max_align_t));
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return Allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return Allocate(size, alignof(std::max_align_t));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

Bytes EncodePattern(PhotoFormat format)
{
    Photo photo;
    photo.image = MakePattern(64, 48, Image::Depth::Bits8);
    return PhotoWriter::Encode(photo, format, {}, "pattern");
}

std::string ErrorOfDecoding(const Bytes& content)
{
    return ErrorOf([&] { PhotoReader::Decode(content, "photo"); });
}

/// A sound file whose header claims another size.
Bytes MakePngOfSize(std::uint32_t width, std::uint32_t height)
{
    Bytes png = EncodePattern(PhotoFormat::Png);
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    qToBigEndian(Crc(png, 12, 29), png.data() + 29);
    return png;
}

Bytes MakeJpegOfSize(std::uint16_t width, std::uint16_t height)
{
    Bytes jpeg = EncodePattern(PhotoFormat::Jpeg);
    const std::uint8_t frame[] = {0xFF, 0xC0};
    const auto found = std::search(jpeg.begin(), jpeg.end(), frame, frame + 2);
    const auto position = static_cast<std::size_t>(found - jpeg.begin());
    qToBigEndian(height, jpeg.data() + position + 5);
    qToBigEndian(width, jpeg.data() + position + 7);
    return jpeg;
}

Bytes MakeTiffOfSize(std::uint32_t width, std::uint32_t height)
{
    Bytes tiff = EncodePattern(PhotoFormat::Tiff);
    const std::size_t directory = qFromLittleEndian<quint32>(tiff.data() + 4);
    for (int i = 0; i < 2; ++i) { // the first two entries are width and height
        std::uint8_t* const entry = tiff.data() + directory + 2 + 12 * i;
        qToLittleEndian<quint16>(4, entry + 2); // 32 bits
        qToLittleEndian<quint32>(i == 0 ? width : height, entry + 8);
    }
    return tiff;
}

/// Inks as Adobe's programs store them: inverted, with their marker.
Bytes MakeCmykJpeg(bool adobe)
{
    jpeg_compress_struct info{};
    jpeg_error_mgr error{};
    info.err = jpeg_std_error(&error);
    jpeg_create_compress(&info);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &data, &size);
    info.image_width = 16;
    info.image_height = 16;
    info.input_components = 4;
    info.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, 100, TRUE);
    info.write_Adobe_marker = adobe;
    jpeg_start_compress(&info, TRUE);
    Bytes row;
    for (int x = 0; x < 16; ++x)
        row.insert(row.end(), {51, 0, 255, 51});
    JSAMPROW rows[] = {row.data()};
    while (info.next_scanline < info.image_height)
        jpeg_write_scanlines(&info, rows, 1);
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    const Bytes result(data, data + size);
    std::free(data);
    return result;
}

Bytes MakeGrayJpeg()
{
    jpeg_compress_struct info{};
    jpeg_error_mgr error{};
    info.err = jpeg_std_error(&error);
    jpeg_create_compress(&info);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &data, &size);
    info.image_width = 16;
    info.image_height = 16;
    info.input_components = 1;
    info.in_color_space = JCS_GRAYSCALE;
    jpeg_set_defaults(&info);
    jpeg_simple_progression(&info);
    jpeg_start_compress(&info, TRUE);
    Bytes row(16, 77);
    JSAMPROW rows[] = {row.data()};
    while (info.next_scanline < info.image_height)
        jpeg_write_scanlines(&info, rows, 1);
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    const Bytes result(data, data + size);
    std::free(data);
    return result;
}

void ExpectColor(const Image& image, const std::array<int, 4>& color)
{
    for (int channel = 0; channel < 4; ++channel)
        EXPECT_NEAR(image.Row(8)[32 + channel], color[static_cast<std::size_t>(channel)], 2)
            << channel;
}

struct PhotoReaderTest : testing::Test
{
    QString PathOf(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    std::string ErrorOfReading(const char* name) const
    {
        return ErrorOf([&] { PhotoReader::Read(PathOf(name)); });
    }

    QTemporaryDir folder;
};

struct AnyFormatTest : testing::TestWithParam<PhotoFormat>
{
};

} // namespace

TEST_F(PhotoReaderTest, errorsBeginWithThePath)
{
    EXPECT_THAT(ErrorOfReading("none.jpg"), StartsWith(PathOf("none.jpg").toStdString() + ": "));
}

TEST_F(PhotoReaderTest, missingFileAndFolderAndPipeAreTold)
{
    ASSERT_TRUE(QDir().mkdir(PathOf("folder.jpg")));
    ASSERT_EQ(mkfifo(PathOf("pipe.jpg").toLocal8Bit().constData(), 0600), 0);

    EXPECT_THAT(ErrorOfReading("none.jpg"), HasSubstr("there is no such file"));
    EXPECT_THAT(ErrorOfReading("folder.jpg"), HasSubstr("expected a photo, found a folder"));
    EXPECT_THAT(ErrorOfReading("pipe.jpg"), HasSubstr("expected a regular file"));
}

TEST_F(PhotoReaderTest, fileThatMayNotBeReadIsToldWithTheReason)
{
    WriteFile(PathOf("secret.jpg"), EncodePattern(PhotoFormat::Jpeg));
    ASSERT_EQ(chmod(PathOf("secret.jpg").toLocal8Bit().constData(), 0), 0);
    ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0755), 0);
    const uid_t user = geteuid();
    if (user == 0) {
        constexpr uid_t nobody = 65534; // root may read everything
        ASSERT_EQ(seteuid(nobody), 0);
    }

    const std::string error = ErrorOfReading("secret.jpg");

    ASSERT_EQ(seteuid(user), 0);
    EXPECT_THAT(error, HasSubstr("Permission denied"));
}

TEST_F(PhotoReaderTest, emptyAndForeignContentIsTold)
{
    WriteFile(PathOf("empty.jpg"), {});
    WriteFile(PathOf("text.jpg"), ToBytes("Dear diary, this is no photo."));

    EXPECT_THAT(ErrorOfReading("empty.jpg"), HasSubstr("the file is empty"));
    EXPECT_THAT(ErrorOfReading("text.jpg"),
                HasSubstr("expected a JPEG, PNG, TIFF, WebP, HEIC or raw picture"));
}

TEST_F(PhotoReaderTest, photosKnowTheContentOfTheirFile)
{
    const Bytes content = EncodePattern(PhotoFormat::Jpeg);
    WriteFile(PathOf("a.jpg"), content);

    EXPECT_EQ(PhotoReader::Read(PathOf("a.jpg")).contentHash,
              ContentHash::Of(content.data(), content.size()));
    EXPECT_EQ(PhotoReader::ReadReduced(PathOf("a.jpg"), 5).contentHash, "");
}

TEST_F(PhotoReaderTest, contentCountsAndNotTheName)
{
    WriteFile(PathOf("really-png.jpg"), EncodePattern(PhotoFormat::Png));

    const Photo photo = PhotoReader::Read(PathOf("really-png.jpg"));

    EXPECT_TRUE(HaveSamePixels(photo.image, MakePattern(64, 48, Image::Depth::Bits8)));
}

TEST_P(AnyFormatTest, truncatedFilesAreRefusedWhereverTheyEnd)
{
    const Bytes whole = EncodePattern(GetParam());

    for (std::size_t size = 1; size < whole.size() - 1; size += 1 + whole.size() / 97) {
        const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_NE(ErrorOfDecoding(part), "no error") << size << " of " << whole.size();
    }
}

TEST_P(AnyFormatTest, damagedFilesNeverCrash)
{
    const Bytes whole = EncodePattern(GetParam());
    std::mt19937 random(1);

    for (int round = 0; round < 300; ++round) {
        Bytes damaged = whole;
        for (int i = 0; i < 4; ++i)
            damaged[random() % damaged.size()] = static_cast<std::uint8_t>(random());
        // Half of them in the header, where the structure is.
        damaged[random() % std::min<std::size_t>(damaged.size(), 200)] =
            static_cast<std::uint8_t>(random());
        ErrorOfDecoding(damaged); // a picture or an exception of ours, nothing else
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, AnyFormatTest,
                         testing::Values(PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff),
                         [](const auto& test) {
                             return "format" + std::to_string(static_cast<int>(test.param));
                         });

TEST(PhotoReader, truncatedJpegIsToldByRows)
{
    Bytes jpeg = EncodePattern(PhotoFormat::Jpeg);
    jpeg.resize(jpeg.size() / 2);

    EXPECT_THAT(ErrorOfDecoding(jpeg),
                AllOf(HasSubstr("the file ends before its picture does"), HasSubstr("48 rows")));
}

TEST(PhotoReader, jpegWhoseEndMarkerIsGoneIsToldByWhatIsMissing)
{
    Bytes jpeg = EncodePattern(PhotoFormat::Jpeg);
    std::fill(jpeg.end() - 2, jpeg.end(), std::uint8_t{0}); // as an interrupted copy leaves it
    jpeg.resize(jpeg.size() + 16);

    EXPECT_EQ(ErrorOfDecoding(jpeg), "photo: the file ends before its picture does: all 48 rows "
                                     "are there, but the end marker is missing");
}

TEST(PhotoReader, truncatedJpegIsToldByTheRowsThatWereAskedFor)
{
    Photo photo;
    photo.image = MakePattern(800, 800, Image::Depth::Bits8);
    Bytes jpeg = PhotoWriter::Encode(photo, PhotoFormat::Jpeg, {}, "large");
    jpeg.resize(jpeg.size() / 2);

    EXPECT_THAT(ErrorOf([&] { PhotoReader::DecodeReduced(jpeg, "photo", 100); }),
                HasSubstr("expected 100 rows, found "));
}

TEST(PhotoReader, truncatedProgressiveJpegIsToldByItsScan)
{
    Bytes jpeg = MakeGrayJpeg();
    jpeg.resize(jpeg.size() - 8);

    EXPECT_THAT(ErrorOfDecoding(jpeg),
                HasSubstr("expected the end marker, found the end in scan "));
}

TEST(PhotoReader, truncatedPngIsTold)
{
    Bytes png = EncodePattern(PhotoFormat::Png);
    png.resize(png.size() / 2);

    EXPECT_THAT(ErrorOfDecoding(png), HasSubstr("the file ends before its picture does"));
}

TEST(PhotoReader, everyDamageInPngPixelsIsNoticed)
{
    const Bytes whole = EncodePattern(PhotoFormat::Png);

    for (std::size_t i = 50; i + 20 < whole.size(); i += 101) {
        Bytes damaged = whole;
        damaged[i] ^= 0x10;
        EXPECT_NE(ErrorOfDecoding(damaged), "no error") << i;
    }
}

TEST(PhotoReader, pictureBombsAreRefusedByTheirHeaders)
{
    const Bytes bombs[] = {MakePngOfSize(60'000, 60'000),
                           MakePngOfSize(65'501, 1),
                           MakePngOfSize(0x7FFFFFFF, 0x7FFFFFFF),
                           MakeJpegOfSize(65'535, 65'535),
                           MakeJpegOfSize(50'000, 50'000),
                           MakeTiffOfSize(100'000, 100'000),
                           MakeTiffOfSize(65'501, 1)};
    for (const Bytes& bomb : bombs) {
        largestAllocation = 0;

        EXPECT_THAT(ErrorOfDecoding(bomb), HasSubstr("at most 500 megapixels"));
        EXPECT_LT(largestAllocation, 1'000'000u);
    }
}

TEST(PhotoReader, picturesOfNoSizeAreRefused)
{
    EXPECT_THAT(ErrorOfDecoding(MakePngOfSize(0, 5)), HasSubstr("0 x 5 pixels: expected 1 to"));
    EXPECT_THAT(ErrorOfDecoding(MakeTiffOfSize(0, 5)), HasSubstr("header cannot be read"));
    EXPECT_THAT(ErrorOfDecoding(MakeTiffOfSize(5, 0)), HasSubstr("header cannot be read"));
    EXPECT_THAT(ErrorOfDecoding(MakeJpegOfSize(5, 0)), HasSubstr("5 x 0 pixels: expected 1 to"));
    EXPECT_THAT(ErrorOfDecoding(MakeJpegOfSize(0, 5)), HasSubstr("0 x 5 pixels: expected 1 to"));
}

TEST(PhotoReader, headerThatClaimsMoreThanTheFileHoldsIsAnError)
{
    EXPECT_NE(ErrorOfDecoding(MakePngOfSize(20'000, 20'000)), "no error");
    EXPECT_NE(ErrorOfDecoding(MakeJpegOfSize(20'000, 20'000)), "no error");
    EXPECT_NE(ErrorOfDecoding(MakeTiffOfSize(20'000, 20'000)), "no error");
}

TEST(PhotoReader, inksOfJpegBecomeColors)
{
    ExpectColor(PhotoReader::Decode(MakeCmykJpeg(true), "inks").image, {10, 0, 51, 255});
    ExpectColor(PhotoReader::Decode(MakeCmykJpeg(false), "inks").image, {163, 204, 0, 255});
}

TEST(PhotoReader, grayProgressiveJpegBecomesColors)
{
    ExpectColor(PhotoReader::Decode(MakeGrayJpeg(), "gray").image, {77, 77, 77, 255});
}

TEST_F(PhotoReaderTest, photosThatAreKeptAreConvertedAsOthersAre)
{
    for (const Bytes& content : {MakeCmykJpeg(true), MakeCmykJpeg(false), MakeGrayJpeg()}) {
        WriteFile(PathOf("kept.jpg"), content);
        const KeptPhoto kept = PhotoReader::ReadToKeep(PathOf("kept.jpg"));
        const Photo whole = PhotoReader::Read(PathOf("kept.jpg"));
        EXPECT_TRUE(HaveSamePixels(kept.image.ToImage(), whole.image));
        EXPECT_EQ(kept.reductions, whole.reductions);
    }
}

TEST_F(PhotoReaderTest, aJpegThatIsKeptNeverTakesMoreThanItsThreeChannels)
{
    Photo photo;
    photo.image = MakePattern(1024, 768, Image::Depth::Bits8);
    PhotoWriter::Write(PathOf("large.jpg"), photo);
    largestAllocation = 0;

    const KeptPhoto kept = PhotoReader::ReadToKeep(PathOf("large.jpg"));

    EXPECT_LE(largestAllocation, (3u * 1024 + Image::RowAlignment) * 768);
    EXPECT_EQ(kept.image.GetWidth(), 1024);
}
