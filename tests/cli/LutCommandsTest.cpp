// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>

using LumetraHost::Image;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

namespace {

QStringList WithStore(QStringList arguments)
{
    return arguments << QStringLiteral("--store") << QStringLiteral("presets.json");
}

QString Text(const char* text)
{
    return QString::fromLatin1(text);
}

/// A cube of two points that swaps red and blue.
QByteArray SwappingCube()
{
    QByteArray text = "TITLE \"swap\"\nLUT_3D_SIZE 2\n";
    for (int b = 0; b < 2; ++b)
        for (int g = 0; g < 2; ++g)
            for (int r = 0; r < 2; ++r)
                text += QByteArray::number(b) + ' ' + QByteArray::number(g) + ' ' +
                        QByteArray::number(r) + '\n';
    return text;
}

const QByteArray InvertingCurve = "LUT_1D_SIZE 2\n1 1 1\n0 0 0\n";

const QByteArray Corrections =
    "<ColorCorrectionCollection xmlns=\"urn:ASC:CDL:v1.2\">"
    "<ColorCorrection id=\"dawn\"><SOPNode><Slope>1.2 1 1</Slope><Offset>0 0 0</Offset>"
    "<Power>1 1 1</Power></SOPNode></ColorCorrection>"
    "<ColorCorrection id=\"dusk\"><SOPNode><Slope>1 1 1.2</Slope><Offset>0 0 0</Offset>"
    "<Power>1 1 1</Power></SOPNode></ColorCorrection></ColorCorrectionCollection>";

int GetLargestDifference(const Image& first, const Image& second)
{
    int largest = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int i = 0; i < 4 * first.GetWidth(); ++i)
            largest = std::max(largest, std::abs(first.Row(y)[i] - second.Row(y)[i]));
    return largest;
}

} // namespace

TEST_F(CliTest, appliesALutFile)
{
    const Image photo = WritePhoto("photo.png");
    WriteFile("swap.cube", SwappingCube());

    const CliResult result = Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"),
                                            Text("swap.cube"), Text("-o"), Text("out.png")}));

    EXPECT_EQ(result.code, 0) << result.messages;
    const Image out = ReadPhoto("out.png");
    for (int x = 0; x < out.GetWidth(); ++x) {
        EXPECT_NEAR(out.Row(5)[4 * x], photo.Row(5)[4 * x + 2], 1);
        EXPECT_NEAR(out.Row(5)[4 * x + 1], photo.Row(5)[4 * x + 1], 1);
        EXPECT_NEAR(out.Row(5)[4 * x + 2], photo.Row(5)[4 * x], 1);
    }
    EXPECT_FALSE(Exists("presets.json"));
}

TEST_F(CliTest, reportsTheLineOfABadLutFile)
{
    WritePhoto("photo.png");
    WriteFile("cut.cube", "LUT_3D_SIZE 2\n0 0 0\n");
    const CliResult result = Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"),
                                            Text("cut.cube"), Text("-o"), Text("out.png")}));
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.messages,
              "cut.cube:2: expected 8 rows of numbers, found 1: the file is cut off\n");
    EXPECT_FALSE(Exists("out.png"));
}

TEST_F(CliTest, refusesToApplySeveralLooksAtOnce)
{
    WritePhoto("photo.png");
    WriteFile("shots.ccc", Corrections);
    const CliResult result = Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"),
                                            Text("shots.ccc"), Text("-o"), Text("out.png")}));
    EXPECT_EQ(result.code, 2);
    EXPECT_THAT(result.messages, HasSubstr("expected a file with one look, found 2"));
}

