// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Blend.h"
#include "engine/run/Renderer.h"
#include "image/Resize.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

/// One plane in double precision.
struct Plane
{
    int width = 0;
    int height = 0;
    std::vector<double> values;

    Plane(int w, int h) : width(w), height(h), values(static_cast<std::size_t>(w * h)) {}
    double& At(int x, int y) { return values[static_cast<std::size_t>(y * width + x)]; }
    double At(int x, int y) const { return values[static_cast<std::size_t>(y * width + x)]; }
};

using Planes = std::array<Plane, 3>;

int Mirror(int i, int length)
{
    while (i < 0 || i >= length)
        i = i < 0 ? -1 - i : 2 * length - 1 - i;
    return i;
}

/// The sum over six standard deviations to each side, along x or along y.
Plane BlurAlong(const Plane& plane, double sigma, bool isAlongX)
{
    const int radius = static_cast<int>(std::ceil(6 * sigma));
    Plane result(plane.width, plane.height);
    for (int y = 0; y < plane.height; ++y)
        for (int x = 0; x < plane.width; ++x) {
            double sum = 0;
            double weights = 0;
            for (int d = -radius; d <= radius; ++d) {
                const double weight = std::exp(-0.5 * (d / sigma) * (d / sigma));
                sum += weight * (isAlongX ? plane.At(Mirror(x + d, plane.width), y)
                                          : plane.At(x, Mirror(y + d, plane.height)));
                weights += weight;
            }
            result.At(x, y) = sum / weights;
        }
    return result;
}

Plane Blur(const Plane& plane, double sigma)
{
    return BlurAlong(BlurAlong(plane, sigma, true), sigma, false);
}

Planes ReadEncoded(const Image& image)
{
    const Plane empty(image.GetWidth(), image.GetHeight());
    Planes planes{empty, empty, empty};
    for (int c = 0; c < 3; ++c)
        for (int y = 0; y < image.GetHeight(); ++y)
            for (int x = 0; x < image.GetWidth(); ++x)
                planes[static_cast<std::size_t>(c)].At(x, y) =
                    double(GetChannel(image, x, y, c)) / GetWhite(image);
    return planes;
}

Plane MakeLuma(const Planes& planes)
{
    Plane luma(planes[0].width, planes[0].height);
    for (std::size_t i = 0; i < luma.values.size(); ++i)
        luma.values[i] = 0.2126 * planes[0].values[i] + 0.7152 * planes[1].values[i] +
                         0.0722 * planes[2].values[i];
    return luma;
}

struct Error
{
    double largest = 0;
    double mean = 0;
};

/// Measures against encoded values, in steps of 8 bits. Alpha must be the source's.
Error Measure(const Image& rendered, const Image& source, const Planes& expected,
              double sourceWeight)
{
    const Planes before = ReadEncoded(source);
    Error error;
    for (int y = 0; y < source.GetHeight(); ++y)
        for (int x = 0; x < source.GetWidth(); ++x) {
            EXPECT_EQ(GetChannel(rendered, x, y, 3), GetChannel(source, x, y, 3));
            for (std::size_t c = 0; c < 3; ++c) {
                const double effect = std::clamp(expected[c].At(x, y), 0.0, 1.0);
                const double exact =
                    sourceWeight * before[c].At(x, y) + (1 - sourceWeight) * effect;
                const double found =
                    double(GetChannel(rendered, x, y, int(c))) / GetWhite(rendered);
                const double difference = 255 * std::abs(found - exact);
                error.largest = std::max(error.largest, difference);
                error.mean += difference / double(3 * before[0].values.size());
            }
        }
    return error;
}

constexpr int Width = 231;
constexpr int Height = 203;

double GetDiagonal()
{
    return std::hypot(Width, Height);
}

