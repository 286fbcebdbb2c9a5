// SPDX-License-Identifier: GPL-2.0-or-later
// Tool tips cover nothing that the user is about to use.
#include "editor/EditorFixture.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QListView>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

using namespace LumetraTest;

namespace {

class TipPlaceTest : public EditorTest
{
protected:
    TipPlaceTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 300, 200));
        window->move(0, 0);
        ClickLook(QStringLiteral("Candlelight")); // with extra sliders
        QApplication::processEvents();
    }
    ~TipPlaceTest() override { QToolTip::hideText(); }

    /// The tool tip that is seen; null when there is none.
    static QWidget* FindTip()
    {
        for (QWidget* const widget : QApplication::topLevelWidgets())
            if (widget->windowType() == Qt::ToolTip && widget->isVisible())
                return widget;
        return nullptr;
    }

    /// The pointer rests there.
    static QWidget* AskForTip(QWidget& widget, const QPoint& place)
    {
        QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
        return FindTip();
    }

    QRect GetGlobal(const QWidget& widget) const
    {
        return {widget.mapToGlobal(QPoint()), widget.size()};
    }

    QRect GetSide() const { return GetGlobal(*Find<QWidget>("sidePanel")); }
};

} // namespace

TEST_F(TipPlaceTest, aLooksTipStandsBesideThePanel)
{
    const auto [list, index] = FindLook(QStringLiteral("Fresh"));

    QWidget* const tip = AskForTip(*list->viewport(), list->visualRect(index).center());

    ASSERT_NE(tip, nullptr);
    EXPECT_FALSE(tip->geometry().intersects(GetSide()));
    EXPECT_LE(GetSide().left() - tip->geometry().right(), 8) << "near to what it explains";
}

TEST_F(TipPlaceTest, theTipOfTheIntensityCoversNoOtherSlider)
{
    auto* const slider = Find<QSlider>("intensitySlider");

    for (const int value : {40, 60, 80}) {
        slider->setValue(value); // shows the tip by itself
        QWidget* const tip = FindTip();
        ASSERT_NE(tip, nullptr);
        EXPECT_FALSE(tip->geometry().intersects(GetSide())) << value;
    }
}

TEST_F(TipPlaceTest, aSlidersNameIsExplainedBesideThePanel)
{
    QWidget& row = *Find<QSlider>("extraSlider0")->parentWidget();
    QWidget* const name = row.childAt(4, row.height() / 2);
    ASSERT_NE(name, nullptr);

    QWidget* const tip = AskForTip(*name, {4, 4});

    ASSERT_NE(tip, nullptr);
    EXPECT_FALSE(tip->geometry().intersects(GetSide()));
}

TEST_F(TipPlaceTest, aPhotosTipStandsAboveTheStrip)
{
    FindAction("strip")->trigger();
    QApplication::processEvents();
    auto* const strip = Find<QListView>("photoStrip");
    ASSERT_TRUE(strip->isVisible());

    QWidget* const tip =
        AskForTip(*strip->viewport(), strip->visualRect(strip->model()->index(0, 0)).center());

    ASSERT_NE(tip, nullptr);
    EXPECT_FALSE(tip->geometry().intersects(GetGlobal(*strip)));
}

TEST_F(TipPlaceTest, otherTipsStayNearTheirButtons)
{
    auto* const button = Find<QToolButton>("compare");

    QWidget* const tip = AskForTip(*button, button->rect().center());

    ASSERT_NE(tip, nullptr);
    EXPECT_LT((tip->pos() - button->mapToGlobal(button->rect().center())).manhattanLength(), 60);
}
