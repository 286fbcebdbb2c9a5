// SPDX-License-Identifier: GPL-2.0-or-later
// The shipped looks, at the intensities that they start with, on photographs of what people take
// photographs of: sky, skin, snow, night, foliage, an interior.
#include "CatalogueFixture.h"
#include "Photographs.h"
#include "Settings/SliderSetting.h"
#include "host/engine/ColourDifference.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace LumetraPlugin;
using LumetraHost::GetColourDifference;
using LumetraHost::Image;
using LumetraHost::LabColour;
using LumetraTests::Photograph;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

/// Pixels along the longer side of a photograph; enough for tones and colours, and quick.
constexpr int LongestSide = 200;
// Every look takes the same pixels, an odd number apart so that they fall into all columns.
constexpr int PixelStep = 7;
/// The least mean of CIEDE2000 over all photographs between two looks, and to the photographs.
constexpr double LeastDifference = 4;
/// The largest share of pixels with a channel that has newly reached an end of its range.
constexpr double MostClipped = 0.04;
/// Side of the blocks in which a JPEG file stores its picture.
constexpr int Block = 8;
/// The most by which a look may multiply the differences between the blocks of a stored sky.
constexpr double MostRoughened = 1.6;
/// The largest distance between two channels of a light grey, in steps of 8 bits.
constexpr int MostCast = 12;

LabColour LabOf(const std::uint8_t* pixel)
{
    return LumetraHost::ToLab({pixel[0] / 255.0, pixel[1] / 255.0, pixel[2] / 255.0});
}

void AppendColours(const Image& picture, std::vector<LabColour>& colours)
{
    int skipped = 0;
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x)
            if (skipped++ % PixelStep == 0)
                colours.push_back(LabOf(picture.Row(y) + 4 * x));
}

double MeanDifference(const std::vector<LabColour>& first, const std::vector<LabColour>& second)
{
    double sum = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        sum += GetColourDifference(first[i], second[i]);
    return sum / static_cast<double>(first.size());
}

bool HasNewlyClipped(const std::uint8_t* before, const std::uint8_t* after)
{
    for (int channel = 0; channel < 3; ++channel) {
        const bool isDrowned = after[channel] == 0 && before[channel] != 0;
        const bool isBurnt = after[channel] == 255 && before[channel] != 255;
        if (isDrowned || isBurnt)
            return true;
    }
    return false;
}

int CountNewlyClipped(const Image& before, const Image& after)
{
    int count = 0;
    for (int y = 0; y < before.GetHeight(); ++y)
        for (int x = 0; x < before.GetWidth(); ++x)
            if (HasNewlyClipped(before.Row(y) + 4 * x, after.Row(y) + 4 * x))
                ++count;
    return count;
}

/// The mean colour of a block, in steps.
std::array<double, 3> MeanOfBlock(const Image& picture, int left, int top)
{
    std::array<double, 3> sum{};
    for (int y = top; y < top + Block; ++y)
        for (int x = left; x < left + Block; ++x)
            for (std::size_t channel = 0; channel < 3; ++channel)
                sum[channel] += picture.Row(y)[4 * x + static_cast<int>(channel)];
    for (double& channel : sum)
        channel /= Block * Block;
    return sum;
}

/// How far colours of neighbouring blocks are apart, the root of the mean square.
double RoughnessOf(const Image& picture)
{
    double sum = 0;
    int count = 0;
    for (int y = 0; y + Block <= picture.GetHeight(); y += Block)
        for (int x = 0; x + 2 * Block <= picture.GetWidth(); x += Block) {
            const auto first = MeanOfBlock(picture, x, y);
            const auto second = MeanOfBlock(picture, x + Block, y);
            for (std::size_t channel = 0; channel < 3; ++channel)
                sum += (first[channel] - second[channel]) * (first[channel] - second[channel]);
            ++count;
        }
    return std::sqrt(sum / count);
}