/// Black and white areas with hard edges at odd places, colours, and noise in a corner.
Image MakeEdges(Image::Depth depth)
{
    Image image = MakeRandomPicture(Width, Height, depth, 11);
    const unsigned white = GetWhite(image);
    const auto set = [&](int x, int y, int c, unsigned value) {
        if (depth == Image::Depth::Bits16)
            image.Row16(y)[4 * x + c] = static_cast<std::uint16_t>(value);
        else
            image.Row(y)[4 * x + c] = static_cast<std::uint8_t>(value);
    };
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x) {
            if (x < 60 && y < 60)
                continue;
            const bool isLight = (x > 101) != (y > 77);
            set(x, y, 0, isLight ? white : 0);
            set(x, y, 1, isLight ? white : static_cast<unsigned>(x) * white / 400);
            set(x, y, 2, y > 150 ? white / 3 : (isLight ? white : 0));
        }
    return image;
}

/// Makes the whole picture from the source's encoded channels.
using Formula = std::function<Planes(const Planes&)>;

int recorded = 0; // properties of one test may not share their names

/// Checks both depths; the tolerances are in steps of 8 bits beyond half a step of the picture's
/// depth.
void ExpectPicture(const EffectPtr& effect, const Formula& formula, double largest, double mean,
                   int blendAmount = 1)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image source = MakeEdges(depth);
        const bool is16 = depth == Image::Depth::Bits16;

        const Image rendered = Renderer().Render(source, MakeSettings({effect}, blendAmount));

        const Error error =
            Measure(rendered, source, formula(ReadEncoded(source)), GetSourceWeight(blendAmount));
        EXPECT_LE(error.largest, (is16 ? 0.002 : 0.5) + largest) << (is16 ? "16 bits" : "8 bits");
        EXPECT_LE(error.mean, (is16 ? 0.001 : 0.26) + mean) << (is16 ? "16 bits" : "8 bits");
        const std::string prefix =
            std::string(is16 ? "bits16_" : "bits8_") + std::to_string(++recorded) + "_";
        testing::Test::RecordProperty(prefix + "largest", std::to_string(error.largest));
        testing::Test::RecordProperty(prefix + "mean", std::to_string(error.mean));
    }
}

EffectPtr MakeBlur(double sigma)
{
    return MakeEffect("gaussianBlur", {{"radius", 100 * sigma / GetDiagonal()}});
}

Formula BlurFormula(double sigma)
{
    return [sigma](Planes planes) {
        for (Plane& plane : planes) {
            for (double& value : plane.values)
                value = SrgbToLinear(value);
            plane = Blur(plane, sigma);
            for (double& value : plane.values)
                value = LinearToSrgb(value);
        }
        return planes;
    };
}

TEST(GaussianBlurEffect, isTheWeightedSumOfLinearLightForNarrowRadii)
{
    for (const double sigma : {0.3, 1.0, 2.7, 7.9}) {
        SCOPED_TRACE(sigma);
        ExpectPicture(MakeBlur(sigma), BlurFormula(sigma), 0.3, 0.02);
    }
}

TEST(GaussianBlurEffect, staysCloseToItForWideRadii)
{
    for (const double sigma : {8.1, 11.0, 15.2}) {
        SCOPED_TRACE(sigma);
        ExpectPicture(MakeBlur(sigma), BlurFormula(sigma), 0.7, 0.08);
    }
}

TEST(GaussianBlurEffect, isBlendedWithTheSourceLast)
{
    ExpectPicture(MakeBlur(3), BlurFormula(3), 0.2, 0.02, 128);
}

TEST(GaussianBlurEffect, leavesAnEvenPictureAsItIs)
{
    Image grey = Image::Allocate(300, 140, Image::Depth::Bits8);
    for (int y = 0; y < 140; ++y)
        std::fill_n(grey.Row(y), 1200, static_cast<std::uint8_t>(77));
    for (const double radius : {0.1, 1.0, 5.0})
        EXPECT_TRUE(HaveSamePixels(
            Renderer().Render(grey,
                              MakeSettings({MakeEffect("gaussianBlur", {{"radius", radius}})})),
            grey))
            << radius;
}

