// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"
#include "host/engine/TestSpaces.h"

#include "drawer/render/PreviewPart.h"
#include "image/FrameConversion.h"

#include "Zorvik/Exception.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

using Zorvik::Proc::Frame;
using Zorvik::Proc::FrameTarget;
using Zorvik::Proc::PixelFormat;

FrameTarget MakeTarget(int width, int height, double aspect = 1)
{
    FrameTarget target;
    target.width = width;
    target.height = height;
    target.pixelAspect = aspect;
    return target;
}

struct SizeCase
{
    int photoWidth, photoHeight;
    FrameTarget target;
    int crop, fit;
    int width, height;
    PixelRect part;
};

class PreviewSize : public testing::TestWithParam<SizeCase>
{
};

INSTANTIATE_TEST_SUITE_P(
    Policies, PreviewSize,
    testing::Values(
        // The whole picture, scaled down and up.
        SizeCase{600, 400, MakeTarget(150, 150), 0, 0, 150, 100, {0, 0, 600, 400}},
        SizeCase{60, 40, MakeTarget(150, 150), 0, 0, 150, 100, {0, 0, 60, 40}},
        SizeCase{400, 600, MakeTarget(150, 150), 0, 0, 100, 150, {0, 0, 400, 600}},
        // The whole picture, never enlarged.
        SizeCase{600, 400, MakeTarget(150, 150), 0, 1, 150, 100, {0, 0, 600, 400}},
        SizeCase{60, 40, MakeTarget(150, 150), 0, 1, 60, 40, {0, 0, 60, 40}},
        // The centre, filling the target.
        SizeCase{600, 400, MakeTarget(150, 150), 1, 0, 150, 150, {100, 0, 400, 400}},
        SizeCase{400, 600, MakeTarget(100, 50), 1, 0, 100, 50, {0, 200, 400, 200}},
        SizeCase{60, 40, MakeTarget(150, 150), 1, 0, 150, 150, {10, 0, 40, 40}},
        // The centre, never enlarged: a small photo keeps its size, cropped where it is too large.
        SizeCase{60, 40, MakeTarget(150, 150), 1, 1, 60, 40, {0, 0, 60, 40}},
        SizeCase{600, 40, MakeTarget(150, 150), 1, 1, 150, 40, {225, 0, 150, 40}},
        SizeCase{600, 400, MakeTarget(150, 150), 1, 1, 150, 150, {100, 0, 400, 400}},
        // Other policies count as 1 and 0.
        SizeCase{60, 40, MakeTarget(150, 150), -3, 7, 150, 150, {10, 0, 40, 40}},
        // Pixels twice as wide as high: half as many of them side by side.
        SizeCase{600, 400, MakeTarget(150, 150, 2), 0, 0, 113, 150, {0, 0, 600, 400}},
        SizeCase{60, 40, MakeTarget(150, 150, 2), 0, 1, 30, 40, {0, 0, 60, 40}},
        SizeCase{60, 40, MakeTarget(150, 150, 0.5), 0, 1, 60, 20, {0, 0, 60, 40}},
        // Extreme shapes keep at least one pixel.
        SizeCase{10000, 2, MakeTarget(100, 100), 0, 0, 100, 1, {0, 0, 10000, 2}}));

TEST_P(PreviewSize, followsCropAndFit)
{
    const SizeCase& p = GetParam();
    const PhotoPart preview = MakePreviewPart(p.photoWidth, p.photoHeight, p.target, p.crop, p.fit);
    EXPECT_EQ(preview.width, p.width);
    EXPECT_EQ(preview.height, p.height);
    EXPECT_EQ(preview.part.x, p.part.x);
    EXPECT_EQ(preview.part.y, p.part.y);
    EXPECT_EQ(preview.part.width, p.part.width);
    EXPECT_EQ(preview.part.height, p.part.height);
}

