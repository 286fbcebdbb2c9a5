// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"
#include "host/lut/LutFiles.h"

#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "engine/run/Renderer.h"
#include "lut/LutReader.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include <QProcess>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

/// A HaldCLUT of the smooth look.
Image MakeHald(int level, Image::Depth depth,
               const std::function<std::array<double, 3>(double, double, double)>& look)
{
    const int side = level * level * level, size = level * level;
    Image hald = Image::Allocate(side, side, depth);
    const double white = GetWhite(hald);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const int i = y * side + x;
            const auto colour = look(i % size / (size - 1.0), i / size % size / (size - 1.0),
                                     i / size / size / (size - 1.0));
            for (int c = 0; c < 4; ++c) {
                const double v =
                    c == 3 ? 1 : std::clamp(colour[static_cast<std::size_t>(c)], 0.0, 1.0);
                if (depth == Image::Depth::Bits16)
                    hald.Row16(y)[4 * x + c] = static_cast<std::uint16_t>(std::lround(v * white));
                else
                    hald.Row(y)[4 * x + c] = static_cast<std::uint8_t>(std::lround(v * white));
            }
        }
    return hald;
}

std::array<double, 3> Same(double red, double green, double blue)
{
    return {red, green, blue};
}

class HaldFiles : public LutFiles
{
protected:
    QString WriteImage(const char* name, const Image& image) const
    {
        RegisterEffects();
        Photo photo;
        photo.image = image;
        PhotoWriter::Write(Path(name), photo);
        return Path(name);
    }
};

double GetLargestDifference(const Image& first, const Image& second)
{
    double largest = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x)
            for (int c = 0; c < 3; ++c)
                largest = std::max(largest, std::abs(double(GetChannel(first, x, y, c)) -
                                                     double(GetChannel(second, x, y, c))));
    return largest;
}

TEST_F(HaldFiles, changeNothingWithTheIdentityOfAnyLevel)
{
    const Image source = MakeRandomPicture(120, 60, Image::Depth::Bits8, 12);
    for (const int level : {2, 5, 8, 9}) {
        const auto looks = LutReader::Read(
            WriteImage("identity.png", MakeHald(level, Image::Depth::Bits16, Same)));
        ASSERT_EQ(looks.size(), 1u);
        const Image result = Renderer().Render(source, MakeSettings({looks[0].effect}));
        EXPECT_LE(GetLargestDifference(source, result), 0) << level;
    }
}

TEST_F(HaldFiles, holdTheLookInTheirPixels)
{
    const auto looks =
        LutReader::Read(WriteImage("look.tif", MakeHald(6, Image::Depth::Bits16, Look)));
    const auto& cube = *dynamic_cast<const Lut3dSettings&>(*looks[0].effect).GetCube();
    EXPECT_EQ(cube.size, 36);
    const auto expected = Look(7 / 35.0, 20 / 35.0, 31 / 35.0);
    const std::size_t entry = 7 + 36 * (20 + 36 * 31);
    for (std::size_t c = 0; c < 3; ++c)
        EXPECT_NEAR(cube.values[4 * entry + c], expected[c], 1.0 / 65535);
}

// GraphicsMagick interpolates in another way, which a smooth look with many points does not show.
TEST_F(HaldFiles, areDrawnAsGraphicsMagickDoes)
{
    const QString hald = WriteImage("hald.png", MakeHald(8, Image::Depth::Bits16, Look));
    const Image source = MakeRandomPicture(160, 100, Image::Depth::Bits8, 13);
    Image opaque = source.Clone();
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 160; ++x)
            opaque.Row(y)[4 * x + 3] = 255;
    const QString photo = WriteImage("photo.png", opaque);

    QProcess magick;
    magick.start(QStringLiteral("gm"), {QStringLiteral("convert"), photo,
                                        QStringLiteral("-hald-clut"), hald, Path("magick.png")});
    ASSERT_TRUE(magick.waitForFinished(-1)) << "GraphicsMagick is missing";
    ASSERT_EQ(magick.exitCode(), 0) << magick.readAllStandardError().toStdString();
    const Image expected = PhotoReader::Read(Path("magick.png")).image;

    const auto looks = LutReader::Read(hald);
    const Image result = Renderer().Render(opaque, MakeSettings({looks[0].effect}));

    EXPECT_LE(GetLargestDifference(expected, result), 1);
}

TEST_F(HaldFiles, areRefusedWhenTheyAreNone)
{
    WriteImage("photo.png", MakeRandomPicture(64, 60, Image::Depth::Bits8, 1));
    EXPECT_EQ(
        ErrorOf(Path("photo.png")),
        "photo.png: expected a HaldCLUT, a square picture of 8, 27, 64, 125 and so on to 1728 "
        "pixels, found 64 x 60");
    WriteImage("photo.png", MakeRandomPicture(100, 100, Image::Depth::Bits8, 1));
    EXPECT_NE(ErrorOf(Path("photo.png")), "no error");
    Write("text.png", "no picture");
    EXPECT_NE(ErrorOf(Path("text.png")), "no error");
}

} // namespace
} // namespace LumetraHost
