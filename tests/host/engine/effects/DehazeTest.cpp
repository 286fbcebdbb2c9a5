// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceHaze.h"
#include "host/engine/TestPictures.h"
#include "host/engine/TestSpaces.h"

#include "engine/effects/dehaze/HazeMap.h"
#include "engine/run/Renderer.h"
#include "engine/run/WholePicture.h"
#include "image/Resize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

EffectPtr MakeDehaze(double amount)
{
    return MakeEffect("dehaze", {{"amount", amount}});
}

Image Dehaze(const Image& picture, double amount, const RenderOptions& options = {})
{
    return Renderer().Render(picture, MakeSettings({MakeDehaze(amount)}), options);
}

Image MakePlain(int width, int height, Image::Depth depth, const Colour& colour)
{
    Image picture = Image::Allocate(width, height, depth);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < 4 * width; ++x) {
            const double value = x % 4 == 3 ? 1 : colour[static_cast<std::size_t>(x % 4)];
            if (depth == Image::Depth::Bits16)
                picture.Row16(y)[x] = static_cast<std::uint16_t>(std::lround(65535 * value));
            else
                picture.Row(y)[x] = static_cast<std::uint8_t>(std::lround(255 * value));
        }
    return picture;
}

/// The mean distance of the channels, in steps of 8 bits.
double FindMeanDistance(const Image& first, const Image& second)
{
    double sum = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x)
            for (int c = 0; c < 3; ++c)
                sum += std::abs(255.0 * GetChannel(first, x, y, c) / GetWhite(first) -
                                255.0 * GetChannel(second, x, y, c) / GetWhite(second));
    return sum / (3.0 * first.GetWidth() * first.GetHeight());
}

/// The standard deviation of green.
double FindContrast(const Image& picture)
{
    double sum = 0, squares = 0;
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x) {
            const double value = GetChannel(picture, x, y, 1);
            sum += value;
            squares += value * value;
        }
    const double count = double(picture.GetWidth()) * picture.GetHeight();
    return std::sqrt(squares / count - sum / count * sum / count);
}

class DehazeAtDepth : public testing::TestWithParam<Image::Depth>
{
};

INSTANTIATE_TEST_SUITE_P(Depths, DehazeAtDepth,
                         testing::Values(Image::Depth::Bits8, Image::Depth::Bits16));

TEST_P(DehazeAtDepth, isDrawnAsItsFormula)
{
    const bool is8 = GetParam() == Image::Depth::Bits8;
    for (const auto& [width, height] : {std::pair{131, 90}, {90, 64}, {200, 3}}) {
        const Image hazy = MakeHazyPicture(width, height, GetParam(), 0.9);
        const ReferenceHaze reference(hazy);
        for (const double amount : {15.0, 60.0, 100.0, -35.0, -100.0})
            for (const int blendAmount : {1, 90}) {
                const Image drawn =
                    Renderer().Render(hazy, MakeSettings({MakeDehaze(amount)}, blendAmount));
                const RenderError error =
                    MeasureError(hazy, drawn, reference.MakeFormula(amount), blendAmount);
                EXPECT_LE(error.largest, is8 ? 0.52 : 0.6) << width << ", amount " << amount;
                EXPECT_LE(error.mean, error.roundedMean + 0.001) << width << ", amount " << amount;
                RecordProperty("largest" + std::to_string(int(amount)),
                               std::to_string(error.largest));
            }
    }
}

TEST_P(DehazeAtDepth, findsTheSceneBehindTheHaze)
{
    const Image scene = MakeHazyPicture(240, 160, GetParam(), 0);
    const Image hazy = MakeHazyPicture(240, 160, GetParam(), 1);

    const auto map = WholePicture::OfPhoto(hazy)->GetHaze();
    const Image cleared = Dehaze(hazy, 100);

    EXPECT_NEAR(map->GetAirLight()[0], 0.8, 0.04);
    EXPECT_NEAR(map->GetAirLight()[1], 0.84, 0.04);
    EXPECT_NEAR(map->GetAirLight()[2], 0.88, 0.04);
    EXPECT_LT(FindMeanDistance(cleared, scene), 0.35 * FindMeanDistance(hazy, scene));
}

TEST_P(DehazeAtDepth, leavesPicturesWithoutHazeAsTheyAre)
{
    const Image clear = MakeHazyPicture(160, 120, GetParam(), 0);
    EXPECT_TRUE(HaveSamePixels(Dehaze(clear, 100), clear));
}

