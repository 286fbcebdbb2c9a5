// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportLook.h"

#include "host/engine/TestPictures.h"

#include "exporting/Export.h"
#include "photo/PhotoReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <future>
#include <memory>

using namespace LumetraHost;
using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectsSettings;

namespace {

using Packages = std::vector<EffectsSettings>;

constexpr int Side = 1000; ///< of the smallest picture that gets tables

EffectList MakeColours()
{
    return {MakeEffect("exposure", {{"stops", 0.4}}),
            MakeEffect("whiteBalance", {{"temperature", 7000}}),
            MakeEffect("contrast", {{"amount", 20}}), MakeEffect("saturation", {{"amount", 30}}),
            MakeEffect("liftGammaGain", {{"slopeRed", 1.05}, {"powerGreen", 0.95}})};
}

std::vector<ExportLook::Layer> GetLayers(const ExportLook& look, int side = Side,
                                         bool is8Bit = true)
{
    return look.GetLayers({side, side}, is8Bit, ThreadPool::GetShared(), nullptr);
}

bool HasTable(const EffectList& effects)
{
    return GetLayers(ExportLook({MakeSettings(effects)})).front().table != nullptr;
}

Image Draw(const Photo& photo, const Packages& packages, ExportLook::Precision precision)
{
    ExportRecipe recipe;
    recipe.look = std::make_shared<ExportLook>(packages, precision);
    recipe.format = PhotoFormat::Png;
    return PhotoReader::Decode(Export().MakeFromPhoto(photo, recipe, "out.png").file, "out.png")
        .image;
}

int FindLargestDifference(const Image& first, const Image& second)
{
    int largest = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int i = 0; i < Image::Channels * first.GetWidth(); ++i)
            largest = std::max(largest, std::abs(int(first.Row(y)[i]) - int(second.Row(y)[i])));
    return largest;
}

} // namespace

TEST(ExportLook, makesATableOfARunOfColours)
{
    const auto layers = GetLayers(ExportLook({MakeSettings(MakeColours(), 90)}));

    ASSERT_EQ(layers.size(), 1u);
    EXPECT_TRUE(layers.front().table);
    EXPECT_TRUE(layers.front().effects.empty());
    EXPECT_EQ(layers.front().blendAmount, 90);
}

TEST(ExportLook, leavesWhatFollowsTheColoursAsEffects)
{
    EffectList effects = MakeColours();
    effects.push_back(MakeEffect("vignette", {{"amount", -1}}));
    effects.push_back(MakeEffect("exposure", {{"stops", 1}}));

    const auto layers = GetLayers(ExportLook({MakeSettings(effects)}));

    EXPECT_TRUE(layers.front().table);
    ASSERT_EQ(layers.front().effects.size(), 2u);
    EXPECT_EQ(layers.front().effects.front()->GetEffectID(), "vignette");
    EXPECT_EQ(layers.front().effects.back()->GetEffectID(), "exposure");
}

// Neighbours that are drawn as one count as one.
TEST(ExportLook, makesNoTableOfFewStages)
{
    EffectList shorter = MakeColours();
    shorter.pop_back();
    EXPECT_FALSE(HasTable(shorter));
    EXPECT_FALSE(HasTable(
        {MakeEffect("contrast", {{"amount", 10}}), MakeEffect("contrast", {{"amount", 20}}),
         MakeEffect("contrast", {{"amount", 30}}), MakeEffect("contrast", {{"amount", 40}}),
         MakeEffect("liftGammaGain", {{"powerGreen", 0.95}})}));
    EXPECT_FALSE(HasTable({MakeEffect("exposure", {{"stops", 1}})}));
    EXPECT_FALSE(HasTable({MakeEffect("exposure", {{"stops", 1}}),
                           MakeEffect("whiteBalance", {{"temperature", 7000}})}));
    EXPECT_FALSE(HasTable({}));
}

TEST(ExportLook, makesNoTableBehindEffectsThatLookAtMoreThanTheColour)
{
    EffectList effects = MakeColours();
    effects.insert(effects.begin(), MakeEffect("grain", {{"amount", 20}}));

    const auto layers = GetLayers(ExportLook({MakeSettings(effects)}));

    EXPECT_FALSE(layers.front().table);
    EXPECT_EQ(layers.front().effects.size(), effects.size());
}

TEST(ExportLook, makesNoTableForSmallPicturesThoseOf16BitsAndExactDrawing)
{
    const Packages packages{MakeSettings(MakeColours())};
    const auto isExact = [](const std::vector<ExportLook::Layer>& layers) {
        return !layers.front().table && layers.front().effects.size() == MakeColours().size();
    };

    EXPECT_TRUE(isExact(GetLayers(ExportLook(packages), Side - 1)));
    EXPECT_TRUE(isExact(GetLayers(ExportLook(packages), Side, false)));
    EXPECT_TRUE(isExact(GetLayers(ExportLook(packages, ExportLook::Precision::Exact))));
}

TEST(ExportLook, leavesPackagesOutThatShowTheSourceAlone)
{
    const ExportLook look({MakeSettings(MakeColours(), 255), MakeSettings(MakeColours(), 254)});
    EXPECT_EQ(GetLayers(look).size(), 1u);
}

TEST(ExportLook, makesATableOnceForAllPhotos)
{
    const ExportLook look({MakeSettings(MakeColours())});
    auto other = std::async(std::launch::async, [&look] { return GetLayers(look); });
    const auto layers = GetLayers(look);
    EXPECT_EQ(other.get().front().table, layers.front().table);
    EXPECT_EQ(GetLayers(look, 2 * Side).front().table, layers.front().table);
}

TEST(ExportLook, makesTheTableLaterWhenItWasCancelled)
{
    const ExportLook look({MakeSettings(MakeColours())});
    CancelToken cancel;
    cancel.Cancel();
    EXPECT_FALSE(
        look.GetLayers({Side, Side}, true, ThreadPool::GetShared(), &cancel).front().table);
    EXPECT_TRUE(GetLayers(look).front().table);
}

TEST(ExportLook, drawsWithinAStepOfTheExactPicture)
{
    Photo photo;
    photo.image = MakeRandomPicture(Side, Side, Image::Depth::Bits8, 11);
    for (const int blendAmount : {1, 100}) {
        const Packages packages{MakeSettings(MakeColours(), blendAmount)};
        const Image exact = Draw(photo, packages, ExportLook::Precision::Exact);
        const Image tabled = Draw(photo, packages, ExportLook::Precision::Tables);
        EXPECT_LE(FindLargestDifference(exact, tabled), 1) << blendAmount;
        EXPECT_GT(FindLargestDifference(photo.image, tabled), 10);
    }
}
