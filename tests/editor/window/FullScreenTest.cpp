// SPDX-License-Identifier: GPL-2.0-or-later
#include "editor/EditorFixture.h"

#include "canvas/PhotoCanvas.h"
#include "window/EditorWindow.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QSplitter>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace LumetraTest;
using LumetraEditor::PhotoCanvas;

namespace {

class FullScreenTest : public EditorTest
{
protected:
    FullScreenTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 300, 200));
        QTest::keyClick(window.get(), Qt::Key_F8); // the strip too
    }

    PhotoCanvas& Canvas() { return GetPart<PhotoCanvas>(); }

    std::vector<QWidget*> GetFurniture()
    {
        return {window->menuBar(), window->statusBar(), Find<QToolBar>("toolBar"),
                Find<QWidget>("sidePanel"), Find<QWidget>("photoStrip")};
    }

    int CountFurniture()
    {
        int count = 0;
        for (const QWidget* const part : GetFurniture())
            count += part->isVisible() ? 1 : 0;
        return count;
    }

    void Fill()
    {
        QTest::keyClick(window.get(), Qt::Key_F11);
        QApplication::processEvents();
    }

    void PointAt(const QPoint& place)
    {
        QMouseEvent move(QEvent::MouseMove, place, Canvas().mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&Canvas(), &move);
    }
};

} // namespace

TEST_F(FullScreenTest, showsThePhotoAloneAndEverythingAgainAfterwards)
{
    ASSERT_EQ(CountFurniture(), 5);

    Fill();
    EXPECT_TRUE(window->isFullScreen());
    EXPECT_EQ(CountFurniture(), 0);
    EXPECT_EQ(Canvas().size(), window->size());
    EXPECT_TRUE(Canvas().hasFocus());

    Fill();
    EXPECT_FALSE(window->isFullScreen());
    EXPECT_EQ(CountFurniture(), 5);
    EXPECT_FALSE(FindAction("fullScreen")->isChecked());
}

TEST_F(FullScreenTest, escapeEndsIt)
{
    Fill();

    QTest::keyClick(&Canvas(), Qt::Key_Escape);
    EXPECT_FALSE(window->isFullScreen());
    EXPECT_EQ(CountFurniture(), 5);

    QTest::keyClick(&Canvas(), Qt::Key_Escape);
    EXPECT_FALSE(window->isFullScreen());
}

TEST_F(FullScreenTest, theMouseEndsItAtTheUpperEdge)
{
    auto* const button = Find<QToolButton>("leaveFullScreen");
    EXPECT_FALSE(button->isVisible());
    Fill();
    PointAt(Canvas().rect().center());
    EXPECT_FALSE(button->isVisible()) << "it would be over the photo";

    PointAt({300, 3});
    ASSERT_TRUE(button->isVisible());
    EXPECT_TRUE(
        window->rect().contains(QRect(button->mapTo(window.get(), QPoint()), button->size())));
    QTest::mouseClick(button, Qt::LeftButton);

    EXPECT_FALSE(window->isFullScreen());
    EXPECT_EQ(CountFurniture(), 5);
    EXPECT_FALSE(button->isVisible());
}

TEST_F(FullScreenTest, whatWasHiddenStaysHiddenAfterwards)
{
    FindAction("sidePanel")->trigger();
    FindAction("strip")->trigger();
    ASSERT_EQ(CountFurniture(), 3);

    Fill();
    Fill();

    EXPECT_FALSE(Find<QWidget>("sidePanel")->isVisible());
    EXPECT_FALSE(FindAction("sidePanel")->isChecked());
    EXPECT_FALSE(Find<QWidget>("photoStrip")->isVisible());
}

TEST_F(FullScreenTest, theKeysOfLooksWorkAndBringNoPanel)
{
    ClickLook(QStringLiteral("Candlelight"));
    Fill();

    QTest::keyClick(&Canvas(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(GetAppliedName(), QStringLiteral("Fresh"));
    QTest::keyClick(&Canvas(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(Find<QToolButton>("favouriteButton")->isChecked());
    QTest::keyClick(&Canvas(), Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_NE(GetAppliedName(), QStringLiteral("Fresh"));
    QTest::keyClick(&Canvas(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(GetAppliedName(), QStringLiteral("Fresh"));

    EXPECT_EQ(CountFurniture(), 0);
}

TEST_F(FullScreenTest, aKeyThatNeedsItsPanelBringsIt)
{
    Fill();

    QTest::keyClick(&Canvas(), Qt::Key_F, Qt::ControlModifier);

    EXPECT_TRUE(Find<QWidget>("sidePanel")->isVisible());
    EXPECT_TRUE(Find<QLineEdit>("searchField")->hasFocus());
    EXPECT_TRUE(window->isFullScreen());
}

TEST_F(FullScreenTest, panelAndStripComeByTheirKeys)
{
    Fill();

    QTest::keyClick(&Canvas(), Qt::Key_F9);
    EXPECT_TRUE(Find<QWidget>("sidePanel")->isVisible());
    QTest::keyClick(&Canvas(), Qt::Key_F8);
    EXPECT_TRUE(Find<QWidget>("photoStrip")->isVisible());
    EXPECT_EQ(CountFurniture(), 2);
}

TEST_F(FullScreenTest, theStripStaysAwayWhenAnotherPhotoIsOpened)
{
    Fill();

    Open(WritePhoto("hill.png", 200, 200));

    EXPECT_FALSE(Find<QWidget>("photoStrip")->isVisible());
}

TEST_F(FullScreenTest, theNextStartHasItsMenusAndSizes)
{
    Find<QSplitter>("splitter")->setSizes({600, 400});
    const int width = Find<QWidget>("sidePanel")->width();
    const QSize size = window->size();
    Fill();

    ASSERT_TRUE(window->close());
    Restart();

    EXPECT_FALSE(window->isFullScreen());
    EXPECT_TRUE(window->menuBar()->isVisible());
    EXPECT_EQ(Find<QWidget>("sidePanel")->width(), width);
    window.reset();
    window = std::make_unique<LumetraEditor::EditorWindow>(*editor);
    EXPECT_LE(window->width(), size.width());
}

TEST_F(FullScreenTest, withoutAPhotoTheButtonStays)
{
    FindAction("closePhoto")->trigger();
    const int before = CountFurniture();

    Fill();

    EXPECT_TRUE(Find<QToolButton>("leaveFullScreen")->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(CountFurniture(), before);
}
