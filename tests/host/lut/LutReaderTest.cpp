// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/lut/LutFiles.h"

#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "lut/LutReader.h"

#include <QFile>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace LumetraHost {
namespace {

using testing::HasSubstr;

const Lut3dSettings& AsTables(const LutLook& look)
{
    return dynamic_cast<const Lut3dSettings&>(*look.effect);
}

const QByteArray Small = "0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n";

QByteArray Correction(const QByteArray& id, const QByteArray& slope)
{
    return "<ColorCorrection id=\"" + id + "\"><SOPNode><Slope>" + slope +
           "</Slope><Offset>0.01 0 -0.02</Offset><Power>1 1.1 0.9</Power></SOPNode><SatNode>"
           "<Saturation>0.8</Saturation></SatNode></ColorCorrection>";
}

TEST_F(LutFiles, areReadUnderTheNameOfTheFile)
{
    RegisterEffects();
    const auto looks = LutReader::Read(Write("Warm. Evening.CUBE", "LUT_3D_SIZE 2\n" + Small));
    ASSERT_EQ(looks.size(), 1u);
    EXPECT_EQ(looks[0].name, "Warm. Evening");
    EXPECT_EQ(looks[0].effect->GetEffectID(), "lut3d");
    EXPECT_EQ(AsTables(looks[0]).GetCube()->size, 2);
}

TEST_F(LutFiles, keepTheSizeAndTheDomainOfTheirTables)
{
    RegisterEffects();
    const auto adobe =
        LutReader::Read(Write("a.cube", "TITLE \"x\"\n# note\nLUT_3D_SIZE 5\nDOMAIN_MIN -0.5 0 0\n"
                                        "DOMAIN_MAX 1 2 1.5\n" +
                                            CubeRows(5)));
    EXPECT_EQ(AsTables(adobe[0]).GetCube()->size, 5);
    EXPECT_NEAR(AsTables(adobe[0]).GetCube()->minimum[0], -0.5, 1e-6);
    EXPECT_NEAR(AsTables(adobe[0]).GetCube()->maximum[1], 2, 1e-6);
    const auto resolve = LutReader::Read(
        Write("b.cube", "LUT_1D_SIZE 300\nLUT_1D_INPUT_RANGE 0.0 1.0\nLUT_3D_SIZE 4\n" +
                            CurveRows(300) + CubeRows(4)));
    ASSERT_TRUE(AsTables(resolve[0]).GetCurve());
    EXPECT_EQ(AsTables(resolve[0]).GetCurve()->size, 300);
    EXPECT_EQ(AsTables(resolve[0]).GetCube()->size, 4);
}

TEST_F(LutFiles, readALargeCubeSampledDown)
{
    RegisterEffects();
    const auto looks = LutReader::Read(Write("big.cube", "LUT_3D_SIZE 70\n" + CubeRows(70)));
    EXPECT_EQ(AsTables(looks[0]).GetCube()->size, 65);
}

TEST_F(LutFiles, areReadAnewWhenTheyHaveChanged)
{
    RegisterEffects();
    LutReader::Read(Write("a.cube", "LUT_3D_SIZE 2\n" + Small));
    const auto looks = LutReader::Read(Write("a.cube", "LUT_3D_SIZE 3\n" + CubeRows(3)));
    EXPECT_EQ(AsTables(looks[0]).GetCube()->size, 3);
}

TEST_F(LutFiles, giveOneLookForEachCorrection)
{
    RegisterEffects();
    const auto looks = LutReader::Read(
        Write("shots.ccc", "<ColorCorrectionCollection xmlns=\"urn:ASC:CDL:v1.2\">" +
                               Correction("shot1", "1.1 1 0.9") + Correction("shot2", "2 2 2") +
                               "</ColorCorrectionCollection>"));
    ASSERT_EQ(looks.size(), 2u);
    EXPECT_EQ(looks[0].name, "shot1");
    EXPECT_EQ(looks[0].effect->GetEffectID(), "liftGammaGain");
    EXPECT_EQ(looks[0].effect->GetParameter("slopeRed"), 1.1);
    EXPECT_EQ(looks[0].effect->GetParameter("offsetBlue"), -0.02);
    EXPECT_EQ(looks[0].effect->GetParameter("saturation"), 0.8);
    EXPECT_EQ(looks[0].effect->GetParameter("clamp"), 1);
    EXPECT_EQ(looks[1].name, "shot2");
    EXPECT_EQ(looks[1].effect->GetParameter("slopeGreen"), 2);
}

TEST_F(LutFiles, refuseBadCubesWithTheLine)
{
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n"),
              "a.cube:3: expected 8 rows of numbers, found 2: the file is cut off");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n" + Small + "\n0 0 0\n"),
              "a.cube:11: expected 8 rows of numbers, found more");
    EXPECT_EQ(ErrorOf("a.cube", "TITLE \"x\"\nLUT_3D_SIZE 100000\n0 0 0\n"),
              "a.cube:2: expected a size from 2 to 129, found \"100000\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_1D_SIZE 65537\n"),
              "a.cube:1: expected a size from 2 to 65536, found \"65537\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE -3\n"),
              "a.cube:1: expected a size from 2 to 129, found \"-3\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n0 0 0\n1 nan 0\n"),
              "a.cube:3: expected a finite number, found \"nan\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 -inf\n"),
              "a.cube:3: expected a finite number, found \"-inf\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n0 0 1e99\n"),
              "a.cube:2: expected a finite number, found \"1e99\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n0 0,5 0\n"),
              "a.cube:2: expected a finite number, found \"0,5\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n0 0 x\n"),
              "a.cube:2: expected a number, found \"x\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n0 0\n"), "a.cube:2: expected 3 numbers, found 2");
    EXPECT_EQ(
        ErrorOf("a.cube", "0 0 0\n"),
        "a.cube:1: expected LUT_3D_SIZE or LUT_1D_SIZE before the first row, found \"0 0 0\"");
    EXPECT_EQ(ErrorOf("a.cube", "TITLE \"empty\"\n"),
              "a.cube: expected LUT_3D_SIZE or LUT_1D_SIZE, found none");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE 1 0\n"),
              "a.cube:2: expected a smaller and a larger number, found \"1 0\"");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\nDOMAIN_MAX 1 1\n"),
              "a.cube:2: expected 3 numbers, found 2");
    EXPECT_EQ(ErrorOf("a.cube", QByteArray("LUT\0D", 5)),
              "a.cube: expected text, found binary data");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\nDOMAIN_MAX 0 1 1\n" + Small),
              "a.cube:2: expected DOMAIN_MAX above DOMAIN_MIN, found 0 and 0");
    EXPECT_EQ(ErrorOf("a.cube", ""), "a.cube: expected a table, found an empty file");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\nLUT_3D_SIZE 2\n" + Small),
              "a.cube:2: expected one LUT_3D_SIZE, found a second");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_3D_SIZE 2\n" + Small + "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n"),
              "a.cube:10: expected every size before the first row, found LUT_1D_SIZE");
    EXPECT_EQ(ErrorOf("a.cube", "\xef\xbb\xbfLUT_3D_SIZE 2\n" + Small),
              "a.cube:1: expected text without a byte order mark, found one at the beginning");
    EXPECT_EQ(ErrorOf("a.cube", "LUT_1D_SIZE 2\r0 0 0\r1 1 1\r"),
              "a.cube:1: expected lines that end in a line feed, found carriage returns alone");
}

