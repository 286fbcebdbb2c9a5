// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"
#include "host/lut/LutFiles.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Renderer.h"
#include "lut/LutReader.h"

#include <OpenColorIO/OpenColorIO.h>

#include <algorithm>
#include <cmath>

// OpenColorIO applies the files itself; the effects that were made from them must draw the same.
namespace LumetraHost {
namespace {

namespace Ocio = OCIO_NAMESPACE;

void ExpectSameAsFile(const QString& path, double tolerance = 0.03)
{
    RegisterEffects();
    const auto looks = LutReader::Read(path);
    ASSERT_EQ(looks.size(), 1u);
    const auto file = Ocio::FileTransform::Create();
    file->setSrc(path.toStdString().c_str());
    file->setInterpolation(Ocio::INTERP_TETRAHEDRAL);
    file->setCDLStyle(Ocio::CDL_ASC);
    file->setCCCId("0");
    const auto processor = Ocio::Config::CreateRaw()->getProcessor(file)->getOptimizedCPUProcessor(
        Ocio::OPTIMIZATION_LOSSLESS);
    const Image source = MakeRandomPicture(200, 60, Image::Depth::Bits8, 77);

    const Image rendered = Renderer().Render(source, MakeSettings({looks[0].effect}));

    double largest = 0, mean = 0;
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 200; ++x) {
            float colour[3];
            for (int c = 0; c < 3; ++c)
                colour[c] = static_cast<float>(GetChannel(source, x, y, c)) / 255.0f;
            processor->applyRGB(colour);
            for (int c = 0; c < 3; ++c) {
                const double exact = 255 * std::clamp(static_cast<double>(colour[c]), 0.0, 1.0);
                const double difference = std::abs(exact - GetChannel(rendered, x, y, c));
                largest = std::max(largest, difference);
                mean += difference / 36000;
            }
        }
    EXPECT_LE(largest, 0.5 + tolerance) << path.toStdString();
    EXPECT_LE(mean, 0.26) << path.toStdString();
    testing::Test::RecordProperty(QFileInfo(path).fileName().toStdString(),
                                  std::to_string(largest));
}

QByteArray Clf(const QByteArray& nodes)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ProcessList id=\"test\" "
           "compCLFversion=\"3\">\n" +
           nodes + "</ProcessList>\n";
}

/// The rows in the order of the Common LUT Format, in which blue runs fastest.
QByteArray BlueFastest(const QByteArray& rows, int size)
{
    const auto lines = rows.split('\n');
    QByteArray text;
    for (int r = 0; r < size; ++r)
        for (int g = 0; g < size; ++g)
            for (int b = 0; b < size; ++b)
                text += lines[r + size * (g + size * b)] + '\n';
    return text;
}

QByteArray ClfCube(const QByteArray& rows, int size)
{
    const QByteArray n = QByteArray::number(size);
    return "<LUT3D id=\"c\" inBitDepth=\"32f\" outBitDepth=\"32f\" interpolation=\"tetrahedral\">"
           "<Array dim=\"" +
           n + ' ' + n + ' ' + n + " 3\">\n" + BlueFastest(rows, size) + "</Array></LUT3D>\n";
}

QByteArray ClfCurve(const QByteArray& rows, int size)
{
    return "<LUT1D id=\"l\" inBitDepth=\"32f\" outBitDepth=\"32f\"><Array dim=\"" +
           QByteArray::number(size) + " 3\">\n" + rows + "</Array></LUT1D>\n";
}

TEST_F(LutFiles, drawCubesAsOpenColorIoDoes)
{
    ExpectSameAsFile(Write("adobe.cube", "LUT_3D_SIZE 17\n" + CubeRows(17)));
    ExpectSameAsFile(
        Write("domain.cube", "LUT_3D_SIZE 12\nDOMAIN_MIN -0.1 -0.1 -0.1\nDOMAIN_MAX 1.2 1.2 1.2\n" +
                                 CubeRows(12, -0.1, 1.2)));
    ExpectSameAsFile(
        Write("channels.cube",
              "LUT_3D_SIZE 6\nDOMAIN_MIN 0 0.1 0\nDOMAIN_MAX 0.9 1.5 1\n" + CubeRows(6)));
    ExpectSameAsFile(
        Write("range.cube", "LUT_3D_SIZE 9\nLUT_3D_INPUT_RANGE 0.1 0.8\n" + CubeRows(9, 0.1, 0.8)));
    ExpectSameAsFile(Write("big.cube", "LUT_3D_SIZE 80\n" + CubeRows(80)), 0.1);
}

