// SPDX-License-Identifier: GPL-2.0-or-later
// A section's header shows its state.
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"

#include "Contrast.h"
#include "StyledApplication.h"

#include <QLabel>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using namespace Zorvik::Lumetra::LumetraPresets;
using LumetraHost::ColoursOf;
using LumetraHost::PaletteKind;
using LumetraHost::StyleColours;

class SectionHeaderLook : public testing::TestWithParam<PaletteKind>
{
protected:
    SectionHeaderLook()
    {
        m_box.resize(240, 300);
        m_box.addItem(new QLabel, QStringLiteral("A"));
        m_box.addItem(new QLabel, QStringLiteral("A"));
        m_box.show();
        (void)QTest::qWaitForWindowExposed(&m_box);
    }

    CustomToolBoxButton& Header(int page) const
    {
        return *m_box.findChildren<CustomToolBoxButton*>().at(page);
    }

    QImage Look(int page) const { return Header(page).grab().toImage(); }

    /// The header's background, away from chevron and text.
    QColor Background(int page) const
    {
        return Look(page).pixelColor(Header(page).width() - 4, Header(page).height() / 2);
    }

    /// The contrast of the section's name, right of the chevron.
    double NameContrast(int page) const
    {
        const QRect place = Header(page).rect().adjusted(28, 2, -4, -4);
        return DrawnContrast(Look(page), place);
    }

    QToolButton& AddTitleButton(int page, const QString& text)
    {
        auto* const button = new QToolButton;
        button->setObjectName(QStringLiteral("sectionTitleButton"));
        button->setText(text);
        m_box.addWidgetTitleButton(button, page);
        button->show();
        QCoreApplication::processEvents();
        return *button;
    }

    void Press(int page)
    {
        QTest::mousePress(m_box.windowHandle(), Qt::LeftButton, {},
                          Header(page).geometry().center());
    }

    StyledApplication m_styled{GetParam()};
    CustomToolBox m_box;
};

TEST_P(SectionHeaderLook, chevronTellsOpenFromShut)
{
    const QImage open = Look(0);
    const QImage shut = Look(1);
    EXPECT_NE(open, shut);
    EXPECT_EQ(Background(0), ColoursOf(GetParam()).header);

    m_box.setCurrentIndex(0);
    m_box.setCurrentIndex(1);
    EXPECT_EQ(Look(0), shut);
    EXPECT_EQ(Look(1), open);
}

TEST_P(SectionHeaderLook, chevronIsOneOfTwoMirroredAlongTheDiagonal)
{
    const QImage open = Look(0).copy(8, 6, 16, 16);
    const QImage shut = Look(1).copy(8, 6, 16, 16);
    int opaque = 0;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            opaque += open.pixelColor(x, y) != ColoursOf(GetParam()).header ? 1 : 0;
    }
    EXPECT_GT(opaque, 15) << "a chevron is drawn at all";
    EXPECT_NE(open, shut);
}

TEST_P(SectionHeaderLook, pointerAndPressAreShown)
{
    for (const int page : {0, 1}) {
        QCursor::setPos(Header(page).mapToGlobal(Header(page).rect().center()));
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(Background(1), ColoursOf(GetParam()).headerHover);
    EXPECT_EQ(Background(0), ColoursOf(GetParam()).header);

    QTest::mousePress(m_box.windowHandle(), Qt::LeftButton, {}, Header(1).geometry().center());
    EXPECT_EQ(Background(1), ColoursOf(GetParam()).headerPressed);
    QTest::mouseRelease(m_box.windowHandle(), Qt::LeftButton, {}, Header(1).geometry().center());
    EXPECT_EQ(Background(1), ColoursOf(GetParam()).headerHover);
}

TEST_P(SectionHeaderLook, disabledSectionIsMuted)
{
    const QImage enabled = Look(1);

    m_box.setItemEnabled(1, false);

    EXPECT_NE(Look(1), enabled);
    EXPECT_EQ(Background(1), ColoursOf(GetParam()).header);
}

TEST_P(SectionHeaderLook, nameIsReadableInEveryState)
{
    EXPECT_GE(NameContrast(1), 4.5) << "at rest";
    QCursor::setPos(Header(1).mapToGlobal(Header(1).rect().center()));
    QCoreApplication::processEvents();
    EXPECT_GE(NameContrast(1), 4.5) << "under the pointer";
    Press(1);
    EXPECT_GE(NameContrast(1), 4.5) << "held down";
    QTest::mouseRelease(m_box.windowHandle(), Qt::LeftButton, {}, Header(1).geometry().center());

    m_box.setItemEnabled(1, false);

    EXPECT_LE(NameContrast(1), 3.5) << "disabled";
    EXPECT_GE(NameContrast(1), 2.0) << "disabled";
}

TEST_P(SectionHeaderLook, pressedHeaderStandsOutFromItsNeighboursAndThePage)
{
    Press(1);

    const StyleColours& colours = ColoursOf(GetParam());
    EXPECT_GE(Contrast(Background(1), Background(0)), 1.25);
    EXPECT_GE(Contrast(Background(1), colours.panel), 1.25);
    QTest::mouseRelease(m_box.windowHandle(), Qt::LeftButton, {}, Header(1).geometry().center());
}

TEST_P(SectionHeaderLook, titleButtonLeavesTheRowAsHighAsTheOthers)
{
    const int height = Header(1).height();

    const QToolButton& add = AddTitleButton(1, QStringLiteral("+"));

    EXPECT_EQ(Header(1).height(), height);
    EXPECT_EQ(add.height(), height);
    EXPECT_EQ(Header(0).height(), height);
}

TEST_P(SectionHeaderLook, titleButtonWithAnIconLeavesTheRowAsHighAsTheOthers)
{
    const int height = Header(1).height();
    QToolButton& count = AddTitleButton(1, QStringLiteral("12"));
    count.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    count.setIcon(QIcon(QStringLiteral(":/lumetra/style/images/light/check.svg")));
    QCoreApplication::processEvents();

    EXPECT_EQ(Header(1).height(), height);
    EXPECT_EQ(count.height(), height);
}

INSTANTIATE_TEST_SUITE_P(Palettes, SectionHeaderLook,
                         testing::Values(PaletteKind::Light, PaletteKind::Dark),
                         [](const auto& kind) {
                             return kind.param == PaletteKind::Light ? "light" : "dark";
                         });

} // namespace
} // namespace LumetraTest
