// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include <QDir>
#include <QFile>

using testing::HasSubstr;
using testing::Not;

namespace {

/// A packet with these attributes.
QByteArray MakeLook(const char* attributes)
{
    return QByteArray("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
                      "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
                      "xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\" ") +
           attributes + "/></rdf:RDF></x:xmpmeta>";
}

constexpr char Warm[] = "crs:Exposure2012=\"+0.50\" crs:Contrast2012=\"12\" crs:Vibrance=\"20\" "
                        "crs:LuminanceSmoothing=\"25\" crs:CameraProfile=\"Camera Flat\"";

class ImportTest : public CliTest
{
protected:
    CliResult Import(const char* line)
    {
        QStringList arguments = Words(line);
        arguments += {QStringLiteral("--store"), QStringLiteral("presets.json")};
        arguments.prepend(QStringLiteral("import"));
        return Run(arguments);
    }
    void MakeFolder(const char* name) { EXPECT_TRUE(QDir().mkpath(Path(name))); }
};

} // namespace

TEST_F(ImportTest, saysOfEachLookWhatIsApproximatedAndWhatIsLeftOut)
{
    WriteFile("Warm.xmp", MakeLook(Warm));
    const CliResult result = Import("Warm.xmp");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, "imported \"Warm\" from \"Warm.xmp\"\n"
                             "  approximated: Contrast2012 12, Vibrance 20\n"
                             "  left out: CameraProfile Camera Flat, LuminanceSmoothing 25\n");
    EXPECT_EQ(result.messages, "");
}

TEST_F(ImportTest, anImportedLookIsAppliedLikeAnyOther)
{
    WritePhoto("photo.png");
    WriteFile("Warm.xmp", MakeLook("crs:Exposure2012=\"-1\""));
    ASSERT_EQ(Import("Warm.xmp").code, 0);
    EXPECT_EQ(Run(Words("apply photo.png -p Warm -o out.png --store presets.json")).code, 0);
    EXPECT_LT(ReadPhoto("out.png").Row(5)[4 * 20], ReadPhoto("photo.png").Row(5)[4 * 20]);
    EXPECT_EQ(Run(Words("apply photo.png -p Warm -i 1 -o least.png --store presets.json")).code, 0);
    EXPECT_EQ(ReadPhoto("least.png").Row(5)[4 * 20], ReadPhoto("photo.png").Row(5)[4 * 20]);
}

TEST_F(ImportTest, takesAFolderAndListsTheOthersAtItsEnd)
{
    MakeFolder("looks/more");
    WriteFile("looks/a.xmp", MakeLook("crs:Exposure2012=\"1\""));
    WriteFile("looks/b.xmp", "<x");
    WriteFile("looks/c.lrtemplate", "s = { type = \"Export\", value = { } }");
    WriteFile("looks/more/d.pp3", "[Exposure]\nCompensation=-0.5\n");
    WriteFile("looks/readme.txt", "hello");
    const CliResult result = Import("looks");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "imported \"a\" from \"looks/a.xmp\"\n"
                             "imported \"d\" from \"looks/more/d.pp3\"\n");
    EXPECT_THAT(result.messages, HasSubstr("looks/b.xmp:1: expected well-formed XML"));
    EXPECT_THAT(result.messages,
                HasSubstr("looks/c.lrtemplate: expected a template of type \"Develop\", found type "
                          "\"Export\", which is no look\n"));
    EXPECT_THAT(result.messages, Not(HasSubstr("readme")));
}

TEST_F(ImportTest, changesNothingWhereNothingIsImported)
{
    WriteFile("bad.xmp", MakeLook("crs:LensProfileEnable=\"1\""));
    const CliResult result = Import("bad.xmp none.xmp");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.messages,
                HasSubstr("bad.xmp: expected a setting that this program can carry "
                          "over, found only LensProfileEnable 1\n"));
    EXPECT_THAT(result.messages, HasSubstr("none.xmp: cannot be read: "));
    EXPECT_FALSE(Exists("presets.json"));
}

TEST_F(ImportTest, looksForTablesInNamedFolders)
{
    WriteFile("film.pp3", "[Exposure]\nCompensation=1\n[Film Simulation]\nEnabled=true\n"
                          "ClutFilename=film.png\n");
    EXPECT_THAT(Import("film.pp3").output, HasSubstr("left out: Film Simulation/ClutFilename"));
    MakeFolder("tables");
    WritePhoto("tables/film.png", 8, 8);
    const CliResult found = Import("film.pp3 --luts tables");
    EXPECT_EQ(found.code, 0);
    EXPECT_THAT(found.output, Not(HasSubstr("left out")));
    EXPECT_EQ(Import("film.pp3 --luts nowhere").code, 2);
}

