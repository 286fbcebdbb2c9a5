// SPDX-License-Identifier: GPL-2.0-or-later
// The shipped looks on photos in spaces wider than sRGB.
#include "CatalogueFixture.h"

#include "host/engine/ColourDifference.h"
#include "host/engine/TestPictures.h"
#include "host/engine/TestSpaces.h"

#include "engine/base/ColourMatrix.h"
#include "engine/run/Renderer.h"
#include "image/Resize.h"
#include "image/Srgb.h"
#include "photo/PhotoReader.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace LumetraPlugin;
using namespace LumetraHost;

namespace {

using Triple = std::array<double, 3>;

Image ReadSample()
{
    const Image photo = PhotoReader::Read(QStringLiteral(LUMETRA_SAMPLE_PHOTO)).image;
    constexpr int width = 200;
    return Resize(photo, {0, 0, photo.GetWidth(), photo.GetHeight()}, width,
                  photo.GetHeight() * width / photo.GetWidth(), ResizeQuality::Fine);
}

/// Converts the colours to that space and rounds them to 8 bits.
Image MakeSameIn(const TestSpace& space, const Image& srgb)
{
    const ColourMatrix fromSrgb = ColourMatrix{space.space->GetToSrgb()}.Inverse();
    Image picture = InSpace(srgb.Clone(), space.space);
    for (int y = 0; y < srgb.GetHeight(); ++y)
        for (int x = 0; x < srgb.GetWidth(); ++x) {
            Triple colour;
            for (int c = 0; c < 3; ++c)
                colour[std::size_t(c)] = SrgbToLinear(GetChannel(srgb, x, y, c) / 255.0);
            colour = fromSrgb.Transform(colour);
            for (int c = 0; c < 3; ++c)
                picture.Row(y)[4 * x + c] = static_cast<std::uint8_t>(
                    std::lround(255 * space.Encode(colour[std::size_t(c)])));
        }
    return picture;
}

Triple GetColour(const Image& picture, int x, int y)
{
    Triple colour;
    for (int c = 0; c < 3; ++c)
        colour[std::size_t(c)] = GetChannel(picture, x, y, c) / 255.0;
    return colour;
}

/// Colours on the border of sRGB may be clipped ones.
bool IsInside(const Triple& colour)
{
    return std::all_of(colour.begin(), colour.end(),
                       [](double value) { return value > 0 && value < 1; });
}

/// Over the colours that are inside of sRGB in both.
double FindMeanDifference(const Image& first, const Image& second)
{
    double sum = 0;
    int count = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x) {
            const Triple one = GetColour(first, x, y);
            const Triple other = GetColour(second, x, y);
            if (!IsInside(one) || !IsInside(other))
                continue;
            sum += GetColourDifference(ToLab(one), ToLab(other));
            ++count;
        }
    EXPECT_GT(count, first.GetWidth() * first.GetHeight() / 10);
    return count > 0 ? sum / count : 0;
}

using WideGamutLooksTest = CatalogueFixture;

} // namespace

TEST_F(WideGamutLooksTest, lookTheSameOnAPhotoInDisplayP3AndInSrgb)
{
    const Image srgb = ReadSample();
    const Image wide = MakeSameIn(GetTestSpaces().front(), srgb);
    double largest = 0;
    for (const QModelIndex& preset : Presets()) {
        const Image expected = Draw(preset, srgb);
        const Image drawn = Draw(preset, wide);

        ASSERT_TRUE(drawn.GetSpace()) << NameOf(preset);
        const double mean = FindMeanDifference(Renderer().ToSrgb(drawn), expected);
        EXPECT_LT(mean, 1) << NameOf(preset);
        largest = std::max(largest, mean);
    }
    RecordProperty("largestMeanDifference", std::to_string(largest));
}
