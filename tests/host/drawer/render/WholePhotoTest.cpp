// SPDX-License-Identifier: GPL-2.0-or-later
// Effects that look at the whole photo, drawn where only a part of it is to be seen.
#include "host/drawer/DrawerFixture.h"
#include "host/engine/ReferenceHaze.h"

#include "drawer/render/PartRenderer.h"
#include "drawer/render/PreviewRenderer.h"
#include "engine/effects/dehaze/HazeMap.h"
#include "image/FrameConversion.h"
#include "image/Resize.h"

#include <cstring>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

class WholePhoto : public DrawerFixture
{
protected:
    WholePhoto()
    {
        m_drawer.SetPhoto(m_hazy);
        Apply(MakePackage("a", 0, {MakeEffect("exposure", {{"stops", -0.4}})}, 60));
        Apply(MakePackage("b", 1, {MakeEffect("saturation", {{"amount", 20}}), MakeDehaze(70)}));
    }

    static Zorvik::Quindle::EffectPtr MakeDehaze(double amount)
    {
        return MakeEffect("dehaze", {{"amount", amount}});
    }

    Image DrawPart(const PictureRecipe& recipe, const PhotoPart& part, LayerUse use)
    {
        return PartRenderer(m_renderer, use).Render(recipe, part, nullptr);
    }

    const Renderer m_renderer;
    const Image m_hazy = MakeHazyPicture(900, 640, Image::Depth::Bits8, 0.8);
};

TEST_F(WholePhoto, isKnownToPartsAtFullSize)
{
    const PictureRecipe recipe = m_drawer.GetRecipe();
    const PixelRect all{0, 0, 900, 640};
    const PixelRect cut{321, 77, 300, 200};
    for (const LayerUse use : {LayerUse::Once, LayerUse::Interaction}) {
        const Image whole = DrawPart(recipe, {all, 900, 640}, use);
        const Image part = DrawPart(recipe, {cut, 300, 200}, use);
        EXPECT_TRUE(HaveSamePixels(part, Resize(whole, cut, 300, 200, ResizeQuality::Fine)));
    }
}

TEST_F(WholePhoto, isMadeFromThePhotoWhereTheRecipeHasNone)
{
    PictureRecipe recipe = m_drawer.GetRecipe();
    ASSERT_TRUE(recipe.whole);
    const PhotoPart part{{100, 100, 300, 200}, 150, 100};
    const Image expected = DrawPart(recipe, part, LayerUse::Once);
    recipe.whole = nullptr;
    EXPECT_TRUE(HaveSamePixels(DrawPart(recipe, part, LayerUse::Once), expected));
}

// While a slider is dragged, the picture below the changed effect is kept.
TEST_F(WholePhoto, isSeenAnewWhenEffectsBelowAreDragged)
{
    PartRenderer canvas(m_renderer, LayerUse::Interaction);
    const PhotoPart part{{100, 100, 300, 200}, 300, 200};
    for (const double stops : {-0.4, -0.6, 0.3})
        for (const double amount : {70.0, 30.0, -50.0}) {
            Apply(MakePackage("b", 1,
                              {MakeEffect("exposure", {{"stops", stops}}), MakeDehaze(amount),
                               MakeEffect("contrast", {{"amount", 10}})}));
            const PictureRecipe recipe = m_drawer.GetRecipe();
            EXPECT_TRUE(HaveSamePixels(canvas.Render(recipe, part, nullptr),
                                       DrawPart(recipe, part, LayerUse::Once)))
                << stops << " stops, amount " << amount;
        }
}

TEST_F(WholePhoto, isKnownToPreviewsOfItsCentre)
{
    Zorvik::Proc::FrameTarget target;
    target.width = target.height = 160;
    PreviewPolicies policies;
    const auto look = MakePackage("c", 2, {MakeDehaze(50)});
    const auto preview =
        PreviewRenderer(m_renderer).Render(m_drawer.GetRecipe(), target, look, policies);

    Apply(look);
    const PhotoPart centre = MakePreviewPart(900, 640, target, policies.crop, policies.fit);
    const Image expected = DrawPart(m_drawer.GetRecipe(), centre, LayerUse::Once);

    const auto frame = ImageToFrame(expected);
    ASSERT_EQ(preview.width, frame.width);
    ASSERT_EQ(preview.height, frame.height);
    ASSERT_EQ(preview.stride, frame.stride);
    const std::size_t row = std::size_t{4} * static_cast<std::size_t>(frame.width);
    for (std::size_t y = 0; y < static_cast<std::size_t>(frame.height); ++y)
        EXPECT_EQ(
            std::memcmp(&preview.pixels[y * frame.stride], &frame.pixels[y * frame.stride], row), 0)
            << y;
}

} // namespace
} // namespace LumetraHost
