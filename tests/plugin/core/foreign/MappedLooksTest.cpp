// SPDX-License-Identifier: GPL-2.0-or-later
// Each setting of an imported look changes the colours of a chart as its name says.
#include "plugin/core/foreign/ForeignFixture.h"

#include <algorithm>
#include <cmath>

using LumetraHost::Image;
using LumetraPlugin::ImportedLook;
using LumetraTest::ForeignFixture;
using LumetraTest::Rgb;
using LumetraTest::Settings;

namespace {

constexpr double HalfAStep = 0.5 / 255;
constexpr double SixteenBitStep = 1.01 / 65535;

/// Fine detail has pixels of its own in a part of this.
const LumetraHost::PictureArea LargePhoto = LumetraHost::PictureArea::Whole(6000, 4000);

struct NamedHue
{
    const char* name;
    double degrees;
};

constexpr NamedHue Hues[] = {{"Red", 0},    {"Orange", 30}, {"Yellow", 60},  {"Green", 120},
                             {"Aqua", 180}, {"Blue", 240},  {"Purple", 270}, {"Magenta", 300}};

/// A colour of that hue, 0.3 to 0.7.
Rgb MakeHue(double degrees)
{
    const auto channel = [degrees](double shift) {
        const double distance = std::abs(std::remainder(degrees - shift, 360.0));
        return 0.3 + 0.4 * std::clamp(2 - distance / 60, 0.0, 1.0);
    };
    return {channel(0), channel(120), channel(240)};
}

double Distance(const Rgb& a, const Rgb& b)
{
    return std::max({std::abs(a[0] - b[0]), std::abs(a[1] - b[1]), std::abs(a[2] - b[2])});
}

std::vector<Rgb> MakeGreys()
{
    std::vector<Rgb> greys;
    for (int i = 0; i <= 64; ++i)
        greys.push_back({i / 64.0, i / 64.0, i / 64.0});
    return greys;
}

std::vector<Rgb> MakeColours()
{
    std::vector<Rgb> colours;
    for (int degrees = 0; degrees < 360; degrees += 15)
        colours.push_back(MakeHue(degrees));
    return colours;
}

double ToLinear(double encoded)
{
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

/// A point of a list, behind those before it.
std::string WritePoint(double x, double y)
{
    return QStringLiteral("%1%2, %3")
        .arg(x > 0 ? QStringLiteral("; ") : QString())
        .arg(x)
        .arg(y)
        .toStdString();
}

class MappedLooksTest : public ForeignFixture
{
protected:
    Settings One(const std::string& name, double value)
    {
        return {{name, QString::number(value).toStdString()}};
    }
    Rgb DrawAt(const std::string& name, double value, const Rgb& colour)
    {
        return value == 0 ? colour : DrawSetting(colour, One(name, value));
    }
    /// Expects `measure` of the colour to rise with the setting from -100 over 0 to 100; `sign` -1:
    /// to fall.
    template <class Measure>
    void ExpectRises(const std::string& name, const Rgb& colour, const Measure& measure,
                     int sign = 1)
    {
        double last = -1e9;
        for (const double value : {-100, -50, -25, 0, 25, 50, 100}) {
            const double now = sign * measure(DrawAt(name, value, colour));
            EXPECT_GT(now, last) << name << " at " << value;
            last = now;
        }
    }
};

/// A picture with fine and coarse detail.
Image MakeDetail()
{
    Image picture = Image::Allocate(240, 160, Image::Depth::Bits16);
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x) {
            const double value =
                0.5 + 0.06 * std::sin(x / 10.0) + 0.03 * (((x / 2) + (y / 2)) % 2 == 0 ? 1 : -1);
            std::uint16_t* const pixel = picture.Row16(y) + 4 * x;
            std::fill_n(pixel, 3, static_cast<std::uint16_t>(std::lround(65535 * value)));
            pixel[3] = 65535;
        }
    return picture;
}

Image MakeFlat(int width, int height)
{
    Image picture = Image::Allocate(width, height, Image::Depth::Bits16);
    for (int y = 0; y < height; ++y)
        std::fill_n(picture.Row16(y), 4 * width, std::uint16_t{30000});
    return picture;
}

/// The deviation of the green channel from its mean in the middle of the picture.
double MeasureDeviation(const Image& picture)
{
    double sum = 0;
    double squares = 0;
    int count = 0;
    for (int y = 60; y < 100; ++y)
        for (int x = 90; x < 150; ++x, ++count) {
            const double value = picture.Row16(y)[4 * x + 1] / 65535.0;
            sum += value;
            squares += value * value;
        }
    return std::sqrt(squares / count - sum * sum / count / count);
}

} // namespace