TEST_F(LutFiles, refuseBadThreeDlWithTheLine)
{
    EXPECT_EQ(ErrorOf("a.3dl", "0 341 682 1023\n0 0 0\n0 0 500\n"),
              "a.3dl:3: expected 64 rows of numbers, found 2: the file is cut off");
    EXPECT_EQ(
        ErrorOf("a.3dl", "3DMESH\nMesh 4 12\n0 0 0\n0 0 500\n0 0 1\n"),
        "a.3dl:5: expected as many rows of numbers as a cube has entries, found 3: the file is "
        "cut off");
    EXPECT_EQ(ErrorOf("a.3dl", "0 341 682 1023\n0 0 0\n0 0\n"),
              "a.3dl:3: expected 3 numbers, found 2");
}

TEST_F(LutFiles, refuseBadXmlWithTheLine)
{
    const QByteArray head = "<ProcessList id=\"a\" compCLFversion=\"3\">\n";
    EXPECT_THAT(ErrorOf("a.clf", head), HasSubstr("a.clf:2: expected well-formed XML: "));
    EXPECT_EQ(ErrorOf("a.clf", "<!DOCTYPE x [<!ENTITY a \"b\">]>\n" + head + "</ProcessList>"),
              "a.clf:1: expected no document type");
    EXPECT_EQ(
        ErrorOf("a.clf", head + "<LUT3D><Array dim=\"4000 4000 4000 3\">\n0 0 0</Array>"),
        "a.clf:2: expected an array of at most 6440067 numbers, found \"dim\" \"4000 4000 4000 "
        "3\"");
    EXPECT_EQ(ErrorOf("a.clf", head + "<LUT1D><Array dim=\"2 3\">\n0 0 0\n1 1</Array></LUT1D>"),
              "a.clf:2: expected 6 numbers in <Array>, found 5");
    EXPECT_EQ(ErrorOf("a.clf", head + "<LUT1D><Array dim=\"2 3\">\n0 0 0\n1 NaN 1</Array></LUT1D>"),
              "a.clf:4: expected a finite number, found \"NaN\"");
    EXPECT_EQ(ErrorOf("a.clf", "\n<Something/>"),
              "a.clf:2: expected <ProcessList>, found <Something>");
    EXPECT_EQ(ErrorOf("a.cdl", "<Something/>"),
              "a.cdl:1: expected <ColorCorrection> or <ColorCorrectionCollection> or "
              "<ColorDecisionList>, found <Something>");
    EXPECT_EQ(ErrorOf("a.clf", head + "<Description>x</Description></ProcessList>"),
              "a.clf:1: expected at least one step in <ProcessList>, found none");
    EXPECT_EQ(ErrorOf("a.clf", head + "<LUT1D/></ProcessList>"),
              "a.clf:2: expected <Array> in <LUT1D>, found none");
    EXPECT_THAT(ErrorOf("a.clf", "<ProcessList id=\"a\" compCLFversion=\"99\"><Matrix "
                                 "inBitDepth=\"32f\" outBitDepth=\"32f\"><Array dim=\"3 3\">1 0 0 "
                                 "0 1 0 0 0 1</Array></Matrix></ProcessList>"),
                HasSubstr("a.clf:1: expected a file that can be read: Unsupported"));
    EXPECT_EQ(ErrorOf("a.cc", ""), "a.cc: expected a table, found an empty file");
}