TEST_F(LutFiles, drawCurvesAsOpenColorIoDoes)
{
    ExpectSameAsFile(Write("adobe1d.cube", "LUT_1D_SIZE 256\n" + CurveRows(256)));
    ExpectSameAsFile(
        Write("domain1d.cube",
              "LUT_1D_SIZE 100\nDOMAIN_MIN 0 0 0\nDOMAIN_MAX 2 2 2\n" + CurveRows(100, 0, 2)));
    ExpectSameAsFile(
        Write("range1d.cube", "LUT_1D_SIZE 5\nLUT_1D_INPUT_RANGE -1 1\n" + CurveRows(5, -1, 1)));
    ExpectSameAsFile(Write("both.cube", "LUT_1D_SIZE 50\nLUT_1D_INPUT_RANGE 0 1\nLUT_3D_SIZE 8\n"
                                        "LUT_3D_INPUT_RANGE 0 1.1\n" +
                                            CurveRows(50) + CubeRows(8, 0, 1.1)));
}

TEST_F(LutFiles, drawThreeDlAsOpenColorIoDoes)
{
    QByteArray rows;
    for (int r = 0; r < 17; ++r)
        for (int g = 0; g < 17; ++g)
            for (int b = 0; b < 17; ++b)
                for (const double v : Look(r / 16.0, g / 16.0, b / 16.0))
                    rows += QByteArray::number(qBound(0, qRound(v * 4095), 4095)) +
                            (v == Look(r / 16.0, g / 16.0, b / 16.0)[2] ? '\n' : ' ');
    QByteArray even, bent;
    for (int i = 0; i < 17; ++i) {
        even += QByteArray::number(qRound(1023 * i / 16.0)) + ' ';
        bent += QByteArray::number(qRound(1023 * std::pow(i / 16.0, 1.4))) + ' ';
    }
    ExpectSameAsFile(Write("even.3dl", "# a comment\n" + even + '\n' + rows));
    ExpectSameAsFile(Write("bent.3dl", bent + '\n' + rows));
}

TEST_F(LutFiles, drawCommonLutFormatAsOpenColorIoDoes)
{
    ExpectSameAsFile(Write("cube.clf", Clf(ClfCube(CubeRows(9), 9))));
    ExpectSameAsFile(Write("curve.clf", Clf(ClfCurve(CurveRows(64), 64))));
    ExpectSameAsFile(Write("both.clf", Clf(ClfCurve(CurveRows(64), 64) + ClfCube(CubeRows(9), 9))));
    ExpectSameAsFile(
        Write("list.clf", Clf("<ASC_CDL id=\"x\" inBitDepth=\"32f\" outBitDepth=\"32f\" "
                              "style=\"Fwd\"><SOPNode><Slope>1.2 1 0.9</Slope><Offset>-0.1 0 "
                              "0.1</Offset><Power>1.1 0.9 1</Power></SOPNode><SatNode>"
                              "<Saturation>1.4</Saturation></SatNode></ASC_CDL>")));
    ExpectSameAsFile(
        Write("chain.clf",
              Clf("<Matrix id=\"m\" inBitDepth=\"32f\" outBitDepth=\"32f\"><Array dim=\"3 3\">\n"
                  "0.8 0.1 0.1\n0.2 0.7 0.1\n0 0.1 0.9</Array></Matrix>" +
                  ClfCurve(CurveRows(1024), 1024) + ClfCube(CubeRows(17), 17))),
        0.5); // sampled into a cube
}

TEST_F(LutFiles, drawColorDecisionListsAsOpenColorIoDoes)
{
    const QByteArray correction =
        "<ColorCorrection id=\"cc1\"><SOPNode><Slope>1.3 0.9 1.1</Slope><Offset>-0.08 0.05 "
        "0.01</Offset><Power>0.8 1.2 1.05</Power></SOPNode><SatNode><Saturation>1.5</Saturation>"
        "</SatNode></ColorCorrection>";
    ExpectSameAsFile(Write("one.cc", correction));
    ExpectSameAsFile(Write("one.ccc", "<ColorCorrectionCollection xmlns=\"urn:ASC:CDL:v1.2\">" +
                                          correction + "</ColorCorrectionCollection>"));
    ExpectSameAsFile(
        Write("one.cdl", "<ColorDecisionList xmlns=\"urn:ASC:CDL:v1.01\"><ColorDecision>" +
                             correction + "</ColorDecision></ColorDecisionList>"));
}

} // namespace
} // namespace LumetraHost