TEST_F(MappedLooksTest, exposureIsExactInStops)
{
    for (const double stops : {-2.0, -0.5, 0.75}) {
        const Rgb drawn = DrawAt("Exposure2012", stops, {0.5, 0.4, 0.3});
        for (std::size_t c = 0; c < 3; ++c)
            EXPECT_NEAR(ToLinear(drawn[c]),
                        std::exp2(stops) * ToLinear(std::array{0.5, 0.4, 0.3}[c]), 1e-4);
    }
}

TEST_F(MappedLooksTest, limitsWhatGoesBeyondOurRangesAndSaysSo)
{
    const ImportedLook look = Import({{"Exposure2012", "9.5"}});
    EXPECT_EQ(Describe(look), "exposure stops=5\n");
    EXPECT_EQ(GetRemarked(look, LumetraPlugin::ImportRemark::Kind::Approximated),
              std::vector<std::string>{"Exposure2012"});
}

TEST_F(MappedLooksTest, settingsOfColourLeaveGreysAlone)
{
    std::vector<std::string> names = {"Saturation", "Vibrance"};
    for (const NamedHue& hue : Hues)
        for (const char* kind : {"HueAdjustment", "SaturationAdjustment", "LuminanceAdjustment"})
            names.push_back(std::string(kind) + hue.name);
    for (const char* name :
         {"RedHue", "RedSaturation", "GreenHue", "GreenSaturation", "BlueHue", "BlueSaturation"})
        names.push_back(name);
    const auto greys = MakeGreys();
    for (const std::string& name : names)
        for (const double value : {-80, 80}) {
            const auto drawn = Draw(greys, Import(One(name, value)));
            for (std::size_t i = 0; i < greys.size(); ++i)
                ASSERT_LE(Distance(drawn[i], greys[i]), SixteenBitStep) << name;
        }
}

TEST_F(MappedLooksTest, theNamedHueMovesAndItsOppositeDoesNot)
{
    for (const NamedHue& hue : Hues)
        for (const char* kind : {"HueAdjustment", "SaturationAdjustment", "LuminanceAdjustment"}) {
            const std::string name = std::string(kind) + hue.name;
            const Rgb own = MakeHue(hue.degrees);
            const Rgb opposite = MakeHue(hue.degrees + 180);
            for (const double value : {-40, 40}) {
                EXPECT_GT(Distance(DrawAt(name, value, own), own), 0.02) << name;
                EXPECT_LE(Distance(DrawAt(name, value, opposite), opposite), SixteenBitStep)
                    << name;
            }
        }
}

TEST_F(MappedLooksTest, settingsOfAHueGoTheWayThatTheirNameSays)
{
    for (const NamedHue& hue : Hues) {
        const Rgb own = MakeHue(hue.degrees);
        const std::string name(hue.name);
        ExpectRises("SaturationAdjustment" + name, own, [](const Rgb& c) { return Chroma(c); });
        ExpectRises("LuminanceAdjustment" + name, own, [](const Rgb& c) { return Luma(c); });
        const double turned = Hue(DrawAt("HueAdjustment" + name, 50, own)) - Hue(own);
        EXPECT_GT(std::remainder(turned, 360.0), 3) << hue.name;
    }
}

TEST_F(MappedLooksTest, lightRisesWithItsSettings)
{
    const auto luma = [](const Rgb& c) { return Luma(c); };
    const auto grey = [](double v) { return Rgb{v, v, v}; };
    ExpectRises("Highlights2012", grey(0.75), luma);
    ExpectRises("Shadows2012", grey(0.2), luma);
    ExpectRises("Whites2012", grey(0.8), luma);
    ExpectRises("Blacks2012", grey(0.06), luma);
    ExpectRises("ParametricShadows", grey(0.12), luma);
    ExpectRises("ParametricDarks", grey(0.37), luma);
    ExpectRises("ParametricLights", grey(0.62), luma);
    ExpectRises("ParametricHighlights", grey(0.87), luma);
    ExpectRises("Contrast2012", grey(0.75), luma);
    ExpectRises("Contrast2012", grey(0.25), luma, -1);
}

