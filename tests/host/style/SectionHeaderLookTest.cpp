// SPDX-License-Identifier: GPL-2.0-or-later
// A section's header shows its state.
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"

#include "StyledApplication.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using namespace Zorvik::Lumetra::LumetraPresets;
using LumetraHost::ColoursOf;
using LumetraHost::PaletteKind;

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

    /// Its background, away from chevron and text.
    QColor Background(int page) const
    {
        return Look(page).pixelColor(Header(page).width() - 4, Header(page).height() / 2);
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

INSTANTIATE_TEST_SUITE_P(Palettes, SectionHeaderLook,
                         testing::Values(PaletteKind::Light, PaletteKind::Dark),
                         [](const auto& kind) {
                             return kind.param == PaletteKind::Light ? "light" : "dark";
                         });

} // namespace
} // namespace LumetraTest