TEST_F(LutFiles, refuseBadDecisionListsWithTheLine)
{
    const auto withPart = [](const char* part, const char* numbers) {
        QByteArray text = "<ColorCorrection id=\"x\">\n<SOPNode>\n";
        for (const char* name : {"Slope", "Offset", "Power"})
            text += QByteArray("<") + name + ">" + (qstrcmp(name, part) == 0 ? numbers : "1 1 1") +
                    "</" + name + ">\n";
        return text + "</SOPNode>\n</ColorCorrection>";
    };
    EXPECT_EQ(ErrorOf("a.cc", withPart("Slope", "1 1")),
              "a.cc:3: expected 3 numbers in <Slope>, found 2");
    EXPECT_EQ(ErrorOf("a.cc", withPart("Offset", "1 1 1 1")),
              "a.cc:4: expected 3 numbers in <Offset>, found 4");
    EXPECT_EQ(ErrorOf("a.cc", withPart("Slope", "1 -1 1")),
              "a.cc:3: expected numbers from 0 in <Slope>, found -1");
    EXPECT_EQ(ErrorOf("a.cc", withPart("Power", "1 1 0")),
              "a.cc:5: expected numbers above 0 in <Power>, found 0");
    EXPECT_EQ(ErrorOf("a.cc", "<ColorCorrection>\n<SOPNode><Offset>0 0 0</Offset><Power>1 1 "
                              "1</Power></SOPNode></ColorCorrection>"),
              "a.cc:2: expected <Slope> in <SOPNode>, found none");
    EXPECT_EQ(ErrorOf("a.ccc", "<ColorCorrectionCollection>\n" + Correction("x", "1 1 1") + "\n" +
                                   Correction("x", "1 1 2") + "</ColorCorrectionCollection>"),
              "a.ccc:3: expected an id of its own, found \"x\" again");
    EXPECT_EQ(ErrorOf("a.cc", Correction("x", "11 1 1")),
              "a.cc: correction \"x\": expected a slopeRed from 0 to 10, found 11");
    EXPECT_EQ(ErrorOf("a.cc", Correction("x", "1 inf 1")),
              "a.cc:1: expected a finite number, found \"inf\"");
}

TEST_F(LutFiles, refuseWhatIsNoLut)
{
    EXPECT_EQ(ErrorOf("look.txt", "x"),
              "look.txt: expected a name that ends in .cube, .3dl, .clf, .cc, .ccc, .cdl, .png or "
              ".tif");
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path("pipe.cube")).constData(), 0600), 0);
    EXPECT_EQ(ErrorOf(Path("pipe.cube")),
              "pipe.cube: expected a plain file, found a pipe, a socket or a device");
    EXPECT_EQ(ErrorOf(Path("none.cube")), "none.cube: cannot be read: No such file or directory");
}

} // namespace
} // namespace LumetraHost
