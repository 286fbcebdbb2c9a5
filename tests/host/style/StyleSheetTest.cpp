// SPDX-License-Identifier: GPL-2.0-or-later
#include "style/StyleSheet.h"

#include "style/EditorStyle.h"

#include "StyledApplication.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cmath>

namespace LumetraTest {
namespace {

using LumetraHost::ColoursOf;
using LumetraHost::PaletteKind;
using LumetraHost::StyleColours;

/// Relative luminance as in WCAG 2.1.
double Luminance(const QColor& colour)
{
    const auto linear = [](double encoded) {
        return encoded <= 0.03928 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

class StyleSheetTest : public testing::TestWithParam<PaletteKind>
{
protected:
    const StyleColours& Colours() const { return ColoursOf(GetParam()); }
};

TEST_P(StyleSheetTest, everyPlaceholderIsFilled)
{
    const QString sheet = LumetraHost::StyleSheet(GetParam());

    EXPECT_GT(sheet.size(), 1000);
    EXPECT_FALSE(sheet.section(QStringLiteral("*/"), 2).contains(QLatin1Char('@')));
}

TEST_P(StyleSheetTest, everyPictureExistsAndIsDrawn)
{
    const QString sheet = LumetraHost::StyleSheet(GetParam());
    const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    int pictures = 0;
    for (auto found = url.globalMatch(sheet); found.hasNext(); ++pictures) {
        const QString path = found.next().captured(1);
        EXPECT_FALSE(QImage(path).isNull()) << path.toStdString();
    }
    EXPECT_EQ(pictures, 13);
}

// A sheet with an error in it is refused as a whole, with a warning, which fails the test.
TEST_P(StyleSheetTest, isUnderstoodAsAWhole)
{
    const StyledApplication styled(GetParam());
    QLabel label(QStringLiteral("x"));
    label.setProperty("muted", true);
    label.ensurePolished();

    EXPECT_EQ(label.palette().color(label.foregroundRole()), Colours().mutedText);
}

TEST_P(StyleSheetTest, textIsReadable)
{
    const StyleColours& c = Colours();
    const std::vector<std::pair<QColor, QColor>> pairs{{c.text, c.window},
                                                       {c.text, c.panel},
                                                       {c.text, c.field},
                                                       {c.text, c.header},
                                                       {c.text, c.headerHover},
                                                       {c.text, c.headerPressed},
                                                       {c.text, c.button},
                                                       {c.text, c.buttonHover},
                                                       {c.text, c.buttonPressed},
                                                       {c.text, c.selection},
                                                       {c.mutedText, c.panel},
                                                       {c.mutedText, c.window},
                                                       {c.accentText, c.accent},
                                                       {c.accentText, c.accentHover},
                                                       {c.accentText, c.accentPressed},
                                                       {c.toolTipText, c.toolTip}};
    for (const auto& [text, background] : pairs)
        EXPECT_GE(Contrast(text, background), 4.5)
            << text.name().toStdString() << " on " << background.name().toStdString();
}

TEST_P(StyleSheetTest, controlsAndFocusStandOut)
{
    const StyleColours& c = Colours();

    EXPECT_GE(Contrast(c.accent, c.panel), 3.0);
    EXPECT_GE(Contrast(c.accent, c.groove), 2.0);
    EXPECT_GE(Contrast(c.fieldBorder, c.panel), 3.0);
    EXPECT_GE(Contrast(c.fieldBorder, c.field), 3.0);
    EXPECT_GE(Contrast(c.disabledText, c.panel), 2.0) << "still legible";
}

INSTANTIATE_TEST_SUITE_P(Palettes, StyleSheetTest,
                         testing::Values(PaletteKind::Light, PaletteKind::Dark),
                         [](const auto& kind) {
                             return kind.param == PaletteKind::Light ? "light" : "dark";
                         });

TEST(StyleSheet, palettesDiffer)
{
    EXPECT_NE(LumetraHost::StyleSheet(PaletteKind::Light),
              LumetraHost::StyleSheet(PaletteKind::Dark));
    EXPECT_NE(LumetraHost::GrooveColoursOf(PaletteKind::Light).fill,
              LumetraHost::GrooveColoursOf(PaletteKind::Dark).fill);
}

TEST(EditorStyle, fillsSlidersAndKnowsNoOtherOption)
{
    using Zorvik::Lumetra::StyleProvider;
    const LumetraHost::EditorStyle style;

    EXPECT_EQ(style.Option(StyleProvider::FillSlider), QVariant(true));
    EXPECT_FALSE(style.Option(static_cast<StyleProvider::OptionKey>(1)).isValid());
}

} // namespace
} // namespace LumetraTest
