// SPDX-License-Identifier: GPL-2.0-or-later
// How looks of other programs are spelled.
#include "core/foreign/ForeignImport.h"
#include "core/foreign/files/ForeignFile.h"
#include "core/foreign/files/LuaTable.h"
#include "image/Image.h"
#include "photo/PhotoWriter.h"
#include "plugin/core/foreign/ForeignFixture.h"

#include <QDir>

using LumetraHost::Image;
using LumetraPlugin::ForeignImport;
using LumetraPlugin::ImportedLook;
using LumetraPlugin::ImportRemark;
using LumetraPlugin::LuaTable;
using LumetraTest::ForeignFixture;
using LumetraTest::Settings;
using testing::HasSubstr;

namespace {

class LookReadersTest : public ForeignFixture
{
protected:
    const Settings brighter = {{"Exposure2012", "+0.50"}};
    static constexpr char Brighter[] = "exposure stops=0.5\n";
};

/// A HaldCLUT of level 2 that inverts.
void WriteTable(const QString& path)
{
    Image picture = Image::Allocate(8, 8, Image::Depth::Bits8);
    for (int i = 0; i < 64; ++i) {
        std::uint8_t* const pixel = picture.Row(i / 8) + 4 * (i % 8);
        pixel[0] = static_cast<std::uint8_t>(255 - 85 * (i % 4));
        pixel[1] = static_cast<std::uint8_t>(255 - 85 * (i / 4 % 4));
        pixel[2] = static_cast<std::uint8_t>(255 - 85 * (i / 16));
        pixel[3] = 255;
    }
    LumetraHost::Photo photo;
    photo.image = picture;
    LumetraHost::PhotoWriter::Write(path, photo);
}

} // namespace

TEST_F(LookReadersTest, takesPacketsWithWrapperMarkAndForeignLineEnds)
{
    const QByteArray plain = MakeXmp(brighter);
    const QByteArray wrapped =
        "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n" + plain +
        "<?xpacket end=\"w\"?>";
    QByteArray lines = plain;
    lines.replace("\n", "\r\n");
    for (const QByteArray& content : {plain, wrapped, "\xEF\xBB\xBF" + plain, lines})
        EXPECT_EQ(Describe(ImportFile("look.xmp", content)), Brighter);
}

TEST_F(LookReadersTest, knowsTheNamespaceNotThePrefix)
{
    QByteArray other = MakeXmp(brighter);
    other.replace("crs:", "zz:").replace("xmlns:crs", "xmlns:zz");
    EXPECT_EQ(Describe(ImportFile("look.xmp", other)), Brighter);
    QByteArray impostor = MakeXmp(brighter);
    impostor.replace("camera-raw-settings", "some-other-settings");
    EXPECT_THAT(FindError("look.xmp", impostor),
                HasSubstr("look.xmp:5: expected the prefix \"crs\" for camera-raw settings"));
    impostor.replace("crs:", "zz:").replace("xmlns:crs", "xmlns:zz");
    EXPECT_THAT(FindError("look.xmp", impostor),
                HasSubstr("expected camera-raw settings in the XMP packet, found none"));
}

TEST_F(LookReadersTest, namesLooksByTheFileOrByThemselves)
{
    EXPECT_EQ(ImportFile("Harbour.xmp", MakeXmp(brighter)).name.toStdString(), "Harbour");
    EXPECT_EQ(ImportFile("a.xmp", MakeXmp(brighter, "Abend &amp; Öl")).name.toStdString(),
              "Abend & Öl");
    EXPECT_EQ(ImportFile("a.lrtemplate", MakeTemplate(brighter)).name.toStdString(), "Old Paper");
    EXPECT_EQ(
        ImportFile("Film 3.pp3", MakeProfile({{"Exposure/Compensation", "1"}})).name.toStdString(),
        "Film 3");
}

TEST_F(LookReadersTest, keepsTheGroupOfALook)
{
    QByteArray content = MakeXmp(brighter);
    content.replace("  </rdf:Description>",
                    "<crs:Group><rdf:Alt><rdf:li xml:lang=\"x-default\">"
                    "Travel</rdf:li></rdf:Alt></crs:Group></rdf:Description>");
    EXPECT_EQ(ImportFile("look.xmp", content).group.toStdString(), "Travel");
}