Formula SharpenFormula(double amount, double sigma, double threshold)
{
    return [=](Planes planes) {
        const Plane luma = MakeLuma(planes);
        const Plane blurred = Blur(luma, sigma);
        for (std::size_t i = 0; i < luma.values.size(); ++i) {
            const double d = luma.values[i] - blurred.values[i];
            const double t = threshold / 255;
            for (Plane& plane : planes)
                plane.values[i] += amount / 100 * (d - std::clamp(d, -t, t));
        }
        return planes;
    };
}

TEST(SharpenEffect, addsTheDifferenceToTheBlurredLuma)
{
    struct Case
    {
        double amount;
        double sigma;
        double threshold;
    };
    for (const Case& n : {Case{80, 0.6, 0}, Case{150, 0.45, 4}, Case{500, 0.5, 50}}) {
        SCOPED_TRACE(n.amount);
        ExpectPicture(MakeEffect("sharpen", {{"amount", n.amount},
                                             {"radius", 100 * n.sigma / GetDiagonal()},
                                             {"threshold", n.threshold}}),
                      SharpenFormula(n.amount, n.sigma, n.threshold), 0.05 * n.amount / 100, 0.01);
    }
}

TEST(SharpenEffect, leavesDifferencesBelowTheThreshold)
{
    Image flat = Image::Allocate(200, 64, Image::Depth::Bits8);
    for (int y = 0; y < 64; ++y)
        for (int i = 0; i < 800; ++i)
            flat.Row(y)[i] = static_cast<std::uint8_t>(120 + (i / 4 + y) % 2);
    const auto effect = MakeEffect("sharpen", {{"amount", 500}, {"radius", 0.2}, {"threshold", 2}});
    EXPECT_TRUE(HaveSamePixels(Renderer().Render(flat, MakeSettings({effect})), flat));
}

Formula ClarityFormula(double amount, double sigma)
{
    return [=](Planes planes) {
        const Plane luma = MakeLuma(planes);
        const Plane blurred = Blur(luma, sigma);
        for (std::size_t i = 0; i < luma.values.size(); ++i) {
            const double d = luma.values[i] - blurred.values[i];
            const double b = std::clamp(blurred.values[i], 0.0, 1.0);
            for (Plane& plane : planes)
                plane.values[i] += amount / 100 * 4 * b * (1 - b) * d / (1 + 2 * std::abs(d));
        }
        return planes;
    };
}

TEST(ClarityEffect, raisesTheLocalContrastOfMidTones)
{
    for (const double amount : {-100.0, 35.0, 100.0})
        for (const double sigma : {1.0, 3.0, 9.0}) {
            SCOPED_TRACE(sigma);
            ExpectPicture(MakeEffect("clarity",
                                     {{"amount", amount}, {"radius", 100 * sigma / GetDiagonal()}}),
                          ClarityFormula(amount, sigma), 0.3, 0.03);
        }
}

TEST(ClarityEffect, leavesBlackAndWhiteAlone)
{
    const Image source = MakeEdges(Image::Depth::Bits8);
    const Image result = Renderer().Render(
        source, MakeSettings({MakeEffect("clarity", {{"amount", 100}, {"radius", 0.2}})}));
    EXPECT_EQ(GetChannel(result, 220, 30, 1), GetWhite(result));
    EXPECT_EQ(GetChannel(result, 220, 190, 0), 0u);
}

Formula TextureFormula(double amount, double sigma)
{
    return [=](Planes planes) {
        const Plane luma = MakeLuma(planes);
        const Plane blurred = Blur(luma, sigma);
        for (std::size_t i = 0; i < luma.values.size(); ++i) {
            const double d = luma.values[i] - blurred.values[i];
            const double b = std::clamp(blurred.values[i], 0.0, 1.0);
            const double weight = 1 - std::pow(2 * b - 1, 4);
            for (Plane& plane : planes)
                plane.values[i] += amount / 100 * weight * d / (1 + std::pow(d / 0.1, 2));
        }
        return planes;
    };
}

