// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/LutWriter.h"

#include "host/engine/TestPictures.h"
#include "host/lut/LutFiles.h"

#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "engine/run/Renderer.h"
#include "lut/LookExport.h"
#include "lut/LutReader.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include "Zorvik/Exception.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

const QString HostileTitle = QString::fromUtf8(
    "<Look> & \"friends\" 'of' ]]> \xc3\x84\xc3\xb6 \xf0\x9f\x8c\x85\x01\n\xe2\x80\xae");

class WrittenLuts : public LutFiles
{
protected:
    WrittenLuts() { RegisterEffects(); }

    static LookUpTable MakeTable(int size)
    {
        return LookExport::MakeTable(
            MakeSettings({MakeEffect("exposure", {{"stops", 0.4}}),
                          MakeEffect("splitToning", {{"shadowHue", 210},
                                                     {"shadowSaturation", 40},
                                                     {"highlightHue", 40},
                                                     {"highlightSaturation", 45}})}),
            size);
    }

    QString WriteTable(const char* name, const LookUpTable& table, LutFormat format) const
    {
        return Write(name, LutWriter::Encode(table, format, HostileTitle, Path(name)));
    }

    LookUpTable ReadCube(const QString& path) const
    {
        const auto looks = LutReader::Read(path);
        const auto& settings = dynamic_cast<const Lut3dSettings&>(*looks.at(0).effect);
        EXPECT_FALSE(settings.GetCurve());
        return settings.GetCube() ? *settings.GetCube() : LookUpTable();
    }

    /// In steps of 16 bits.
    static double FindLargestDifference(const LookUpTable& first, const LookUpTable& second)
    {
        EXPECT_EQ(first.size, second.size);
        double largest = first.size == second.size ? 0 : HUGE_VAL;
        for (std::size_t i = 0; i < std::min(first.GetCount(), second.GetCount()); ++i)
            for (std::size_t c = 0; c < 3; ++c)
                largest = std::max(largest, 65535.0 * std::abs(double(first.values[4 * i + c]) -
                                                               double(second.values[4 * i + c])));
        return largest;
    }
};

TEST_F(WrittenLuts, areReadAgainWithinAStep)
{
    for (const int size : {2, 5, 33, 65}) {
        const LookUpTable table = MakeTable(size);
        for (const auto& [name, format] :
             {std::pair{"a.cube", LutFormat::Cube}, {"a.clf", LutFormat::Clf}})
            EXPECT_LE(FindLargestDifference(ReadCube(WriteTable(name, table, format)), table), 0.6)
                << name << ", " << size << " points";
    }
}

TEST_F(WrittenLuts, areReadAgainToTheBitFromPictures)
{
    for (const int size : {4, 9, 25, 64}) {
        const LookUpTable table = MakeTable(size);
        for (const char* const name : {"a.png", "b.tif", "c.TIFF", "d.PNG"}) {
            const QString path = WriteTable(name, table, LutFormat::Hald);
            EXPECT_EQ(ReadCube(path).values, table.values) << name << ", " << size << " points";
            EXPECT_EQ(PhotoReader::Read(path).image.GetDepth(), Image::Depth::Bits16);
        }
    }
}

TEST_F(WrittenLuts, carryTitlesOfAnyCharacters)
{
    const LookUpTable table = MakeTable(3);
    const QByteArray cube = LutWriter::ToCubeFile(table, HostileTitle);
    EXPECT_TRUE(cube.startsWith(
        "TITLE \"<Look> & 'friends' 'of' ]]> \xc3\x84\xc3\xb6 \xf0\x9f\x8c\x85\"\n"))
        << cube.left(90).toStdString();

    QXmlStreamReader clf(LutWriter::ToClfFile(table, HostileTitle));
    ASSERT_TRUE(clf.readNextStartElement());
    EXPECT_EQ(clf.name(), QLatin1String("ProcessList"));
    const QString title =
        QString::fromUtf8("<Look> & \"friends\" 'of' ]]> \xc3\x84\xc3\xb6 \xf0\x9f\x8c\x85");
    EXPECT_EQ(clf.attributes().value(QLatin1String("name")), title);
    ASSERT_TRUE(clf.readNextStartElement());
    EXPECT_EQ(clf.name(), QLatin1String("Description"));
    EXPECT_EQ(clf.readElementText(), title);

    for (const char* const empty : {"", "\x01", "   "}) {
        const QString path =
            Write("empty.clf", LutWriter::ToClfFile(table, QString::fromUtf8(empty)));
        EXPECT_EQ(ReadCube(path).size, 3);
    }
}

TEST_F(WrittenLuts, comeInTheLevelsThatAHaldClutHas)
{
    for (const int size : {4, 9, 16, 25, 36, 49, 64, 81, 100, 121})
        EXPECT_TRUE(LutWriter::IsHaldSize(size)) << size;
    for (const int size : {1, 2, 3, 5, 33, 65, 122, 129, 144})
        EXPECT_FALSE(LutWriter::IsHaldSize(size)) << size;
    try {
        LutWriter::Encode(MakeTable(33), LutFormat::Hald, {}, QStringLiteral("a.png"));
        ADD_FAILURE() << "no error";
    } catch (const Zorvik::Exception& error) {
        EXPECT_STREQ(error.what(), "a.png: expected for a HaldCLUT as many points as the square of "
                                   "a whole number, 4 to 121, found 33");
    }
}

// GraphicsMagick interpolates in another way, which a smooth look with many points does not show.
TEST_F(WrittenLuts, areDrawnByGraphicsMagickAsTheLookIs)
{
    const LookUpTable table = MakeTable(64);
    const QString hald = WriteTable("hald.png", table, LutFormat::Hald);
    Photo photo;
    photo.image = MakeRandomPicture(160, 100, Image::Depth::Bits8, 13);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 160; ++x)
            photo.image.Row(y)[4 * x + 3] = 255;
    PhotoWriter::Write(Path("photo.png"), photo);

    QProcess magick;
    magick.start(QStringLiteral("gm"), {QStringLiteral("convert"), Path("photo.png"),
                                        QStringLiteral("-hald-clut"), hald, Path("magick.png")});
    ASSERT_TRUE(magick.waitForFinished(-1)) << "GraphicsMagick is missing";
    ASSERT_EQ(magick.exitCode(), 0) << magick.readAllStandardError().toStdString();
    const Image expected = PhotoReader::Read(Path("magick.png")).image;
    const Image drawn =
        Renderer().Render(photo.image, MakeSettings({LutReader::Read(hald)[0].effect}));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 160; ++x)
            for (int c = 0; c < 3; ++c)
                EXPECT_NEAR(GetChannel(drawn, x, y, c), GetChannel(expected, x, y, c), 1);
}

} // namespace
} // namespace LumetraHost