TEST_F(MappedLooksTest, contrastKeepsBlackMiddleAndWhite)
{
    for (const double amount : {-100, -30, 60, 100})
        for (const double v : {0.0, 0.5, 1.0})
            EXPECT_NEAR(DrawAt("Contrast2012", amount, {v, v, v})[1], v, 2 * SixteenBitStep);
}

TEST_F(MappedLooksTest, coloursRiseWithTheirSettings)
{
    const Rgb muted{0.55, 0.48, 0.42};
    const auto chroma = [](const Rgb& c) { return Chroma(c); };
    ExpectRises("Saturation", muted, chroma);
    ExpectRises("Vibrance", muted, chroma);
    ExpectRises("RedSaturation", MakeHue(0), chroma);
    ExpectRises("GreenSaturation", MakeHue(120), chroma);
    ExpectRises("BlueSaturation", MakeHue(240), chroma);
    ExpectRises("Tint", {0.5, 0.5, 0.5}, [](const Rgb& c) { return (c[0] + c[2]) / 2 - c[1]; });
    ExpectRises("IncrementalTemperature", {0.5, 0.5, 0.5},
                [](const Rgb& c) { return c[0] - c[2]; });
    ExpectRises("ShadowTint", {0.2, 0.2, 0.2},
                [](const Rgb& c) { return (c[0] + c[2]) / 2 - c[1]; });
}

TEST_F(MappedLooksTest, aRelativeTemperatureWarmsByItsSign)
{
    const Rgb grey{0.5, 0.5, 0.5};
    const auto warmth = [&](const char* value) {
        const Rgb c = DrawSetting(grey, {{"Temperature", value}});
        return c[0] - c[2];
    };
    EXPECT_GT(warmth("+400"), 0.01);
    EXPECT_LT(warmth("-500"), -0.01);
    EXPECT_GT(warmth("800"), warmth("+400"));
}

TEST_F(MappedLooksTest, anAbsoluteTemperatureIsItsDistanceFromDaylight)
{
    EXPECT_EQ(Describe(Import({{"Temperature", "5900"}})),
              Describe(Import({{"Temperature", "+400"}})));
    EXPECT_THAT(FindError("daylight.xmp", MakeXmp({{"Temperature", "5500"}})),
                testing::HasSubstr("expected a setting that changes the picture"));
}

TEST_F(MappedLooksTest, theWhiteBalanceOfThePhotoItWasSavedFromDoesNotCount)
{
    const ImportedLook look = Import({{"WhiteBalance", "As Shot"},
                                      {"Temperature", "3200"},
                                      {"Tint", "12"},
                                      {"Exposure2012", "1"}});
    EXPECT_EQ(Describe(look), "exposure stops=1\n");
    EXPECT_TRUE(look.remarks.empty());
}

TEST_F(MappedLooksTest, blackAndWhiteHasNoColour)
{
    const std::vector<Settings> looks = {
        {{"ConvertToGrayscale", "True"}},
        {{"Look", "Adobe Monochrome"}},
        {{"Look", "Adobe Monochrome"}, {"Saturation", "30"}, {"SaturationAdjustmentRed", "60"}},
        {{"ConvertToGrayscale", "True"}, {"GrayMixerRed", "40"}, {"GrayMixerBlue", "-60"}},
        {{"Saturation", "-100"}},
        {{"CameraProfile", "Camera Monochrome"}},
    };
    for (const Settings& settings : looks)
        for (const Rgb& drawn : Draw(MakeColours(), Import(settings)))
            EXPECT_LE(Chroma(drawn), 2 * SixteenBitStep) << settings.front().first;
}

TEST_F(MappedLooksTest, aTintOfABlackAndWhiteLookStays)
{
    const auto drawn = Draw(MakeColours(), Import({{"ConvertToGrayscale", "True"},
                                                   {"SplitToningShadowHue", "35"},
                                                   {"SplitToningShadowSaturation", "30"},
                                                   {"SplitToningHighlightHue", "35"},
                                                   {"SplitToningHighlightSaturation", "30"}}));
    for (const Rgb& colour : drawn) {
        EXPECT_GT(Chroma(colour), 0.03);
        EXPECT_NEAR(Hue(colour), 35, 3);
    }
}

TEST_F(MappedLooksTest, aCurvePerChannelTintsABlackAndWhiteLook)
{
    const auto drawn =
        Draw(MakeColours(), Import({{"Look", "Adobe Monochrome"},
                                    {"ToneCurvePV2012Blue", "0, 0; 128, 100; 255, 255"}}));
    for (const Rgb& colour : drawn) {
        EXPECT_NEAR(colour[0], colour[1], 2 * SixteenBitStep);
        EXPECT_GT(colour[1] - colour[2], 0.05);
    }
}

