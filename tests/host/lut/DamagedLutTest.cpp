// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/lut/LutFiles.h"

#include "engine/effects/EffectKinds.h"
#include "lut/LutReader.h"

#include "Zorvik/Exception.h"

#include <random>

namespace LumetraHost {
namespace {

constexpr int Rounds = 150;

QByteArray Damage(QByteArray content, std::mt19937& random)
{
    const auto place = [&] { return static_cast<int>(random() % unsigned(content.size())); };
    const int count = 1 + static_cast<int>(random() % 3);
    for (int i = 0; i < count && content.size() > 2; ++i)
        switch (random() % 5) {
        case 0:
            content[place()] = static_cast<char>(random() % 256);
            break;
        case 1:
            content.truncate(place());
            break;
        case 2:
            content.remove(place(), 1 + static_cast<int>(random() % 20));
            break;
        case 3:
            content.insert(place(), content.mid(place(), static_cast<int>(random() % 40)));
            break;
        default:
            content.insert(place(), QByteArray::number(static_cast<int>(random())));
        }
    return content;
}

class DamagedLuts : public LutFiles
{
protected:
    /// Expects a damaged file to be read, or refused with its name.
    void ExpectReadOrRefused(const char* name, const QByteArray& content)
    {
        RegisterEffects();
        std::mt19937 random(4242);
        int refused = 0;
        for (int round = 0; round < Rounds; ++round) {
            const QString path = Write(name, Damage(content, random));
            try {
                EXPECT_FALSE(LutReader::Read(path).empty());
            } catch (const Zorvik::Exception& error) {
                EXPECT_EQ(std::string(error.what()).rfind(path.toStdString(), 0), 0u)
                    << "round " << round << ": " << error.what();
                ++refused;
            }
        }
        EXPECT_GT(refused, Rounds / 4);
    }
};

TEST_F(DamagedLuts, cubesAreReadOrRefused)
{
    ExpectReadOrRefused("a.cube", "TITLE \"x\"\nLUT_3D_SIZE 3\nDOMAIN_MIN 0 0 0\n" + CubeRows(3));
    ExpectReadOrRefused("b.cube", "LUT_1D_SIZE 4\nLUT_1D_INPUT_RANGE 0 1\nLUT_3D_SIZE 2\n" +
                                      CurveRows(4) + CubeRows(2));
}

TEST_F(DamagedLuts, threeDlAreReadOrRefused)
{
    QByteArray rows = "0 512 1023\n";
    for (int i = 0; i < 27; ++i)
        rows += QByteArray::number(i * 100) + " 200 300\n";
    ExpectReadOrRefused("a.3dl", "3DMESH\nMesh 1 12\n" + rows + "LUT8\ngamma 1.0\n");
}

TEST_F(DamagedLuts, xmlIsReadOrRefused)
{
    ExpectReadOrRefused(
        "a.clf",
        "<?xml version=\"1.0\"?>\n<ProcessList id=\"a\" compCLFversion=\"3\"><LUT1D "
        "inBitDepth=\"32f\" outBitDepth=\"32f\"><Array dim=\"4 3\">\n" +
            CurveRows(4) +
            "</Array></LUT1D><Matrix inBitDepth=\"32f\" outBitDepth=\"32f\"><Array dim=\"3 3\">1 0 "
            "0 0 1 0 0 0 1</Array></Matrix><ASC_CDL inBitDepth=\"32f\" outBitDepth=\"32f\" "
            "style=\"Fwd\"><SOPNode><Slope>1 1 1</Slope><Offset>0 0 0</Offset><Power>1 1 1</Power>"
            "</SOPNode></ASC_CDL></ProcessList>");
    ExpectReadOrRefused(
        "a.ccc", "<ColorCorrectionCollection xmlns=\"urn:ASC:CDL:v1.2\"><ColorCorrection "
                 "id=\"a\"><SOPNode><Slope>1.1 1 1</Slope><Offset>0 0.1 0</Offset><Power>1 1 "
                 "1</Power></SOPNode><SatNode><Saturation>0.9</Saturation></SatNode>"
                 "</ColorCorrection></ColorCorrectionCollection>");
}

} // namespace
} // namespace LumetraHost
