// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"
#include "host/drawer/GatedEffect.h"

#include "drawer/render/LayerRenderer.h"
#include "image/ImagePool.h"

#include <algorithm>
#include <cstdlib>

namespace LumetraHost {
namespace {

class Layers : public DrawerFixture
{
protected:
    Layers() { m_layers.SetSource(m_photo); }

    /// Its effect is read once whenever it is drawn.
    Layer MakeLayer(double stops, int blendAmount = 1) const
    {
        const Zorvik::Quindle::EffectList effects{new GatedEffect(stops, m_drawings)};
        return {std::make_shared<Zorvik::Quindle::EffectsSettings>(
                    MakePackage("a", 0, effects, blendAmount)),
                std::nullopt};
    }

    Image DrawLayers(const std::vector<Layer>& layers)
    {
        Image picture = m_photo;
        for (const Layer& layer : layers) {
            if (layer.paintedBlend)
                picture = m_renderer.Interpolate(
                    picture, m_renderer.Render(picture, layer.settings->Effects(), 1),
                    *layer.paintedBlend);
            else
                picture = m_renderer.Render(picture, *layer.settings);
        }
        return picture;
    }

    /// Renders all layers, compares with drawing them one by one, and returns how many effects
    /// were drawn.
    int Render(const std::vector<Layer>& layers)
    {
        const int before = m_drawings->CountOwnReadings();
        const Image picture = m_layers.Render(layers, layers.size());
        const int drawn = m_drawings->CountOwnReadings() - before;
        EXPECT_TRUE(HaveSamePixels(picture, DrawLayers(layers)));
        return drawn;
    }

    const EffectGatePtr m_drawings = std::make_shared<EffectGate>();