TEST_F(MappedLooksTest, greysOfAMixerFollowTheirHue)
{
    for (const NamedHue& hue : Hues) {
        const std::string name(hue.name);
        const auto drawn = [&](const char* value, const Rgb& colour) {
            return DrawSetting(colour,
                               {{"ConvertToGrayscale", "True"}, {"GrayMixer" + name, value}})[1];
        };
        const Rgb own = MakeHue(hue.degrees);
        EXPECT_GT(drawn("60", own), drawn("0", own) + 0.02) << hue.name;
        EXPECT_LT(drawn("-60", own), drawn("0", own) - 0.02) << hue.name;
        const Rgb opposite = MakeHue(hue.degrees + 180);
        EXPECT_NEAR(drawn("60", opposite), drawn("0", opposite), SixteenBitStep) << hue.name;
    }
}

TEST_F(MappedLooksTest, mixersOfGreysDoNothingInColouredLooks)
{
    EXPECT_EQ(Describe(Import({{"Exposure2012", "1"}, {"GrayMixerRed", "40"}})),
              "exposure stops=1\n");
}

TEST_F(MappedLooksTest, hitsThePointsOfCurves)
{
    const std::vector<std::array<double, 2>> points = {{0, 22},    {40, 31},   {64, 70},
                                                       {130, 150}, {200, 190}, {255, 240}};
    std::string list;
    for (const auto& point : points)
        list += WritePoint(point[0], point[1]);
    const char* const names[] = {"ToneCurvePV2012Red", "ToneCurvePV2012Green",
                                 "ToneCurvePV2012Blue"};
    for (const auto& point : points) {
        const double x = point[0] / 255;
        const Rgb master = DrawSetting({x, x, x}, {{"ToneCurvePV2012", list}});
        for (std::size_t c = 0; c < 3; ++c) {
            EXPECT_NEAR(master[c], point[1] / 255, HalfAStep);
            const Rgb channel = DrawSetting({x, x, x}, {{names[c], list}});
            EXPECT_NEAR(channel[c], point[1] / 255, HalfAStep) << names[c];
            EXPECT_NEAR(channel[(c + 1) % 3], x, SixteenBitStep) << names[c];
        }
    }
}

TEST_F(MappedLooksTest, curvesGoOnLevelBeyondTheirEnds)
{
    const Settings faded = {{"ToneCurvePV2012", "20, 40; 230, 210"}};
    EXPECT_NEAR(DrawSetting({0, 0, 0}, faded)[0], 40 / 255.0, HalfAStep);
    EXPECT_NEAR(DrawSetting({1, 1, 1}, faded)[0], 210 / 255.0, HalfAStep);
}

TEST_F(MappedLooksTest, keepsThePointsThatBendALongCurveMost)
{
    std::string list;
    for (int x = 0; x <= 255; x += 5)
        list += WritePoint(x, x == 100 ? 140 : x);
    const ImportedLook look = Import({{"ToneCurvePV2012", list}});
    EXPECT_EQ(look.effects.front()->GetParameter("points"), 16);
    EXPECT_NEAR(Draw({{100 / 255.0, 0.1, 0.1}}, look).front()[0], 140 / 255.0, HalfAStep);
    EXPECT_EQ(GetRemarked(look, LumetraPlugin::ImportRemark::Kind::Approximated),
              std::vector<std::string>{"ToneCurvePV2012"});
}

TEST_F(MappedLooksTest, gradingTintsItsRange)
{
    const Rgb dark{0.2, 0.2, 0.2};
    const Rgb light{0.8, 0.8, 0.8};
    const Settings shadows = {{"ColorGradeShadowHue", "220"}, {"ColorGradeShadowSat", "30"}};
    EXPECT_NEAR(Hue(DrawSetting(dark, shadows)), 220, 4);
    EXPECT_GT(Chroma(DrawSetting(dark, shadows)), 4 * Chroma(DrawSetting(light, shadows)));
    const Settings highlights = {{"ColorGradeHighlightHue", "40"},
                                 {"ColorGradeHighlightSat", "30"}};
    EXPECT_NEAR(Hue(DrawSetting(light, highlights)), 40, 4);
    EXPECT_GT(Chroma(DrawSetting(light, highlights)), 4 * Chroma(DrawSetting(dark, highlights)));
}