TEST(PreviewPart, aPortraitIsCutAroundTheGivenShareOfItsHeight)
{
    const auto cut = [](int width, int height, double middle) {
        return MakePreviewPart(width, height, MakeTarget(150, 100), 1, 0, middle).part;
    };
    EXPECT_EQ(cut(600, 900, 0.5).y, 250);
    EXPECT_EQ(cut(600, 900, 1.0 / 3).y, 100) << "its middle is at 300";
    EXPECT_EQ(cut(600, 900, 1.0 / 3).height, 400);
    EXPECT_EQ(cut(600, 700, 1.0 / 3).y, 33);
    EXPECT_EQ(cut(600, 610, 0.1).y, 0) << "the photo ends there";
    EXPECT_EQ(cut(600, 601, 1.0 / 3).y, 0);
    EXPECT_EQ(cut(600, 600, 1.0 / 3).y, 100) << "a square has no upper third";
    EXPECT_EQ(cut(600, 450, 1.0 / 3).y, 25) << "nor has a landscape";
}

class Preview : public DrawerFixture
{
protected:
    void ExpectRefused(const FrameTarget& target)
    {
        EXPECT_THROW(m_drawer.RenderPreview(target, MakeSettings({}), 0, 0, 0), Zorvik::Exception);
    }
};

unsigned GetByte(const Frame& frame, int x, int y, int channel)
{
    return frame.pixels[static_cast<std::size_t>(y) * frame.stride +
                        static_cast<std::size_t>(4 * x + channel)];
}

int CountDifferences(const Frame& first, const Frame& second)
{
    int differences = 0;
    for (int y = 0; y < first.height; ++y)
        for (int x = 0; x < first.width; ++x)
            for (int channel = 0; channel < 4; ++channel)
                differences += GetByte(first, x, y, channel) != GetByte(second, x, y, channel);
    return differences;
}

TEST_F(Preview, isNullWithoutAPhoto)
{
    m_drawer.SetPhoto(Image());
    EXPECT_TRUE(m_drawer.RenderPreview(MakeTarget(10, 10), MakeSettings({}), 0, 0, 0).IsNull());
}

TEST_F(Preview, refusesTargetsWithoutPixels)
{
    ExpectRefused(MakeTarget(0, 10));
    ExpectRefused(MakeTarget(10, -1));
    ExpectRefused(MakeTarget(10, 10, 0));
    ExpectRefused(MakeTarget(10, 10, std::nan("")));
}

TEST_F(Preview, hasTheSizeAndAspectOfTheTarget)
{
    const Frame frame = m_drawer.RenderPreview(MakeTarget(45, 40, 2), MakeSettings({}), 1, 0, 0);
    EXPECT_EQ(frame.width, 45);
    EXPECT_EQ(frame.height, 40);
    EXPECT_EQ(frame.pixelAspect, 2);
    EXPECT_EQ(frame.format, PixelFormat::Rgba8Premultiplied);
}

TEST_F(Preview, showsTheEffectsOnTheCommittedPhotoOnly)
{
    const auto effects = MakeSettings({MakeEffect("exposure", {{"stops", -1}})}, 60);
    const auto package = MakePackage("a", 0, 2);
    Apply(package);
    const Frame before = m_drawer.RenderPreview(MakeTarget(90, 60), effects, 0, 0, 0);
    Commit();
    const Frame after = m_drawer.RenderPreview(MakeTarget(90, 60), effects, 0, 0, 0);

    EXPECT_EQ(CountDifferences(before, ImageToFrame(Renderer().Render(m_photo, effects))), 0);
    EXPECT_EQ(CountDifferences(after, ImageToFrame(Renderer().Render(Draw({package}), effects))),
              0);
}

TEST_F(Preview, isSrgbWhateverTheSpaceOfThePhoto)
{
    const auto effects = MakeSettings({MakeEffect("saturation", {{"amount", 40}})});
    for (const TestSpace& space : GetTestSpaces()) {
        const Image photo = InSpace(MakeRandomPicture(90, 60, Image::Depth::Bits8, 4), space.space);
        m_drawer.SetPhoto(photo);

        const Frame frame = m_drawer.RenderPreview(MakeTarget(90, 60), effects, 0, 0, 0);

        const Image srgb = Renderer().ToSrgb(Renderer().Render(photo, effects));
        EXPECT_EQ(CountDifferences(frame, ImageToFrame(srgb)), 0) << space.name;
    }
}