EffectPtr MakeTexture(double amount, double sigma)
{
    return MakeEffect("texture", {{"amount", amount}, {"radius", 100 * sigma / GetDiagonal()}});
}

TEST(TextureEffect, raisesTheContrastOfFineDetail)
{
    for (const double amount : {-100.0, 35.0, 100.0})
        for (const double sigma : {0.3, 0.6, 0.9}) {
            SCOPED_TRACE(sigma);
            ExpectPicture(MakeTexture(amount, sigma), TextureFormula(amount, sigma), 0.01, 0.005);
        }
}

/// A hard edge between two greys, with fine detail on both sides.
Image MakeEdgeWithDetail()
{
    Image image = Image::Allocate(Width, Height, Image::Depth::Bits16);
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            for (int c = 0; c < 4; ++c) {
                const int grey = (x < Width / 2 ? 16000 : 50000) + ((x + y) % 2 ? 600 : -600);
                image.Row16(y)[4 * x + c] = static_cast<std::uint16_t>(c == 3 ? 65535 : grey);
            }
    return image;
}

int MeasureRange(const Image& image, int fromX, int toX)
{
    int least = 65535, most = 0;
    for (int x = fromX; x < toX; ++x) {
        least = std::min(least, int(GetChannel(image, x, 100, 0)));
        most = std::max(most, int(GetChannel(image, x, 100, 0)));
    }
    return most - least;
}

TEST(TextureEffect, reachesDetailFurtherWithTheAmountAndLeavesTheEdge)
{
    const Image source = MakeEdgeWithDetail();
    const int edge = MeasureRange(source, 0, Width);
    // Each side of the edge moves by a twentieth of the range at most, a fourth of what a plain
    // unsharp mask would add here.
    const int most = 2 * 65535 / 20;
    int before = -1000;
    for (const double amount : {-100.0, -50.0, 50.0, 100.0}) {
        const Image result = Renderer().Render(source, MakeSettings({MakeTexture(amount, 0.9)}));
        const int detail = MeasureRange(result, 20, 80);
        EXPECT_GT(detail, before + 300) << amount;
        EXPECT_NEAR(MeasureRange(result, 0, Width), edge, most) << amount;
        before = detail;
    }
}

TEST(SpatialEffects, keepHeadroomBetweenEffects)
{
    const Image source = MakeEdges(Image::Depth::Bits16);
    const auto up = MakeEffect("exposure", {{"stops", 3}});
    const auto down = MakeEffect("exposure", {{"stops", -3}});
    const auto blur = MakeBlur(4);

    const Image direct = Renderer().Render(source, MakeSettings({blur}));
    const Image around = Renderer().Render(source, MakeSettings({up, blur, down}));

    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            for (int c = 0; c < 3; ++c)
                ASSERT_NEAR(GetChannel(around, x, y, c), GetChannel(direct, x, y, c), 2);
}

/// Soft shapes as photographs have them.
Image MakeSoftPicture(int width, int height)
{
    Image image = Image::Allocate(width, height, Image::Depth::Bits16);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c) {
                const double u = double(x) / width;
                const double v = double(y) / height;
                const double wave =
                    std::sin(9 * u + c) * std::cos(7 * v - c) + 0.5 * std::sin(31 * u * v + 2 * c);
                image.Row16(y)[4 * x + c] =
                    static_cast<std::uint16_t>(c == 3 ? 65535 : 32000 + 18000 * wave);
            }
    return image;
}