TEST_F(MappedLooksTest, takesHuesFromAnywhereOnTheCircle)
{
    const auto describe = [this](const char* hue) {
        return Describe(Import({{"ColorGradeShadowHue", hue}, {"ColorGradeShadowSat", "30"}}));
    };
    EXPECT_EQ(describe("-20"), describe("340"));
    EXPECT_EQ(describe("400"), describe("40"));
}

TEST_F(MappedLooksTest, gradingGoesBeforeTheSplitToningBesideIt)
{
    EXPECT_EQ(Describe(Import({{"ColorGradeShadowHue", "220"},
                               {"ColorGradeShadowSat", "30"},
                               {"SplitToningShadowHue", "10"},
                               {"SplitToningShadowSaturation", "60"}})),
              Describe(Import({{"ColorGradeShadowHue", "220"}, {"ColorGradeShadowSat", "30"}})));
    EXPECT_EQ(Describe(Import({{"ColorGradeBlending", "50"},
                               {"ColorGradeShadowSat", "0"},
                               {"SplitToningShadowHue", "10"},
                               {"SplitToningShadowSaturation", "60"}})),
              "colourGrading shadowHue=10 shadowSaturation=60 blending=75\n");
}

TEST_F(MappedLooksTest, olderProcessesCountFromWhereRawPhotosStart)
{
    EXPECT_THAT(FindError("neutral.xmp", MakeXmp({{"ProcessVersion", "6.7"},
                                                  {"Contrast", "25"},
                                                  {"Brightness", "50"},
                                                  {"Shadows", "5"}})),
                testing::HasSubstr("neutral.xmp: expected a setting that changes the picture"));
    EXPECT_EQ(Describe(Import(
                  {{"Contrast", "0"}, {"Brightness", "0"}, {"Shadows", "0"}, {"Exposure", "1"}})),
              "exposure stops=1\n")
        << "looks for pictures that had been developed start at 0";
    const Rgb dark{0.1, 0.1, 0.1};
    EXPECT_LT(DrawSetting(dark, {{"Shadows", "20"}})[0], 0.1);
    EXPECT_GT(DrawSetting(dark, {{"FillLight", "40"}})[0], 0.1);
    EXPECT_LT(DrawSetting({0.9, 0.9, 0.9}, {{"HighlightRecovery", "60"}})[0], 0.9);
    EXPECT_GT(DrawSetting({0.4, 0.4, 0.4}, {{"Brightness", "90"}})[0], 0.4);
}

TEST_F(MappedLooksTest, newerSpellingsGoBeforeOlderOnes)
{
    EXPECT_EQ(Describe(Import({{"Exposure2012", "1"}, {"Exposure", "-1"}, {"Contrast", "80"}})),
              "exposure stops=1\n");
}

TEST_F(MappedLooksTest, detailRisesWithItsSettings)
{
    const Image detail = MakeDetail();
    for (const char* name : {"Texture", "Clarity2012", "Sharpness"}) {
        double last = MeasureDeviation(detail);
        for (const double value : {20, 50, 100}) {
            const double now = MeasureDeviation(Draw(detail, Import(One(name, value)), LargePhoto));
            EXPECT_GT(now, last) << name << " at " << value;
            last = now;
        }
    }
    for (const char* name : {"Texture", "Clarity2012"})
        EXPECT_LT(MeasureDeviation(Draw(detail, Import(One(name, -60)), LargePhoto)),
                  MeasureDeviation(detail));
}

TEST_F(MappedLooksTest, grainRisesWithItsAmount)
{
    double last = 0;
    for (const double value : {20, 50, 100}) {
        const double now = MeasureDeviation(
            Draw(MakeFlat(240, 160), Import(One("GrainAmount", value)), LargePhoto));
        EXPECT_GT(now, last) << value;
        last = now;
    }
}

TEST_F(MappedLooksTest, aVignetteDarkensCornersBySigns)
{
    const Image flat = MakeFlat(120, 80);
    const auto corner = [&](double value) {
        return Draw(flat, Import(One("PostCropVignetteAmount", value))).Row16(0)[0];
    };
    EXPECT_LT(corner(-60), corner(-20));
    EXPECT_LT(corner(-20), 30000);
    EXPECT_GT(corner(15), 30000);
    const Image drawn = Draw(flat, Import(One("PostCropVignetteAmount", -60)));
    EXPECT_EQ(drawn.Row16(40)[4 * 60], 30000) << "the middle stays";
}