TEST_F(CliTest, refusesToExportATableThatCannotBe)
{
    ASSERT_TRUE(QDir().mkdir(Path("folder.cube")));
    WriteFile("there.cube", "precious");
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"export-lut -o a.cube", "expected one --preset, found 0"},
        {"export-lut -p test.grey -p test.bright -o a.cube", "expected one --preset, found 2"},
        {"export-lut -p test.grey -o a.txt",
         "--output: expected a name that ends in .cube, .clf, .png, .tif or .tiff, or --format, "
         "found \"a.txt\""},
        {"export-lut -p test.grey -o a.3dl", "--output: expected a name that ends in .cube, .clf"},
        {"export-lut -p test.grey -o a", "--output: expected a name that ends in .cube, .clf"},
        {"export-lut -p test.grey", "--output: expected a name that ends in .cube, .clf"},
        {"export-lut -p test.grey -o a.cube --format clf",
         "--format: \"clf\" does not fit the file name \"a.cube\""},
        {"export-lut -p test.grey -o a.cdl --format clf",
         "--format: \"clf\" does not fit the file name \"a.cdl\""},
        {"export-lut -p test.grey -o a.png --format 3dl",
         "--format: expected cube, clf or hald, found \"3dl\""},
        {"export-lut -p test.grey -o a.png --size 33",
         "--size: expected a square for a HaldCLUT, 4, 9, 16, 25, 36, 49, 64, 81, 100 or 121, "
         "found 33"},
        {"export-lut -p test.grey -o folder.cube --overwrite",
         "--output: expected a file to write, found the folder \"folder.cube\""},
        {"export-lut -p test.grey -o there.cube", "\"there.cube\" exists; --overwrite replaces it"},
        {"export-lut x -p test.grey -o a.cube", "unexpected argument \"x\""},
    };
    for (const auto& [line, message] : cases) {
        const CliResult result = Run(Words(line));
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.messages, HasSubstr(message)) << line;
    }
    EXPECT_EQ(ReadFile("there.cube"), "precious");
}

TEST_F(CliTest, importsLutFilesAsPresetsOfTheUser)
{
    WritePhoto("photo.png");
    WriteFile("swap.cube", SwappingCube());
    WriteFile("shots.ccc", Corrections);
    WriteFile("cut.cube", "LUT_3D_SIZE 2\n0 0 0\n");
    ASSERT_TRUE(QDir().mkpath(Path("other")));
    WriteFile("other/swap.cube", InvertingCurve);

    const CliResult result =
        Run(WithStore({Text("import"), Text("swap.cube"), Text("cut.cube"), Text("shots.ccc"),
                       Text("other/swap.cube"), Text("swap.cube")}));

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "imported \"swap\" from \"swap.cube\"\n"
                             "imported \"dawn\" from \"shots.ccc\"\n"
                             "imported \"dusk\" from \"shots.ccc\"\n"
                             "imported \"swap 2\" from \"other/swap.cube\"\n"
                             "\"swap\" from \"swap.cube\" is here already, as \"swap\"\n");
    EXPECT_EQ(result.messages,
              "cut.cube:2: expected 8 rows of numbers, found 1: the file is cut off\n");
    EXPECT_THAT(Run(WithStore({Text("list"), Text("--user")})).output,
                HasSubstr("intensity 100 (1 to 100), blending"));
    const auto apply = [this](const char* preset, const char* output) {
        EXPECT_EQ(Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"), Text(preset),
                                 Text("-o"), Text(output)}))
                      .code,
                  0);
        return ReadFile(output);
    };
    EXPECT_EQ(apply("swap", "stored.png"), apply("swap.cube", "direct.png"));
    apply("swap.cube", "{name}-{preset}.png");
    EXPECT_TRUE(Exists("photo-swap.png")) << "named after the file, whatever was imported before";
}

TEST_F(CliTest, aNameForALookThatIsHereUnderAnotherOneIsNotGiven)
{
    WriteFile("swap.cube", SwappingCube());
    ASSERT_EQ(Run(WithStore({Text("import"), Text("swap.cube")})).code, 0);
    const CliResult result =
        Run(WithStore({Text("import"), Text("swap.cube"), Text("--name"), Text("Blue Moon")}));
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "\"swap\" from \"swap.cube\" is here already, as \"swap\"\n");
}

TEST_F(CliTest, importsUnderAGivenName)
{
    WriteFile("swap.cube", SwappingCube());
    EXPECT_EQ(Run(WithStore({Text("import"), Text("swap.cube"), Text("--name"), Text("Blue Moon")}))
                  .output,
              "imported \"Blue Moon\" from \"swap.cube\"\n");
    const CliResult taken =
        Run(WithStore({Text("import"), Text("swap.cube"), Text("--name"), Text("Blue Moon")}));
    EXPECT_EQ(taken.code, 2);
    const CliResult two = Run(WithStore(
        {Text("import"), Text("swap.cube"), Text("swap.cube"), Text("--name"), Text("Both")}));
    EXPECT_EQ(two.code, 2);
    EXPECT_EQ(Run(WithStore({Text("import")})).code, 2);
}

