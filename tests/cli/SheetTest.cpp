// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/colour/ColorConversion.h"

#include <QImage>
#include <QSet>

#include <cstdlib>

#include <unistd.h>

using testing::HasSubstr;
using testing::IsEmpty;

namespace {

int CountColours(const QImage& image, const QRect& area)
{
    QSet<QRgb> colours;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            colours.insert(image.pixel(x, y));
    return colours.size();
}

/// The mean of the channels' differences.
double FindDifference(const QImage& first, const QImage& second)
{
    long long sum = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                   std::abs(qBlue(a) - qBlue(b));
        }
    return double(sum) / (3.0 * first.width() * first.height());
}

} // namespace

// A JPEG photo is decoded at an eighth, a PNG photo in full.
TEST_F(CliTest, showsALargePhotoUprightInItsColoursAndSharp)
{
    LumetraHost::Photo photo;
    photo.image = WritePhoto("base.png", 1600, 1000);
    photo.metadata.iccProfile = LumetraHost::ColorConversion::GetAdobeRgbProfile();
    LumetraHost::PhotoWriter::Write(Path("large.jpg"), photo);
    // An EXIF block that says: to be turned clockwise.
    const QByteArray exif("\xFF\xE1\0\x22"
                          "Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
                          36);
    WriteFile("large.jpg", ReadFile("large.jpg").insert(2, exif));
    LumetraHost::PhotoWriter::Write(Path("large.png"),
                                    LumetraHost::PhotoReader::Read(Path("large.jpg")));
    ASSERT_EQ(ReadPhoto("large.png").GetHeight(), 1600);

    ASSERT_EQ(Run(Words("sheet large.jpg -o reduced.png --tile 60")).code, 0);
    ASSERT_EQ(Run(Words("sheet large.png -o full.png --tile 60")).code, 0);

    const QImage reduced(Path("reduced.png"));
    const QImage full(Path("full.png"));
    ASSERT_EQ(reduced.size(), full.size());
    EXPECT_LT(FindDifference(reduced, full), 1);
}

TEST_F(CliTest, showsAllPresetsWithTheirNamesWithoutADisplay)
{
    WritePhoto("a.png", 90, 60);

    const CliResult result = Run(Words("sheet a.png -o sheet.png --columns 6 --tile 60"));

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, "sheet.png\n");
    EXPECT_THAT(result.messages, IsEmpty());
    const QImage sheet(Path("sheet.png"));
    // One section in one row: heading, tiles, labels.
    EXPECT_EQ(sheet.size(), QSize(2 * 16 + 6 * 70 - 10, 2 * 16 + 34 + 40 + 22 + 10));
    const int bottom = sheet.height() - 16 - 10;
    const QRect firstLabel(16, bottom - 22, 60, 22);
    const QRect firstTile(16, bottom - 22 - 40, 60, 40);
    EXPECT_GT(CountColours(sheet, firstTile), 100);
    EXPECT_GT(CountColours(sheet, firstLabel), 2) << "the name is missing";
    EXPECT_NE(sheet.copy(firstTile), sheet.copy(firstTile.translated(70, 0)));
}

TEST_F(CliTest, showsTheUpperThirdOfPortraitsThatAreCut)
{
    LumetraHost::Photo photo;
    photo.image = LumetraHost::Image::Allocate(40, 200, LumetraHost::Image::Depth::Bits8);
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 40; ++x) {
            std::uint8_t* const pixel = photo.image.Row(y) + 4 * x;
            pixel[0] = y < 100 ? 200 : 20; // red above, blue below
            pixel[1] = 40;
            pixel[2] = y < 100 ? 20 : 200;
            pixel[3] = 255;
        }
    LumetraHost::PhotoWriter::Write(Path("portrait.png"), photo);
    ASSERT_EQ(Run(Words("sheet portrait.png -o sheet.png --columns 6 --tile 60")).code, 0);

    // The tile is half as high again as it is wide; a third of the photo's height is seen.
    const QRect tile(16, 16 + 34, 60, 90);
    const QImage sheet(Path("sheet.png"));
    for (const int y : {tile.top() + 2, tile.center().y(), tile.bottom() - 2}) {
        const QRgb pixel = sheet.pixel(tile.center().x(), y);
        EXPECT_GT(qRed(pixel), qBlue(pixel)) << "at " << y;
    }
}

TEST_F(CliTest, refusesASheetThatCannotBe)
{
    WritePhoto("a.png");
    WriteFile("there.png", "precious");
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"sheet -o s.png", "expected one photo, found 0"},
        {"sheet a.png b.png -o s.png", "expected one photo, found 2"},
        {"sheet a.png", "--output: expected the name of a PNG file, found \"\""},
        {"sheet a.png -o s.jpg", "--output: expected the name of a PNG file, found \"s.jpg\""},
        {"sheet a.png -o a.png --overwrite", "--output: \"a.png\" is the photo itself"},
        {"sheet a.png -o a.png", "--output: \"a.png\" is the photo itself"},
        {"sheet a.png -o there.png", "--output: \"there.png\" exists; --overwrite replaces it"},
        {"sheet a.png -o s.png --columns 0", "--columns: expected a whole number from 1 to 50"},
        {"sheet a.png -o s.png --tile 2000 --columns 50",
         "--columns and --tile: expected a sheet of at most 32000 pixels a side, found "},
        {"sheet a.png -o s.png --tile 5000", "--tile: expected a whole number from 32 to 2000"},
    };
    for (const auto& [line, message] : cases) {
        const CliResult result = Run(Words(line));
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.messages, HasSubstr(message)) << line;
    }
    EXPECT_EQ(ReadFile("there.png"), "precious");
}

TEST_F(CliTest, refusesASheetOverThePhotoUnderASecondName)
{
    WritePhoto("a.png");
    ASSERT_EQ(::link(qPrintable(Path("a.png")), qPrintable(Path("hard.png"))), 0);

    const CliResult result = Run(Words("sheet a.png -o hard.png --overwrite"));

    EXPECT_EQ(result.code, 2);
    EXPECT_THAT(result.messages, HasSubstr("--output: \"hard.png\" is the photo itself"));
}

TEST_F(CliTest, refusesASheetOverAPhotoThatHasAnEditOfItsOwn)
{
    WritePhoto("a.png");
    WritePhoto("edited.png");
    WriteFile("edited.png.lumetra.json", "{}");
    const QByteArray before = ReadFile("edited.png");

    const CliResult result = Run(Words("sheet a.png -o edited.png --overwrite"));

    EXPECT_EQ(result.code, 2);
    EXPECT_THAT(result.messages, HasSubstr("\"edited.png\" is a photo with an edit of its own"));
    EXPECT_EQ(ReadFile("edited.png"), before);
}

TEST_F(CliTest, refusesASheetOfAPhotoThatCannotBeRead)
{
    const CliResult result = Run(Words("sheet missing.png -o s.png"));

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr("missing.png: "));
    EXPECT_FALSE(Exists("s.png"));
}