TEST_F(Preview, isTheSameWhetherTheScaledPhotoWasKeptOrNot)
{
    const auto effects = MakeSettings({MakeEffect("contrast", {{"amount", 50}})});
    const auto render = [&](int size, unsigned flags) {
        return m_drawer.RenderPreview(MakeTarget(size, size), effects, 1, 0, flags);
    };
    const Frame first = render(25, 0);
    EXPECT_EQ(CountDifferences(render(25, 0), first), 0);
    EXPECT_GT(CountDifferences(render(25, 1), first), 0);
    for (int size = 5; size < 12; ++size)
        render(size, 0);
    EXPECT_EQ(CountDifferences(render(25, 0), first), 0);
}

TEST_F(Preview, putsPositionalEffectsWhereTheyAreInTheWholePhoto)
{
    Image grey = Image::Allocate(400, 200, Image::Depth::Bits8);
    for (int y = 0; y < 200; ++y)
        std::fill_n(grey.Row(y), 1600, static_cast<std::uint8_t>(255));
    m_drawer.SetPhoto(grey);
    const auto vignette =
        MakeSettings({MakeEffect("vignette", {{"amount", -4}, {"size", 20}, {"roundness", 30}})});
    const Image whole = Renderer().Render(grey, vignette);

    const Frame crop = m_drawer.RenderPreview(MakeTarget(100, 100), vignette, 1, 0, 0);
    const Frame fit = m_drawer.RenderPreview(MakeTarget(100, 100), vignette, 0, 0, 0);

    EXPECT_NEAR(GetByte(crop, 0, 0, 0), GetChannel(whole, 100, 0, 0), 3);
    EXPECT_NEAR(GetByte(crop, 99, 50, 0), GetChannel(whole, 299, 100, 0), 3);
    EXPECT_NEAR(GetByte(fit, 0, 0, 0), GetChannel(whole, 2, 2, 0), 3);
    EXPECT_NEAR(GetByte(fit, 80, 10, 0), GetChannel(whole, 322, 42, 0), 3);
}

TEST_F(Preview, isPremultipliedFloatForA16BitPhoto)
{
    Image photo = Image::Allocate(2, 1, Image::Depth::Bits16);
    const std::uint16_t pixels[] = {65535, 32768, 0, 32768, 1, 2, 3, 0};
    std::copy(std::begin(pixels), std::end(pixels), photo.Row16(0));
    m_drawer.SetPhoto(photo);

    const Frame frame = m_drawer.RenderPreview(MakeTarget(2, 1), MakeSettings({}), 0, 0, 0);

    ASSERT_EQ(frame.format, PixelFormat::RgbaFloatPremultiplied);
    const auto* const row = reinterpret_cast<const float*>(frame.pixels.get());
    EXPECT_NEAR(row[0], 0.5, 1e-4);
    EXPECT_NEAR(row[1], 0.25, 1e-4);
    EXPECT_EQ(row[2], 0);
    EXPECT_NEAR(row[3], 0.5, 1e-4);
    EXPECT_EQ(row[4], 0);
}

TEST(FrameConversion, premultipliesBytesToTheNearest)
{
    Image image = Image::Allocate(2, 1, Image::Depth::Bits8);
    const std::uint8_t pixels[] = {255, 100, 1, 128, 200, 50, 25, 255};
    std::copy(std::begin(pixels), std::end(pixels), image.Row(0));

    const Frame frame = ImageToFrame(image);

    const unsigned expected[] = {128, 50, 1, 128, 200, 50, 25, 255};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(frame.pixels[i], expected[i]) << i;
}

} // namespace
} // namespace LumetraHost
