// SPDX-License-Identifier: GPL-2.0-or-later
// Effects of the shipped looks on the sample photo and on patches of skin.
#include "CatalogueFixture.h"
#include "PictureChange.h"
#include "SkinChart.h"
#include "image/Resize.h"
#include "photo/PhotoReader.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace LumetraPlugin;
using LumetraHost::Image;
using LumetraTests::PictureChange;
using LumetraTests::SkinChart;

namespace {

// Mean difference to the photo, in steps of 8 bits over all channels.
constexpr double LeastChange = 2.5;
constexpr double MostChange = 60;
// Mean difference between two looks. The smallest that is seen side by side.
constexpr double LeastDistance = 1.5;
// Shares of the picture that a look may drown or burn beyond what the photo has.
constexpr double MostClipped = 0.03;
constexpr double MostDrowned = 0.04;
// Hues in degrees. Skin of all tones lies between red and yellow; it is reddish below 5, sallow
// above 50.
constexpr double RedmostSkin = 5;
constexpr double YellowmostSkin = 50;

class CatalogueLooksTest : public CatalogueFixture
{
protected:
    /// The photo, small, since every look is drawn on it; large enough for skies and shadows to
    /// count.
    static Image ReadSample()
    {
        const Image photo =
            LumetraHost::PhotoReader::Read(QStringLiteral(LUMETRA_SAMPLE_PHOTO)).image;
        constexpr int width = 300;
        const int height = photo.GetHeight() * width / photo.GetWidth();
        return LumetraHost::Resize(photo, {0, 0, photo.GetWidth(), photo.GetHeight()}, width,
                                   height, LumetraHost::ResizeQuality::Fine);
    }
};

} // namespace

TEST_F(CatalogueLooksTest, everyLookIsSeenAndNoneBreaksThePhoto)
{
    const Image photo = ReadSample();
    for (const QModelIndex& preset : Presets()) {
        const PictureChange change(photo, Draw(preset, photo));
        EXPECT_GE(change.mean, LeastChange) << NameOf(preset);
        EXPECT_LE(change.mean, MostChange) << NameOf(preset);
        EXPECT_LE(change.newlyClipped, MostClipped) << NameOf(preset);
        EXPECT_LE(change.newlyDrowned, MostDrowned) << NameOf(preset);
    }
}

TEST_F(CatalogueLooksTest, noTwoLooksAreTheSame)
{
    const Image photo = ReadSample();
    const auto presets = Presets();
    std::vector<Image> looks;
    for (const QModelIndex& preset : presets)
        looks.push_back(Draw(preset, photo));

    for (std::size_t i = 0; i < looks.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_GE(PictureChange(looks[i], looks[j]).mean, LeastDistance)
                << NameOf(presets[i]) << " and " << NameOf(presets[j]);
}

TEST_F(CatalogueLooksTest, everyLookIsSeenOnSkin)
{
    const SkinChart chart;
    for (const QModelIndex& preset : Presets()) {
        const Image look = Draw(preset, chart.GetImage());
        int largest = 0;
        for (std::size_t tone = 0; tone < SkinChart::Tones.size(); ++tone) {
            const auto color = SkinChart::ColorIn(look, tone);
            for (std::size_t channel = 0; channel < 3; ++channel)
                largest =
                    std::max(largest, std::abs(color[channel] - SkinChart::Tones[tone][channel]));
        }
        EXPECT_GE(largest, 8) << NameOf(preset);
    }
}

TEST_F(CatalogueLooksTest, skinStaysSkin)
{
    const SkinChart chart;
    for (const QString& group : {QStringLiteral("Portrait"), QStringLiteral("Landscape")}) {
        for (const QModelIndex& preset : Presets(GroupNamed(group))) {
            const Image look = Draw(preset, chart.GetImage());
            for (std::size_t tone = 0; tone < SkinChart::Tones.size(); ++tone) {
                const auto color = SkinChart::ColorIn(look, tone);
                const std::string place = NameOf(preset) + ", " + SkinChart::Describe(look, tone);
                EXPECT_GT(color[0], color[1]) << place; // red over green over blue
                EXPECT_GT(color[1], color[2]) << place;
                EXPECT_GT(color[2], 8) << place; // neither drowned nor burnt
                EXPECT_LT(color[1], 250) << place;
            }
        }
    }
}

TEST_F(CatalogueLooksTest, portraitsKeepTheHueOfSkin)
{
    const SkinChart chart;
    for (const QModelIndex& preset : Presets(GroupNamed(QStringLiteral("Portrait")))) {
        const Image look = Draw(preset, chart.GetImage());
        for (std::size_t tone = 0; tone < SkinChart::Tones.size(); ++tone) {
            const std::string place = NameOf(preset) + ", " + SkinChart::Describe(look, tone);
            EXPECT_GE(SkinChart::HueIn(look, tone), RedmostSkin) << place;
            EXPECT_LE(SkinChart::HueIn(look, tone), YellowmostSkin) << place;
        }
    }
}

TEST_F(CatalogueLooksTest, blackAndWhiteIsWithoutColorOrOfOneTone)
{
    const SkinChart chart;
    for (const QModelIndex& preset : Presets(GroupNamed(QStringLiteral("Black and White")))) {
        const Image look = Draw(preset, chart.GetImage());
        for (std::size_t tone = 0; tone < SkinChart::Tones.size(); ++tone) {
            const auto color = SkinChart::ColorIn(look, tone);
            EXPECT_GE(color[0], color[1]) << NameOf(preset);
            EXPECT_GE(color[1], color[2]) << NameOf(preset);
            EXPECT_LE(color[0] - color[1], 24) << NameOf(preset);
        }
    }
}