TEST_F(ImportTest, aNameIsForOneFileAlone)
{
    MakeFolder("looks");
    WriteFile("looks/a.xmp", MakeLook("crs:Exposure2012=\"1\""));
    EXPECT_THAT(Import("looks --name New").messages,
                HasSubstr("--name: expected one file, found a folder"));
    EXPECT_EQ(Import("looks/a.xmp --name New").output, "imported \"New\" from \"looks/a.xmp\"\n");
}

TEST_F(ImportTest, takesFilesWithUnusualNames)
{
    WriteFile("a\nb.xmp", MakeLook("crs:Exposure2012=\"1\""));
    EXPECT_EQ(Run({QStringLiteral("import"), QStringLiteral("a\nb.xmp"), QStringLiteral("--store"),
                   QStringLiteral("presets.json")})
                  .output,
              "imported \"a b\" from \"a\\nb.xmp\"\n");
}

TEST_F(ImportTest, refusesALongNameWithFileAndLimitAndTakesTheOthers)
{
    const std::string name(63, 'x');
    WriteFile("long.cube",
              "TITLE \"" + QByteArray::fromStdString(name) + "\"\nLUT_1D_SIZE 2\n1 1 1\n0 0 0\n");
    WriteFile("a.xmp", MakeLook("crs:Exposure2012=\"1\""));
    const CliResult refused = Import("long.cube a.xmp");
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.output, "imported \"a\" from \"a.xmp\"\n");
    EXPECT_THAT(refused.messages, HasSubstr("long.cube: a look cannot be called \"" + name +
                                            "\": expected 1 to 50 characters, found 63\n"));
    EXPECT_THAT(refused.messages, HasSubstr("--shorten-names"));

    const CliResult shortened = Import("long.cube --shorten-names");
    EXPECT_EQ(shortened.code, 0) << shortened.messages;
    EXPECT_EQ(shortened.output, "imported \"" + name.substr(0, 50) +
                                    "\" from \"long.cube\"\n  shortened from \"" + name + "\"\n");
}

TEST_F(ImportTest, namesALookThatHasALongName)
{
    WriteFile("long.cube", "TITLE \"" + QByteArray(63, 'x') + "\"\nLUT_1D_SIZE 2\n1 1 1\n0 0 0\n");
    const CliResult named = Import("long.cube --name Short");
    EXPECT_EQ(named.code, 0) << named.messages;
    EXPECT_EQ(named.output, "imported \"Short\" from \"long.cube\"\n");
}

TEST_F(ImportTest, aNameForAFileOfSeveralLooksImportsNone)
{
    ASSERT_EQ(Run(Words("export test.grey test.bright -o two.lumetra")).code, 0);
    const CliResult result = Import("two.lumetra --name Mine");
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages,
                HasSubstr("two.lumetra: expected one look for the name \"Mine\", found 2"));
    EXPECT_FALSE(Exists("presets.json"));
}

TEST_F(ImportTest, aNameOfTheCatalogueIsNumberedOrKeptWhenToldTo)
{
    WriteFile("a.cube", "TITLE \"Test Bright\"\nLUT_1D_SIZE 2\n1 1 1\n0 0 0\n");
    WriteFile("b.cube", "TITLE \"Test Bright\"\nLUT_1D_SIZE 2\n1 0 1\n0 0 0\n");
    EXPECT_EQ(Import("a.cube").output, "imported \"Test Bright (a)\" from \"a.cube\"\n");
    EXPECT_EQ(Import("b.cube --name").code, 2);
    EXPECT_EQ(Run({QStringLiteral("import"), QStringLiteral("b.cube"), QStringLiteral("--name"),
                   QStringLiteral("Test Bright"), QStringLiteral("--store"),
                   QStringLiteral("presets.json")})
                  .code,
              2);
    EXPECT_EQ(Import("b.cube --keep-both").output, "imported \"Test Bright\" from \"b.cube\"\n");
}

TEST_F(ImportTest, aTableIsAppliedUnderTheNameOfItsFile)
{
    WritePhoto("photo.png");
    WriteFile("warm.cube", "TITLE \"Golden Hour\"\nLUT_1D_SIZE 2\n1 1 1\n0 0 0\n");
    const CliResult result = Run(Words("apply photo.png -p warm.cube -o {name}-{preset}.png"));
    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_TRUE(Exists("photo-warm.png")) << result.output;
}
