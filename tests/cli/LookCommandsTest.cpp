// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include "archive/ZipReader.h"
#include "photo/PhotoReader.h"
#include "photo/metadata/MetadataWriter.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>

using LumetraHost::Image;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

QStringList Words(const QString& line)
{
    return line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QByteArray PixelsOf(const Image& image)
{
    QByteArray pixels;
    for (int y = 0; y < image.GetHeight(); ++y)
        pixels.append(reinterpret_cast<const char*>(image.Row(y)), 4 * image.GetWidth());
    return pixels;
}

/// A cube of 17 points that turns the colours around.
QByteArray TurningCube()
{
    QByteArray text = "LUT_3D_SIZE 17\n";
    for (int b = 0; b < 17; ++b)
        for (int g = 0; g < 17; ++g)
            for (int r = 0; r < 17; ++r)
                text += QByteArray::number(b / 16.0) + ' ' + QByteArray::number(r / 16.0) + ' ' +
                        QByteArray::number(g / 16.0) + '\n';
    return text;
}

} // namespace

class LookCommandsTest : public CliTest
{
protected:
    CliResult Mine(const QString& line) const
    {
        return Run(Words(line) << QStringLiteral("--store") << QStringLiteral("mine.json"));
    }
    CliResult Theirs(const QString& line) const
    {
        return Run(Words(line) << QStringLiteral("--store") << QStringLiteral("theirs.json"));
    }

    /// The pixels of the photo with a preset of theirs.
    QByteArray ApplyTheirs(const QString& preset) const
    {
        const CliResult result = Theirs(
            QStringLiteral("apply photo.png --exact --overwrite -o theirs.png -p ") + preset);
        EXPECT_EQ(result.code, 0) << result.messages;
        return PixelsOf(ReadPhoto("theirs.png"));
    }
    QByteArray ApplyMine(const QString& preset) const
    {
        const CliResult result =
            Mine(QStringLiteral("apply photo.png --exact --overwrite -o mine.png -p ") + preset);
        EXPECT_EQ(result.code, 0) << result.messages;
        return PixelsOf(ReadPhoto("mine.png"));
    }

    /// Makes a WebP file that another program might have made of a picture: its pixels do not
    /// matter, its metadata are those of the picture.
    void MakeWebp(const char* from, const char* to) const
    {
        QImage pixels(20, 10, QImage::Format_RGB32);
        pixels.fill(Qt::darkCyan);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(pixels.save(&buffer, "webp"));
        const auto& data = buffer.data();
        LumetraHost::PhotoMetadata metadata;
        metadata.xmp = LumetraHost::PhotoReader::Read(Path(from)).metadata.xmp;
        LumetraHost::Warnings warnings;
        const auto file =
            LumetraHost::MetadataWriter::Embed(LumetraHost::Bytes(data.begin(), data.end()),
                                               LumetraHost::PhotoFormat::Webp, metadata, warnings);
        ASSERT_TRUE(warnings.empty());
        WriteFile(to, QByteArray(reinterpret_cast<const char*>(file.data()),
                                 static_cast<int>(file.size())));
    }
};

TEST_F(LookCommandsTest, looksGoRoundThroughAFileWithEqualPixels)
{
    WritePhoto("photo.png");
    WriteFile("turn.cube", TurningCube());
    ASSERT_EQ(Mine(QStringLiteral("save test.bright Campfire -i 47 --set exposure=13")).code, 0);
    ASSERT_EQ(Mine(QStringLiteral("save test.slide Slider -i 31")).code, 0);
    ASSERT_EQ(Mine(QStringLiteral("import turn.cube")).code, 0);

    const CliResult exported =
        Mine(QStringLiteral("export Campfire Slider turn -o pack.lumetra --author Ada"));
    EXPECT_EQ(exported.code, 0) << exported.messages;
    EXPECT_EQ(exported.output, "pack.lumetra\n");
    const CliResult imported = Theirs(QStringLiteral("import pack.lumetra"));
    EXPECT_EQ(imported.code, 0) << imported.messages;
    EXPECT_EQ(imported.output, "imported \"Campfire\" from \"pack.lumetra\"\n"
                               "imported \"Slider\" from \"pack.lumetra\"\n"
                               "imported \"turn\" from \"pack.lumetra\"\n");

    EXPECT_TRUE(LumetraHost::ZipReader::IsZip(Path("pack.lumetra")));
    for (const char* const preset : {"Campfire", "Slider", "turn"}) {
        const QByteArray mine = ApplyMine(QString::fromLatin1(preset));
        EXPECT_EQ(ApplyTheirs(QString::fromLatin1(preset)), mine) << preset;
        EXPECT_NE(mine, PixelsOf(ReadPhoto("photo.png"))) << preset;
    }
}