TEST_P(DehazeAtDepth, leavesPicturesOfOneColourAsTheyAre)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {2, 1}, {70, 40}, {900, 1}})
        for (const Colour& colour : {Colour{1, 1, 1}, {0.5, 0.5, 0.5}, {0.9, 0.4, 0.6}}) {
            const Image plain = MakePlain(width, height, GetParam(), colour);
            for (const double amount : {-100.0, 50.0, 100.0})
                EXPECT_LE(FindMeanDistance(Dehaze(plain, amount), plain), 0.002)
                    << width << " x " << height << ", " << colour[1] << ", " << amount;
        }
    const Image black = MakePlain(70, 40, GetParam(), {0, 0, 0});
    EXPECT_TRUE(HaveSamePixels(Dehaze(black, 100), black));
}

TEST_P(DehazeAtDepth, keepsGreysOfEvenlyLitPicturesGreyAndInOrder)
{
    Image ramp = Image::Allocate(256, 40, GetParam());
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 1024; ++x) {
            const int value = x % 4 == 3 ? 255 : x / 4;
            if (GetParam() == Image::Depth::Bits16)
                ramp.Row16(y)[x] = static_cast<std::uint16_t>(257 * value);
            else
                ramp.Row(y)[x] = static_cast<std::uint8_t>(value);
        }
    for (const double amount : {-100.0, -30.0, 30.0, 100.0}) {
        const Image drawn = Dehaze(ramp, amount);
        for (int x = 0; x < 256; ++x) {
            EXPECT_EQ(GetChannel(drawn, x, 20, 0), GetChannel(drawn, x, 20, 1)) << amount;
            EXPECT_EQ(GetChannel(drawn, x, 20, 2), GetChannel(drawn, x, 20, 1)) << amount;
            if (x == 0)
                continue;
            EXPECT_GE(GetChannel(drawn, x, 20, 1), GetChannel(drawn, x - 1, 20, 1))
                << amount << " at " << x;
        }
    }
}

TEST_P(DehazeAtDepth, takesMoreHazeTheLargerTheAmount)
{
    const Image hazy = MakeHazyPicture(160, 120, GetParam(), 0.7);
    double before = 0;
    for (const double amount : {-100.0, -60.0, -20.0, 0.0, 20.0, 60.0, 100.0}) {
        const double contrast = FindContrast(Dehaze(hazy, amount));
        EXPECT_GT(contrast, 1.05 * before) << amount;
        before = contrast;
    }
    const Image clear = MakeHazyPicture(160, 120, GetParam(), 0);
    EXPECT_LT(FindContrast(Dehaze(clear, -100)), 0.8 * FindContrast(clear))
        << "haze comes to pictures without any, too";
}

// The picture is larger than what the haze is found on, so that the map is interpolated.
TEST_P(DehazeAtDepth, isTheSameForAllThreadsAndTiles)
{
    const Image hazy = MakeHazyPicture(1301, 70, GetParam(), 0.8);
    ThreadPool pool(3);
    RenderOptions options;
    options.threads = 1;
    const auto settings = MakeSettings({MakeEffect("exposure", {{"stops", 0.3}}), MakeDehaze(80),
                                        MakeEffect("clarity", {{"amount", 40}})});
    const Image expected = Renderer(pool).Render(hazy, settings, options);
    for (const int threads : {2, 4})
        for (const int tilePixels : {64, 65, 333, 2048}) {
            options.threads = threads;
            options.tilePixels = tilePixels;
            EXPECT_TRUE(HaveSamePixels(Renderer(pool).Render(hazy, settings, options), expected))
                << threads << " threads, tiles of " << tilePixels;
        }
}

TEST_P(DehazeAtDepth, drawsAPartAsItIsInTheWholePicture)
{
    const Image hazy = MakeHazyPicture(1000, 700, GetParam(), 0.8);
    const auto settings = MakeSettings({MakeEffect("exposure", {{"stops", -0.4}}), MakeDehaze(70)});
    const Image whole = Renderer().Render(hazy, settings);
    RenderOptions options;
    options.area = PictureArea::Whole(1000, 700);
    options.area->originX = 333;
    options.area->originY = 101;
    options.facts = WholePicture::OfPhoto(hazy);
    const PixelRect place{333, 101, 250, 300};

    const Image part =
        Renderer().Render(Resize(hazy, place, 250, 300, ResizeQuality::Fine), settings, options);

    const Image expected = Resize(whole, place, 250, 300, ResizeQuality::Fine);
    const unsigned tolerance = GetParam() == Image::Depth::Bits8 ? 0 : 1;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 250; ++x)
            ASSERT_NEAR(GetChannel(part, x, y, 1), GetChannel(expected, x, y, 1), tolerance)
                << x << ", " << y;
}