TEST(SpatialEffects, showTheSameInAPreviewAsInTheFullPicture)
{
    const Image full = MakeSoftPicture(1200, 800);
    const auto settings = MakeSettings({MakeEffect("clarity", {{"amount", 80}, {"radius", 2}}),
                                        MakeEffect("gaussianBlur", {{"radius", 1.5}}),
                                        MakeEffect("sharpen", {{"amount", 100}, {"radius", 0.2}})});
    for (const int scale : {2, 4, 8}) {
        const int width = 1200 / scale;
        const int height = 800 / scale;
        const PixelRect whole{0, 0, 1200, 800};
        RenderOptions options;
        options.area = PictureArea::Whole(1200, 800);
        options.area->scaleX = scale;
        options.area->scaleY = scale;

        const Image preview = Renderer().Render(
            Resize(full, whole, width, height, ResizeQuality::Fine), settings, options);
        const Image exported =
            Resize(Renderer().Render(full, settings), whole, width, height, ResizeQuality::Fine);

        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                ASSERT_NEAR(GetChannel(preview, x, y, 1) / 257.0,
                            GetChannel(exported, x, y, 1) / 257.0, 1.0)
                    << "scale " << scale << " at " << x << ", " << y;
    }
}

TEST(SpatialEffects, aloneAreSpatial)
{
    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const std::string& id = kind.descriptor.effectID;
        const bool isSpatial =
            id == "gaussianBlur" || id == "sharpen" || id == "texture" || id == "clarity";
        EXPECT_EQ(kind.reach == EffectReach::Spatial, isSpatial) << id;
        EXPECT_EQ(static_cast<bool>(kind.createPass), isSpatial) << id;
    }
}

TEST(SpatialEffects, tellWhichNeighboursAPartDependsOn)
{
    const Image whole = MakeEdges(Image::Depth::Bits8);
    const auto effects = MakeSettings({MakeBlur(3), MakeEffect("clarity", {{"amount", 80}})});
    auto area = PictureArea::Whole(Width, Height);
    const int halo = Renderer::FindHalo(effects.Effects(), area);
    ASSERT_GT(halo, 0);
    ASSERT_LT(halo, 50);
    const int side = 2 * halo + 10;
    area.originX = 70;
    area.originY = 20;
    RenderOptions options;
    options.area = area;
    const Image part = Resize(whole, {70, 20, side, side}, side, side, ResizeQuality::Fine);

    const Image result = Renderer().Render(part, effects, options);
    const Image expected = Renderer().Render(whole, effects);

    for (int y = halo; y < halo + 10; ++y)
        for (int x = halo; x < halo + 10; ++x)
            EXPECT_NEAR(GetChannel(result, x, y, 1), GetChannel(expected, x + 70, y + 20, 1), 1);
    EXPECT_EQ(Renderer::FindHalo({MakeEffect("exposure", {{"stops", 1}})}, area), 0);
}

TEST(SpatialEffects, canBeCancelled)
{
    CancelToken cancel;
    cancel.Cancel();
    RenderOptions options;
    options.cancel = &cancel;
    EXPECT_TRUE(Renderer()
                    .Render(MakeEdges(Image::Depth::Bits8), MakeSettings({MakeBlur(4)}), options)
                    .IsNull());
}

TEST(SpatialEffects, drawPicturesOfOnePixelAndOneRow)
{
    const auto settings = MakeSettings({MakeEffect("clarity", {{"amount", 100}, {"radius", 3}}),
                                        MakeEffect("gaussianBlur", {{"radius", 5}}),
                                        MakeEffect("sharpen", {{"amount", 100}, {"radius", 0.2}})});
    const Image dot = MakeRandomPicture(1, 1, Image::Depth::Bits8, 3);
    EXPECT_TRUE(HaveSamePixels(Renderer().Render(dot, settings), dot));
    for (const auto& [width, height] : {std::pair{4000, 1}, std::pair{1, 4000}}) {
        const Image line = MakeRandomPicture(width, height, Image::Depth::Bits8, 3);
        EXPECT_EQ(Renderer().Render(line, settings).GetWidth(), width);
    }
}

} // namespace
} // namespace LumetraHost