TEST_F(CliTest, exportsAPresetAsALutFile)
{
    WritePhoto("photo.png");
    const CliResult result =
        Run(WithStore({Text("export-lut"), Text("--preset"), Text("test.bright"), Text("-i"),
                       Text("60"), Text("--set"), Text("exposure=-40"), Text("--size"), Text("65"),
                       Text("-o"), Text("look.cube")}));
    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.output, "look.cube\n");
    EXPECT_TRUE(ReadFile("look.cube").startsWith("TITLE \"Test Bright\"\nLUT_3D_SIZE 65\n"));

    EXPECT_EQ(Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"),
                             Text("test.bright"), Text("-i"), Text("60"), Text("--set"),
                             Text("exposure=-40"), Text("-o"), Text("preset.png")}))
                  .code,
              0);
    EXPECT_EQ(Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"), Text("look.cube"),
                             Text("-o"), Text("table.png")}))
                  .code,
              0);
    EXPECT_LE(GetLargestDifference(ReadPhoto("preset.png"), ReadPhoto("table.png")), 1);
    EXPECT_GT(GetLargestDifference(ReadPhoto("preset.png"), ReadPhoto("photo.png")), 5);
}

TEST_F(CliTest, refusesToExportWhatDoesNotFitIntoALut)
{
    WriteFile("place.json",
              R"({"format": "lumetra-catalogue", "version": 1, "groups": [{"name": "G", "items": [
        {"name": "Framed", "id": "framed", "settings": {"effects": [
            {"effect": {"id": "exposure", "stops": 1}}, {"effect": {"id": "vignette", "amount": -1}},
            {"effect": {"id": "grain", "amount": 5}}]}}]}]})");
    const CliResult result =
        Run(WithStore({Text("export-lut"), Text("--catalogue"), Text("place.json"),
                       Text("--preset"), Text("framed"), Text("-o"), Text("look.cube")}));
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.messages,
              "lumetra-presets: \"Framed\": expected effects of colour alone, which "
              "fit into a table, found \"vignette\", \"grain\"; --colours-only leaves "
              "them out\n");
    EXPECT_FALSE(Exists("look.cube"));
}

TEST_F(CliTest, exportsAPresetInEveryFormat)
{
    WritePhoto("photo.png");
    const auto apply = [this](const char* preset) {
        EXPECT_EQ(Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"), Text(preset),
                                 Text("-o"), Text("out.png"), Text("--overwrite")}))
                      .code,
                  0)
            << preset;
        return ReadPhoto("out.png");
    };
    const auto expected = apply("test.bright");
    for (const char* name : {"look.cube", "look.CLF", "look.png", "look.tif", "look.tiff"}) {
        const CliResult result = Run(WithStore(
            {Text("export-lut"), Text("-p"), Text("test.bright"), Text("-o"), Text(name)}));
        EXPECT_EQ(result.code, 0) << result.messages;
        EXPECT_EQ(result.output, std::string(name) + "\n");
        EXPECT_EQ(result.messages, "");
        EXPECT_LE(GetLargestDifference(expected, apply(name)), 2) << name;
    }
    EXPECT_EQ(Run(Words("export-lut -p test.bright -o look.lut --format clf")).code, 0);
    EXPECT_EQ(ReadFile("look.lut"), ReadFile("look.CLF"));
    EXPECT_EQ(Run(Words("export-lut -p test.bright -o small.png --format hald --size 16")).code, 0);
    EXPECT_EQ(ReadPhoto("small.png").GetWidth(), 64);
}