TEST(Dehaze, looksAtThePictureThatEffectsBelowItMake)
{
    const Image hazy = MakeHazyPicture(300, 200, Image::Depth::Bits16, 0.8);
    const EffectPtr below = MakeEffect("liftGammaGain", {{"slopeRed", 0.5}, {"slopeBlue", 0.7}});

    const Image together = Renderer().Render(hazy, MakeSettings({below, MakeDehaze(80)}));
    const Image apart = Dehaze(Renderer().Render(hazy, MakeSettings({below})), 80);

    EXPECT_LT(FindMeanDistance(together, apart), 0.01);
    EXPECT_GT(FindMeanDistance(together, hazy), 10);
}

TEST(Dehaze, showsTheSameInAPreviewAsInTheFullPicture)
{
    const Image rough = MakeHazyPicture(300, 200, Image::Depth::Bits16, 0.8);
    const Image full = Resize(rough, {0, 0, 300, 200}, 1200, 800, ResizeQuality::Fine);
    const PixelRect whole{0, 0, 1200, 800};
    RenderOptions options;
    options.area = PictureArea::Whole(1200, 800);
    options.facts = WholePicture::OfPhoto(full);
    for (const int scale : {2, 4}) {
        options.area->scaleX = options.area->scaleY = scale;
        const int width = 1200 / scale, height = 800 / scale;

        const Image preview =
            Dehaze(Resize(full, whole, width, height, ResizeQuality::Fine), 60, options);
        const Image exported = Resize(Dehaze(full, 60), whole, width, height, ResizeQuality::Fine);

        EXPECT_LT(FindMeanDistance(preview, exported), 1.0) << scale;
    }
}

TEST(Dehaze, findsTheHazeOfWidePicturesInTheirColours)
{
    const Image hazy = MakeHazyPicture(120, 80, Image::Depth::Bits16, 0.8);
    for (const TestSpace& space : GetTestSpaces()) {
        const Image wide = InSpace(hazy, space.space);
        const auto expected = WholePicture::OfPhoto(Renderer().ToSrgb(wide))->GetHaze();
        const auto found = WholePicture::OfPhoto(wide)->GetHaze();
        for (std::size_t c = 0; c < 3; ++c)
            EXPECT_NEAR(found->GetAirLight()[c], expected->GetAirLight()[c], 1e-9) << space.name;
        EXPECT_FALSE(HaveSamePixels(Dehaze(wide, 60), wide)) << space.name;
    }
}

TEST(WholePicture, isReducedOnlyWhenSomebodyAsks)
{
    int made = 0;
    const auto whole = WholePicture::Of(3000, 2000, [&made](const WholePicture::Size& size) {
        ++made;
        EXPECT_EQ(size.width, 512);
        EXPECT_EQ(size.height, 341);
        return MakeHazyPicture(size.width, size.height, Image::Depth::Bits8, 0.5);
    });
    RenderOptions options;
    options.facts = whole;
    const Image picture = MakeHazyPicture(60, 40, Image::Depth::Bits8, 0.5);
    Renderer().Render(picture, MakeSettings({MakeEffect("exposure", {{"stops", 1}})}), options);
    Dehaze(picture, 0, options);
    EXPECT_EQ(made, 0);
    Dehaze(picture, 50, options);
    Dehaze(picture, 60, options);
    EXPECT_EQ(made, 1);
}

TEST(WholePicture, keepsTheHazeWhileAnAmountIsDragged)
{
    const auto whole = WholePicture::OfPhoto(MakeHazyPicture(600, 400, Image::Depth::Bits8, 0.5));
    const auto below = [](double stops) {
        return Zorvik::Quindle::EffectList{MakeEffect("exposure", {{"stops", stops}})};
    };
    const auto haze = whole->With(below(0.5))->GetHaze();
    EXPECT_EQ(whole->With(below(0.5))->GetHaze(), haze);
    EXPECT_NE(whole->With(below(0.7))->GetHaze(), haze);
    EXPECT_EQ(whole->With(below(0.5))->GetHaze(), haze);
}

TEST(WholePicture, hasNoHazeWhereItsReductionWasCancelled)
{
    const auto whole = WholePicture::Of(3000, 2000, [](const auto&) { return Image(); });
    EXPECT_EQ(whole->GetHaze()->GetWidth(), 1);
    EXPECT_EQ(*whole->GetHaze()->GetOffsets(0), 1.0f);
    EXPECT_EQ(whole->With({MakeDehaze(50)})->GetHaze()->GetWidth(), 1);
}

} // namespace
} // namespace LumetraHost