/// A picture of one grey, large enough for no vignette to reach its centre.
Image MakeGrey(std::uint8_t level)
{
    Image image = Image::Allocate(40, 40, Image::Depth::Bits8);
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x) {
            std::uint8_t* const pixel = image.Row(y) + 4 * x;
            std::fill(pixel, pixel + 3, level);
            pixel[3] = 255;
        }
    return image;
}

class LooksOnPhotographsTest : public CatalogueFixture
{
protected:
    /// The colours of a look on all photographs.
    std::vector<LabColour> ColoursOf(const QModelIndex& preset,
                                     const std::vector<Photograph>& photographs)
    {
        std::vector<LabColour> colours;
        for (const Photograph& photograph : photographs)
            AppendColours(Draw(preset, photograph.picture), colours);
        return colours;
    }

    /// The photo with the preset on it, without its grain and its vignette.
    Image DrawColours(const QModelIndex& preset, const Image& photo)
    {
        session.OpenPhoto(photo);
        auto sliders = preset.data(Model::SettingsValuesRole).value<SliderSetting::List>();
        for (SliderSetting& slider : sliders)
            if (slider.EffectID() == "grain" || slider.EffectID() == "vignette")
                slider.SetValue(0);
        session.GetModel().setData(preset, QVariant::fromValue(sliders), Model::SettingsValuesRole);
        session.GetModel().setData(preset, true, Model::AppliedRole);
        return LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer());
    }
};

} // namespace

TEST_F(LooksOnPhotographsTest, anyTwoLooksAreToldApartAndEachFromThePhotographs)
{
    const auto photographs = LumetraTests::ReadPhotographs(LongestSide);
    std::vector<std::string> names{"the photographs"};
    std::vector<std::vector<LabColour>> looks(1);
    for (const Photograph& photograph : photographs)
        AppendColours(photograph.picture, looks.front());
    for (const QModelIndex& preset : Presets()) {
        names.push_back(NameOf(preset));
        looks.push_back(ColoursOf(preset, photographs));
    }
    ASSERT_EQ(looks.size(), 65U);
    for (std::size_t i = 0; i < looks.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_GE(MeanDifference(looks[i], looks[j]), LeastDifference)
                << names[i] << " and " << names[j];
}

TEST_F(LooksOnPhotographsTest, noLookClipsMuchThatThePhotographsHave)
{
    const auto photographs = LumetraTests::ReadPhotographs(LongestSide);
    for (const QModelIndex& preset : Presets()) {
        double clipped = 0;
        double pixels = 0;
        for (const Photograph& photograph : photographs) {
            const Image& before = photograph.picture;
            clipped += CountNewlyClipped(before, Draw(preset, before));
            pixels += static_cast<double>(before.GetWidth()) * before.GetHeight();
        }
        EXPECT_LE(clipped / pixels, MostClipped) << NameOf(preset);
    }
}

/// Blocks and blotches of a stored sky stay as faint as they are.
TEST_F(LooksOnPhotographsTest, aBlueSkyStaysSmooth)
{
    const Image sky = LumetraTests::ReadBlueSky(256);
    const double before = RoughnessOf(sky);
    ASSERT_GT(before, 1);
    for (const QModelIndex& preset : Presets())
        EXPECT_LE(RoughnessOf(DrawColours(preset, sky)), MostRoughened * before) << NameOf(preset);
}

/// These looks have a colour of their own, which white must not take.
TEST_F(LooksOnPhotographsTest, whiteStaysWhiteInLooksOfOneColour)
{
    const Image white = MakeGrey(246);
    for (const char* id : {"cool.blue-hour", "warm.sunset", "portrait.rose", "cool.sea-breeze"}) {
        const QModelIndex preset = session.GetModel().FindId(QLatin1String(id));
        ASSERT_TRUE(preset.isValid()) << id;
        const Image look = Draw(preset, white);
        const std::uint8_t* const pixel = look.Row(20) + 4 * 20;
        const auto [least, most] = std::minmax_element(pixel, pixel + 3);
        EXPECT_LE(*most - *least, MostCast) << id;
    }
}