TEST_F(LookReadersTest, aNestedLookIsGreyOrNamed)
{
    const ImportedLook coloured = Import({{"Exposure2012", "0.5"}, {"Look", "Adobe Color"}});
    EXPECT_EQ(Describe(coloured), Brighter);
    ASSERT_EQ(GetRemarked(coloured, ImportRemark::Kind::LeftOut), std::vector<std::string>{"Look"});
    EXPECT_EQ(coloured.remarks.front().value.toStdString(), "Adobe Color");
    EXPECT_THAT(Describe(Import({{"Look", "Adobe Monochrome"}})),
                HasSubstr("greyMixer amount=100"));
}

TEST_F(LookReadersTest, aNestedLookMayBeGreyByItsParametersAlone)
{
    QByteArray content = MakeXmp({{"Exposure2012", "0.5"}, {"Look", "Landscape 02"}});
    content.replace("crs:Name=\"Landscape 02\"/>",
                    "crs:Name=\"Landscape 02\"><crs:Parameters><rdf:Description "
                    "crs:ConvertToGrayscale=\"True\" crs:Version=\"15.4\"/></crs:Parameters>"
                    "</rdf:Description>");
    EXPECT_THAT(Describe(ImportFile("look.xmp", content)), HasSubstr("greyMixer amount=100"));
}

TEST_F(LookReadersTest, namesMasksAndCodedTablesAndShowsNoneOfTheirContent)
{
    QByteArray content = MakeXmp(brighter);
    content.replace("crs:PresetType",
                    "crs:Table_0123=\"" + QByteArray(5000, 'x') + "\" crs:PresetType");
    content.replace("  </rdf:Description>",
                    "<crs:MaskGroupBasedCorrections><rdf:Seq><rdf:li><rdf:Description "
                    "crs:What=\"Correction\" crs:CorrectionActive=\"true\"/></rdf:li></rdf:Seq>"
                    "</crs:MaskGroupBasedCorrections></rdf:Description>");
    const ImportedLook look = ImportFile("look.xmp", content);
    EXPECT_EQ(GetRemarked(look, ImportRemark::Kind::LeftOut),
              (std::vector<std::string>{"MaskGroupBasedCorrections", "Table_0123"}));
    EXPECT_LE(look.remarks.back().ToText().size(), 60);
}

TEST_F(LookReadersTest, saysWhatAValueShouldHaveBeen)
{
    const ImportedLook look = Import({{"Exposure2012", "0.5"},
                                      {"Contrast2012", "much"},
                                      {"Shadows2012", "nan"},
                                      {"Whites2012", "1e999"},
                                      {"ToneCurvePV2012", "0, 0; 9, x; 255, 255"}});
    EXPECT_EQ(Describe(look), Brighter);
    ASSERT_EQ(look.remarks.size(), 4u);
    EXPECT_EQ(look.remarks[0].ToText().toStdString(), "Contrast2012 much (expected a number)");
}

TEST_F(LookReadersTest, refusesALookOfWhichNothingRemains)
{
    EXPECT_THAT(
        FindError("lens.xmp", MakeXmp({{"LensProfileEnable", "1"}, {"Look", "Adobe Vivid"}})),
        HasSubstr("lens.xmp: expected a setting that this program can carry over, found "
                  "only LensProfileEnable 1, Look Adobe Vivid"));
    EXPECT_THAT(FindError("reset.xmp", MakeXmp({{"Exposure2012", "0.00"}})),
                HasSubstr("reset.xmp: expected a setting that changes the picture, found none"));
}

TEST_F(LookReadersTest, refusesTemplatesThatAreNoLooksWithTheirType)
{
    for (const char* type :
         {"Export", "LibraryFilter", "Naming_Tokens", "Metadata", "KeywordSet"}) {
        QByteArray content = MakeTemplate(brighter);
        content.replace("Develop", type);
        const std::string error = FindError("other.lrtemplate", content);
        EXPECT_THAT(error, HasSubstr(std::string("found type \"") + type + "\""));
        EXPECT_THAT(error, HasSubstr("which is no look"));
    }
}

