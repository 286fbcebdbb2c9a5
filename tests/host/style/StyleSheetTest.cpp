// SPDX-License-Identifier: GPL-2.0-or-later
#include "style/StyleSheet.h"

#include "style/EditorStyle.h"

#include "Contrast.h"
#include "StyledApplication.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using LumetraHost::ColoursOf;
using LumetraHost::PaletteKind;
using LumetraHost::StyleColours;

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
    EXPECT_EQ(pictures, 15);
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
                                                       {c.accent, c.panel},
                                                       {c.accent, c.window},
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
    EXPECT_GE(Contrast(c.toolTipText, c.toolTip), 3.0);
    for (const QColor& background : {c.panel, c.window, c.field, c.header, c.button})
        EXPECT_GE(Contrast(c.disabledText, background), 2.0)
            << "still legible on " << background.name().toStdString();
}

/// Held down, under the pointer, at rest, and the panel behind: all four must look different.
TEST_P(StyleSheetTest, statesOfControlsAreToldApart)
{
    const StyleColours& c = Colours();
    struct Control
    {
        const char* name;
        QColor rest, hover, pressed;
    };
    for (const Control& control : {Control{"header", c.header, c.headerHover, c.headerPressed},
                                   Control{"button", c.button, c.buttonHover, c.buttonPressed},
                                   Control{"accent", c.accent, c.accentHover, c.accentPressed}}) {
        EXPECT_GE(Contrast(control.rest, control.hover), 1.1) << control.name;
        EXPECT_GE(Contrast(control.hover, control.pressed), 1.1) << control.name;
        EXPECT_GE(Contrast(control.rest, control.pressed), 1.25) << control.name;
        for (const QColor& state : {control.rest, control.hover, control.pressed})
            EXPECT_GE(Contrast(state, c.panel), 1.15) << control.name;
    }
}

/// A host's own palette roles have the meaning of the editor's, so that panels need not know its
/// style.
TEST_P(StyleSheetTest, paletteHasTheStatesToo)
{
    const QPalette palette = LumetraHost::EditorPalette(GetParam());
    const QColor text = palette.color(QPalette::ButtonText);

    EXPECT_GE(Contrast(palette.color(QPalette::Mid), palette.color(QPalette::Base)), 3.0);
    EXPECT_GE(Contrast(palette.color(QPalette::Button), palette.color(QPalette::Midlight)), 1.1);
    EXPECT_GE(Contrast(palette.color(QPalette::Button), palette.color(QPalette::Dark)), 1.25);
    EXPECT_GE(Contrast(text, palette.color(QPalette::Midlight)), 4.5);
    EXPECT_GE(Contrast(text, palette.color(QPalette::Dark)), 4.5);
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