    const Renderer m_renderer;
    LayerRenderer m_layers{m_renderer};
    const Layer m_a = MakeLayer(0.5);
    const Layer m_b = MakeLayer(-0.3);
    const Layer m_c = MakeLayer(0.2);
};

TEST_F(Layers, areDrawnOnce)
{
    EXPECT_EQ(Render({m_a, m_b, m_c}), 3);
    EXPECT_EQ(Render({m_a, m_b, m_c}), 0);
}

TEST_F(Layers, belowTheTopAreNotDrawnAgainWhenItChanges)
{
    Render({m_a, m_b, m_c});
    EXPECT_EQ(Render({m_a, m_b, MakeLayer(1)}), 1);
    EXPECT_EQ(Render({m_a, m_b, MakeLayer(2)}), 1);
    EXPECT_EQ(Render({m_a, m_b}), 0);
    EXPECT_EQ(Render({m_a, m_b, m_c}), 1);
}

TEST_F(Layers, belowTheOneThatChangesAreNotDrawnAgain)
{
    Render({m_a, m_b, m_c});
    Render({m_a, MakeLayer(1), m_c});
    EXPECT_EQ(Render({m_a, MakeLayer(2), m_c}), 2);
    EXPECT_EQ(Render({m_a, MakeLayer(3), m_c}), 2);
}

TEST_F(Layers, whoseBlendIsDraggedDrawTheirEffectOnce)
{
    const Layer package = MakeLayer(1, 60);
    Render({m_a, package});
    Render({m_a, {package.settings, 10}});
    m_layers.Render({m_a, {package.settings, 20}}, 2);
    EXPECT_EQ(Render({m_a, {package.settings, 200}}), 0);
    EXPECT_EQ(Render({m_a, {package.settings, 1}}), 0);
    EXPECT_EQ(Render({m_a, {package.settings, 255}}), 0);
    EXPECT_EQ(Render({m_a, package}), 1);
}

TEST_F(Layers, keepNoFullEffectOfAnotherStack)
{
    const Layer package = MakeLayer(1, 60);
    Render({m_a, {package.settings, 10}});
    Render({m_b, {package.settings, 10}});
    Render({{package.settings, 10}});
    Render({m_a, m_b, {package.settings, 10}});
}

TEST_F(Layers, useTheFullEffectThatWasShownBefore)
{
    Render({m_b, m_a});
    EXPECT_EQ(Render({m_b, {m_a.settings, 100}}), 0);
    EXPECT_EQ(Render({m_b, {m_a.settings, 1}}), 0);
    Render({m_b, m_a});
}

TEST_F(Layers, areAskedForInPart)
{
    const std::vector<Layer> all = {m_a, m_b, m_c};
    Render(all);
    EXPECT_TRUE(HaveSamePixels(m_layers.Render(all, 1), DrawLayers({m_a})));
    EXPECT_TRUE(m_layers.Render(all, 0).SharesPixelsWith(m_photo));
    EXPECT_EQ(Render(all), 0);
}

TEST_F(Layers, thatWereCancelledAreDrawnByTheNextCall)
{
    CancelToken cancel;
    cancel.Cancel();
    EXPECT_TRUE(m_layers.Render({m_a, m_b}, 2, &cancel).IsNull());
    EXPECT_EQ(Render({m_a, m_b}), 2);
}

TEST_F(Layers, areDrawnFromTablesAboveWhatIsFinished)
{
    Render({m_a, m_b, m_c});
    const Layer changed = MakeLayer(1.1);
    const Image quick = m_layers.RenderFromTables({m_a, m_b, changed});
    const Image exact = DrawLayers({m_a, m_b, changed});
    ASSERT_FALSE(quick.IsNull());
    int largest = 0;
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 90; ++x)
            for (int channel = 0; channel < 4; ++channel)
                largest = std::max(largest, std::abs(int(GetChannel(quick, x, y, channel)) -
                                                     int(GetChannel(exact, x, y, channel))));
    EXPECT_LE(largest, 2);
    // The next rendering does not take it for the exact picture.
    EXPECT_EQ(Render({m_a, m_b, changed}), 1);
}

TEST_F(Layers, ofMoreThanColoursAreNotDrawnFromTables)
{
    const Layer vignette{std::make_shared<Zorvik::Quindle::EffectsSettings>(
                             MakePackage("a", 0, {MakeEffect("vignette", {{"amount", -1}})})),
                         std::nullopt};
    EXPECT_TRUE(m_layers.RenderFromTables({m_a, vignette}).IsNull());
    Render({m_a, vignette});
    EXPECT_FALSE(m_layers.RenderFromTables({m_a, vignette, m_b}).IsNull());
}

TEST_F(Layers, forInteractionAreTheSame)
{
    LayerRenderer interactive(m_renderer, LayerUse::Interaction);
    interactive.SetSource(m_photo);
    Image shown;
    const Layer panel = MakeLayer(0.9, 40);
    const std::vector<std::vector<Layer>> states = {
        {m_a, panel},          {m_a, {panel.settings, 30}}, {m_a, {panel.settings, 200}},
        {m_a, panel, m_b},     {m_a, MakeLayer(0.8), m_b},  {m_a, MakeLayer(0.7), m_b},
        {MakeLayer(0.1), m_b}, {MakeLayer(0.2), m_b},       {m_b},
        {m_b, panel},          {m_b, {panel.settings, 99}}, {m_b, panel}};
    for (const auto& layers : states) {
        shown = interactive.Render(layers, layers.size());
        EXPECT_TRUE(HaveSamePixels(shown, DrawLayers(layers)));
    }
}

TEST_F(Layers, ofASourceThatIsNullAreNull)
{
    m_layers.SetSource(Image());
    EXPECT_TRUE(m_layers.Render({m_a}, 1).IsNull());
}

TEST(PoolOfImages, givesBackWhatNobodyHolds)
{
    ImagePool pool(2);
    Image picture = Image::Allocate(4, 3, Image::Depth::Bits8);
    const auto* const pixels = picture.Row(0);
    pool.Remember(picture);
    pool.Remember(picture);
    EXPECT_TRUE(pool.Take(4, 3, Image::Depth::Bits8).IsNull());
    picture = Image();
    EXPECT_TRUE(pool.Take(3, 4, Image::Depth::Bits8).IsNull());
    EXPECT_TRUE(pool.Take(4, 3, Image::Depth::Bits16).IsNull());
    Image taken = pool.Take(4, 3, Image::Depth::Bits8);
    EXPECT_EQ(static_cast<const Image&>(taken).Row(0), pixels);
    EXPECT_TRUE(taken.IsSoleOwner());
    EXPECT_TRUE(pool.Take(4, 3, Image::Depth::Bits8).IsNull());
}

TEST(PoolOfImages, forgetsTheOldestBeyondItsCapacity)
{
    ImagePool pool(1);
    Image first = Image::Allocate(4, 3, Image::Depth::Bits8);
    pool.Remember(first);
    pool.Remember(Image::Allocate(5, 3, Image::Depth::Bits8));
    EXPECT_TRUE(first.IsSoleOwner());
    EXPECT_FALSE(pool.Take(5, 3, Image::Depth::Bits8).IsNull());
}

} // namespace
} // namespace LumetraHost