TEST_F(LookReadersTest, readsLuaAsData)
{
    const auto table = LuaTable::Read(
        QStringLiteral("t"), "-- a remark\ns = { a = 1, [\"b c\"] = 'x\\'\\65', [3] = -2.5e1;"
                             " t = { true, false, nil, { } }, z = ZSTR \"$$$/A=B=C\" }\n");
    EXPECT_EQ(table.GetText("a").toStdString(), "1");
    EXPECT_EQ(table.GetText("b c").toStdString(), "x'A");
    EXPECT_EQ(table.GetText("3").toStdString(), "-2.5e1");
    EXPECT_EQ(table.GetText("z").toStdString(), "B=C");
    ASSERT_EQ(table.Find("t")->entries.size(), 4u);
    EXPECT_TRUE(table.Find("t")->entries[3].second.isTable);
}

TEST_F(LookReadersTest, neverRunsLua)
{
    for (const char* content :
         {"s = { a = os.execute(\"x\") }", "s = f()", "s = { a = 1 + 1 }", "s = { a = b }",
          "for i = 1, 2 do end", "s = { a = function() end }", "s = { } s.a = 1",
          "s = { a = \"x\" .. \"y\" }", "return { }", "s = { [f] = 1 }"})
        EXPECT_THAT(FindError("code.lrtemplate", content),
                    HasSubstr("code.lrtemplate:1: expected "))
            << content;
}

TEST_F(LookReadersTest, sectionsOfProfilesCountOnlyWhenTheyAreOn)
{
    QByteArray content = MakeProfile({{"Exposure/Compensation", "1"}, {"Vibrance/Pastels", "40"}});
    EXPECT_THAT(Describe(ImportFile("on.pp3", content)), HasSubstr("vibrance amount=40"));
    content.replace("[Vibrance]\nEnabled=true", "[Vibrance]\nEnabled=false");
    EXPECT_EQ(Describe(ImportFile("off.pp3", content)), "exposure stops=1\n");
    content.replace("Enabled=false\n", "");
    EXPECT_EQ(Describe(ImportFile("none.pp3", content)), "exposure stops=1\n");
}

TEST_F(LookReadersTest, namesOtherSectionsOfProfilesThatAreOn)
{
    const ImportedLook look =
        ImportProfile({{"Exposure/Compensation", "1"}, {"Retinex/Str", "20"}});
    EXPECT_EQ(GetRemarked(look, ImportRemark::Kind::LeftOut),
              std::vector<std::string>{"[Retinex]"});
}

TEST_F(LookReadersTest, findsTheTableOfAFilmSimulation)
{
    const QByteArray content =
        "[Film "
        "Simulation]\r\nEnabled=true\r\nClutFilename=Films\\Old\\invert.png\r\nStrength=60\r\n";
    const QString tables = folder.filePath(QStringLiteral("tables"));
    QDir().mkpath(tables + QStringLiteral("/Films/Old"));
    EXPECT_THAT(FindError("film.pp3", content),
                HasSubstr("expected this picture beside the file or in a folder"));
    WriteTable(tables + QStringLiteral("/Films/Old/invert.png"));
    const ImportedLook named = ImportFile("film.pp3", content, {{tables}});
    EXPECT_EQ(Describe(named), "lut3d strength=60\n");
    EXPECT_LT(Draw({{1, 1, 1}}, named).front()[0], 0.6);
    WriteTable(folder.filePath(QStringLiteral("invert.png")));
    EXPECT_EQ(Describe(ImportFile("film.pp3", content)), "lut3d strength=60\n");
}

TEST_F(LookReadersTest, aTableOutsideOfItsFolderIsNotLookedFor)
{
    QDir().mkpath(folder.filePath(QStringLiteral("inside")));
    WriteTable(folder.filePath(QStringLiteral("secret.png")));
    const QString path =
        Write("inside/film.pp3",
              "[Film Simulation]\nEnabled=true\nClutFilename=../secret.png\nStrength=60\n");
    EXPECT_THROW(ForeignImport::Read(path, {}), std::exception);
}

TEST_F(LookReadersTest, mixesGreysOfAProfileByItsChannels)
{
    EXPECT_THAT(Describe(ImportProfile({{"Black & White/Method", "ChannelMixer"},
                                        {"Black & White/Setting", "RGB-Rel"},
                                        {"Black & White/MixerRed", "60"},
                                        {"Black & White/MixerGreen", "30"},
                                        {"Black & White/MixerBlue", "10"}})),
                HasSubstr("blackAndWhite amount=100 red=0.6 green=0.3 blue=0.1"));
}