TEST_F(LookCommandsTest, looksGoRoundThroughThePicturesThatTheyMake)
{
    WritePhoto("photo.png");
    ASSERT_EQ(Mine(QStringLiteral("save test.bright Campfire -i 47 --set exposure=13")).code, 0);
    const QByteArray wanted = ApplyMine(QStringLiteral("Campfire"));
    for (const char* const name : {"out.jpg", "out.png", "out.tif"})
        ASSERT_EQ(
            Mine(QStringLiteral("apply photo.png -p Campfire -o ") + QString::fromLatin1(name))
                .code,
            0);
    MakeWebp("out.png", "out.webp");
    for (const char* const name : {"out.jpg", "out.png", "out.tif", "out.webp"}) {
        for (const QString& file : QDir(folder.path()).entryList({QStringLiteral("theirs.json*")}))
            QFile::remove(folder.filePath(file)); // a backup would bring the look back
        const CliResult imported = Theirs(QStringLiteral("import ") + QString::fromLatin1(name));
        EXPECT_EQ(imported.code, 0) << imported.messages;
        EXPECT_EQ(imported.output, std::string("imported \"Campfire\" from \"") + name + "\"\n");
        EXPECT_EQ(ApplyTheirs(QStringLiteral("Campfire")), wanted) << name;
    }
}

TEST_F(LookCommandsTest, withoutMetadataAPictureTellsNothing)
{
    WritePhoto("photo.png");
    ASSERT_EQ(Run(Words("apply photo.png -p test.grey --metadata none -o out.jpg")).code, 0);
    EXPECT_FALSE(ReadFile("out.jpg").contains("saturation"));
    const CliResult result = Theirs(QStringLiteral("import out.jpg"));
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.messages,
              "out.jpg: expected a picture that tells of its look, as this program exports them, "
              "found nothing of it in its metadata\n");
    EXPECT_FALSE(Exists("theirs.json"));
}

TEST_F(LookCommandsTest, oneLookTwiceIsOnePresetAndOneNameTwiceIsNumbered)
{
    ASSERT_EQ(Run(Words("export test.bright -o bright.lumetra")).code, 0);
    ASSERT_EQ(Run(Words("export test.twin-1 -o one.lumetra")).code, 0);
    ASSERT_EQ(Run(Words("export test.twin-2 -o two.lumetra")).code, 0);
    const CliResult result =
        Theirs(QStringLiteral("import bright.lumetra bright.lumetra one.lumetra two.lumetra"));
    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.output,
              "imported \"Test Bright 2\" from \"bright.lumetra\"\n"
              "imported \"Test Twin 2\" from \"one.lumetra\"\n"
              "imported \"Test Twin 3\" from \"two.lumetra\"\n"
              "\"Test Bright\" from \"bright.lumetra\" is here already, as \"Test Bright 2\"\n");
}

TEST_F(LookCommandsTest, exportWritesCreditsNamesAndAPreview)
{
    WritePhoto("photo.png");
    const CliResult result =
        Run(Words("export test.bright -o bright.lumetra --author Ada --licence CC-BY-4.0 --preview "
                  "photo.png --name-in de=Hell --name-in pt-BR=Claro"));
    EXPECT_EQ(result.code, 0) << result.messages;
    const std::string text = ReadFile("bright.lumetra").toStdString();
    EXPECT_THAT(text, StartsWith("{\n  \"format\": \"lumetra-look\",\n  \"version\": 1,\n"));
    EXPECT_THAT(text, HasSubstr("\"name\": \"Test Bright\""));
    EXPECT_THAT(text, HasSubstr("\"de\": \"Hell\""));
    EXPECT_THAT(text, HasSubstr("\"pt-BR\": \"Claro\""));
    EXPECT_THAT(text, HasSubstr("\"author\": \"Ada\""));
    EXPECT_THAT(text, HasSubstr("\"licence\": \"CC-BY-4.0\""));
    EXPECT_THAT(text, HasSubstr("\"mediaType\": \"image/jpeg\""));
    ASSERT_EQ(Run(Words("export test.bright -o bare.lumetra --no-preview")).code, 0);
    EXPECT_THAT(ReadFile("bare.lumetra").toStdString(), Not(HasSubstr("mediaType")));
}