TEST_F(CliTest, leavesOutWhatFitsIntoNoLutAndNamesIt)
{
    const auto writeLook = [this](const char* effects) {
        WriteFile("place.json",
                  QByteArray(R"({"format": "lumetra-catalogue", "version": 1, "groups": [
        {"name": "G", "items": [{"name": "Framed", "id": "framed", "settings": {"effects": [)") +
                      effects + "]}}]}]}");
    };
    const QStringList line =
        QStringList(Words("export-lut --catalogue place.json -p framed --colours-only -o"));
    const QByteArray exposure = R"({"effect": {"id": "exposure", "stops": 1}})";
    const QByteArray vignette = R"({"effect": {"id": "vignette", "amount": -1}})";
    const QByteArray dehaze = R"({"effect": {"id": "dehaze", "amount": 30}})";
    writeLook(vignette + "," + exposure + "," + dehaze);

    const CliResult result = Run(line + QStringList(Text("look.cube")));

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, "look.cube\n");
    EXPECT_EQ(
        result.messages,
        "lumetra-presets: \"Framed\": left out \"vignette\", which does not fit into a table\n"
        "lumetra-presets: \"Framed\": left out \"dehaze\", which does not fit into a table\n");
    writeLook(exposure);
    const CliResult plain = Run(line + QStringList(Text("plain.cube")));
    EXPECT_EQ(plain.messages, "");
    EXPECT_EQ(ReadFile("plain.cube"), ReadFile("look.cube"));

    writeLook(vignette);
    const CliResult nothing = Run(line + QStringList(Text("nothing.cube")));
    EXPECT_EQ(nothing.code, 1);
    EXPECT_THAT(
        nothing.messages,
        HasSubstr("\"Framed\": expected effects of colour, which fit into a table, found none"));
    EXPECT_FALSE(Exists("nothing.cube"));
}

TEST_F(CliTest, exportNeedsAPresetASizeAndANewCubeFile)
{
    WriteFile("there.cube", "x");
    const auto run = [this](QStringList arguments) {
        return Run(WithStore(QStringList(Text("export-lut")) + arguments));
    };
    EXPECT_EQ(run({Text("-o"), Text("a.cube")}).code, 2);
    EXPECT_EQ(run({Text("-p"), Text("test.grey"), Text("-o"), Text("a.txt")}).code, 2);
    EXPECT_EQ(run({Text("-p"), Text("test.grey"), Text("-o"), Text("there.cube")}).code, 2);
    EXPECT_EQ(run({Text("-p"), Text("test.grey"), Text("--size"), Text("500"), Text("-o"),
                   Text("a.cube")})
                  .code,
              2);
    EXPECT_EQ(ReadFile("there.cube"), "x");
    EXPECT_EQ(
        run({Text("-p"), Text("test.grey"), Text("-o"), Text("there.cube"), Text("--overwrite")})
            .code,
        0);
}

TEST_F(CliTest, checksLutFilesBesideCatalogues)
{
    WriteFile("swap.cube", SwappingCube());
    WriteFile("bad (1).cube", "LUT_3D_SIZE 2\n0 0 0\n0 x 0\n");
    WritePhoto("photo.png");

    const CliResult result = RunPlain({Text("check"), Text("swap.cube"), Text("looks.json"),
                                       Text("bad (1).cube"), Text("none.cube"), Text("photo.png")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output,
              "bad (1).cube:3: error: expected a number, found \"x\"\n"
              "none.cube: error: cannot be read: No such file or directory\n"
              "photo.png: error: expected a HaldCLUT, a square picture of 8, 27, 64, 125 and so on "
              "to 1728 pixels, found 48 x 32\n");
    EXPECT_EQ(RunPlain({Text("check"), Text("swap.cube")}).code, 0);
}

TEST_F(CliTest, checksTheTablesThatPresetsBringAlong)
{
    WriteFile("tables.json",
              R"({"format": "lumetra-catalogue", "version": 1, "groups": [{"name": "G", "items": [
        {"name": "Cut", "id": "cut", "settings": {"effects": [
            {"effect": {"id": "lut3d", "strength": 50, "cube": {"size": 2, "data": "AAAA"}}}]}}]}]})");

    const CliResult result = RunPlain({Text("check"), Text("tables.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output,
              "tables.json:3:24: error: groups[0]/items[0]/settings/effects[0]/effect/cube/data: "
              "expected 64 characters of base64, found 4\n");
}

TEST_F(CliTest, checksTheTablesBesideAStore)
{
    WriteFile("swap.cube", SwappingCube());
    ASSERT_EQ(Run(WithStore({Text("import"), Text("swap.cube")})).code, 0);
    const CliResult good = RunPlain({Text("check"), Text("presets.json")});
    EXPECT_EQ(good.code, 0) << good.output;
    EXPECT_THAT(good.output,
                MatchesRegex("presets.json:[0-9]+:[0-9]+: note: the table moves colours "
                             "outside its domain to its border: .*\n"));

    const QDir tables(Path("presets.json.tables"));
    ASSERT_EQ(tables.entryList(QDir::Files).size(), 1);
    const QString table = tables.filePath(tables.entryList(QDir::Files).front());
    QFile file(table);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(48, 'x'));
    file.close();
    const CliResult damaged = RunPlain({Text("check"), Text("presets.json")});
    EXPECT_EQ(damaged.code, 1);
    EXPECT_THAT(damaged.output, HasSubstr("error: UserPresets/items[0]/effects[0]/effect/cube"));
    EXPECT_THAT(damaged.output, HasSubstr("found a damaged one"));

    ASSERT_TRUE(QFile::remove(table));
    const CliResult missing = RunPlain({Text("check"), Text("presets.json")});
    EXPECT_EQ(missing.code, 1);
    EXPECT_THAT(missing.output, HasSubstr("expected a file of 48 bytes, found none"));
    EXPECT_THAT(Run(WithStore({Text("list"), Text("--user")})).output, HasSubstr("swap"));
}

TEST_F(CliTest, appliesATableFromBesideAStore)
{
    WritePhoto("photo.png");
    WriteFile("swap.cube", SwappingCube());
    ASSERT_EQ(Run(WithStore({Text("import"), Text("swap.cube")})).code, 0);
    const auto apply = [this](const char* preset, const char* output) {
        return Run(WithStore({Text("apply"), Text("photo.png"), Text("--preset"), Text(preset),
                              Text("-o"), Text(output)}))
            .code;
    };
    EXPECT_EQ(apply("swap", "stored.png"), 0);
    EXPECT_EQ(apply("swap.cube", "file.png"), 0);
    EXPECT_EQ(ReadFile("stored.png"), ReadFile("file.png"));
}

TEST_F(CliTest, saysWhichTableOfAnOwnPresetIsMissingOrDamaged)
{
    WritePhoto("photo.png");
    WriteFile("swap.cube", SwappingCube());
    ASSERT_EQ(Run(WithStore({Text("import"), Text("swap.cube")})).code, 0);
    const QDir tables(Path("presets.json.tables"));
    const QString table = tables.filePath(tables.entryList(QDir::Files).value(0));
    const QByteArray before = ReadFile("presets.json");
    const auto expectRefusals = [&](const std::string& message) {
        for (const char* line : {"apply photo.png -p swap -o out.png", "save swap Mine",
                                 "export-lut -p swap -o out.cube"}) {
            const CliResult result = Run(WithStore(Words(line)));
            EXPECT_EQ(result.code, 1) << line;
            EXPECT_THAT(result.messages, HasSubstr("lumetra-presets: \"swap\": ")) << line;
            EXPECT_THAT(result.messages, HasSubstr(message)) << line;
        }
        const CliResult sheet = Run(WithStore(Words("sheet photo.png -o sheet.png --overwrite")));
        EXPECT_EQ(sheet.code, 1);
        EXPECT_THAT(sheet.messages, HasSubstr("lumetra-presets: \"swap\": "));
        EXPECT_FALSE(Exists("out.png") || Exists("out.cube"));
        EXPECT_EQ(ReadFile("presets.json"), before);
    };

    QFile file(table);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(48, 'x'));
    file.close();
    expectRefusals("damaged");

    ASSERT_TRUE(file.remove());
    expectRefusals("found none");
    EXPECT_THAT(Run(WithStore(Words("list --user"))).output, HasSubstr("  not usable: "));
    EXPECT_EQ(Run(WithStore(Words("favourite swap"))).code, 0);
    EXPECT_EQ(Run(WithStore(Words("rename swap Swapped"))).code, 0);
    EXPECT_EQ(Run(WithStore(Words("remove Swapped"))).code, 0);
}