TEST_F(LookCommandsTest, refusesAnExportThatCannotBe)
{
    WriteFile("there.lumetra", "precious");
    ASSERT_TRUE(QDir().mkdir(Path("folder.lumetra")));
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"export -o a.lumetra", "expected at least one preset"},
        {"export test.gray -o a.lumetra", "PRESET: expected the name or id of a preset"},
        {"export test.grey -o a.json", "expected the name of a .lumetra file, found \"a.json\""},
        {"export test.grey", "expected the name of a .lumetra file, found \"\""},
        {"export test.grey -o there.lumetra", "\"there.lumetra\" exists; --overwrite replaces it"},
        {"export test.grey -o folder.lumetra --overwrite", "found the folder"},
        {"export test.grey -o a.lumetra --name-in german=Grau",
         "--name-in: expected language=name"},
        {"export test.grey -o a.lumetra --name-in de", "--name-in: expected language=name"},
        {"export test.grey test.bright -o a.lumetra --name-in de=Grau",
         "--name-in: expected one preset, found 2"},
        {"export test.grey -o a.lumetra --preview x.jpg --no-preview", "found both"},
    };
    for (const auto& [line, message] : cases) {
        const CliResult result = Run(Words(line));
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.messages, HasSubstr(message)) << line;
    }
    const CliResult missing = Run(Words("export test.grey -o a.lumetra --preview none.jpg"));
    EXPECT_EQ(missing.code, 1);
    EXPECT_THAT(missing.messages, HasSubstr("none.jpg"));
    EXPECT_EQ(ReadFile("there.lumetra"), "precious");
    EXPECT_FALSE(Exists("a.lumetra"));
}

TEST_F(LookCommandsTest, aBadFileChangesNothingAndKeepsNoOtherOut)
{
    ASSERT_EQ(Run(Words("export test.grey -o grey.lumetra")).code, 0);
    WriteFile("bad.lumetra", "{ \"format\": \"lumetra-look\", \"version\": 2 }");
    const CliResult alone = Theirs(QStringLiteral("import bad.lumetra"));
    EXPECT_EQ(alone.code, 1);
    EXPECT_EQ(alone.messages, "bad.lumetra:1:40: error: version: expected version 1, found 2: made "
                              "by a newer program\n");
    EXPECT_FALSE(Exists("theirs.json"));
    const CliResult both = Theirs(QStringLiteral("import bad.lumetra grey.lumetra"));
    EXPECT_EQ(both.code, 1);
    EXPECT_EQ(both.output, "imported \"Test Grey 2\" from \"grey.lumetra\"\n");
}

TEST_F(LookCommandsTest, checkTellsWhatIsWrongInAFileWithLooks)
{
    ASSERT_EQ(Run(Words("export test.grey -o grey.lumetra")).code, 0);
    WriteFile("bad.lumetra", "{ \"format\": \"lumetra-look\", \"version\": 1,\n\"looks\": [ 1 ] }");
    const CliResult good = RunPlain(Words("check grey.lumetra"));
    EXPECT_EQ(good.code, 0);
    EXPECT_EQ(good.output, "");
    const CliResult bad = RunPlain(Words("check grey.lumetra bad.lumetra none.lumetra"));
    EXPECT_EQ(bad.code, 1);
    EXPECT_THAT(bad.output, StartsWith("bad.lumetra:2:12: error: looks[0]: expected node"));
    EXPECT_THAT(bad.output, HasSubstr("none.lumetra: error: cannot be read: "));
}

TEST_F(LookCommandsTest, checkTellsNamesThatAreTooLong)
{
    ASSERT_EQ(Run(Words("export test.grey -o grey.lumetra --plain")).code, 0);
    QByteArray text = ReadFile("grey.lumetra");
    WriteFile("long.lumetra", text.replace("\"Test Grey\"", '"' + QByteArray(60, 'x') + '"'));
    const CliResult result = RunPlain(Words("check long.lumetra"));
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.output, HasSubstr("long.lumetra:"));
    EXPECT_THAT(result.output,
                HasSubstr("error: looks[0]/name: expected 1 to 50 characters, found 60"));
}
