// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/LiveView.h"
#include "editor/EditorFixture.h"
#include "editor/canvas/SplitLine.h"

#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

using namespace LumetraTest;
using LumetraEditor::PhotoCanvas;

namespace {

class CanvasTest : public EditorTest
{
protected:
    void OpenLarge() { Open(WritePhoto("large.png", 2000, 1500)); }

    PhotoCanvas& Canvas() { return GetPart<LumetraEditor::PhotoCanvas>(); }
    const LumetraEditor::ViewTransform& View() { return Canvas().GetView(); }

    void Wheel(const QPointF& position, int angle)
    {
        QWheelEvent event(position, Canvas().mapToGlobal(position.toPoint()), {}, {0, angle},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Canvas(), &event);
    }

    /// The picture of the canvas when everything is rendered.
    QImage Grab()
    {
        GetCanvasView().WaitForFrame();
        return Canvas().grab().toImage();
    }

    QColor ColourAt(const QImage& picture, double x, double y) const
    {
        return picture.pixelColor(static_cast<int>(x * picture.width()),
                                  static_cast<int>(y * picture.height()));
    }

    void MakeLighter(int tenths)
    {
        LoadExamplePanel();
        Find<QSlider>("exposureSlider")->setValue(tenths);
    }
};

} // namespace

TEST_F(CanvasTest, fitsTheWholePhoto)
{
    OpenLarge();

    const QImage picture = Grab();

    EXPECT_TRUE(View().IsFitted());
    EXPECT_EQ(Canvas().GetFrame(PhotoCanvas::Layer::Edited).part, QRect(0, 0, 2000, 1500));
    // The gradients of the photo: red grows to the right, green downwards.
    EXPECT_LT(ColourAt(picture, 0.1, 0.5).red(), ColourAt(picture, 0.9, 0.5).red());
    EXPECT_LT(ColourAt(picture, 0.5, 0.3).green(), ColourAt(picture, 0.5, 0.7).green());
}

TEST_F(CanvasTest, showsThePhotosOwnPixelsAtActualSize)
{
    OpenLarge();
    FindAction("actualSize")->trigger();

    const QImage picture = Grab();

    const auto& frame = Canvas().GetFrame(PhotoCanvas::Layer::Edited);
    EXPECT_EQ(frame.image.size(), frame.part.size());
    const QPointF middle = View().ToPhoto({400, 300});
    EXPECT_EQ(picture.pixelColor(400, 300).red(), 20 + 200 * static_cast<int>(middle.x()) / 2000);
}

TEST_F(CanvasTest, zoomsAtThePointer)
{
    OpenLarge();
    const QPointF pointer(200, 180);
    const double zoom = View().GetZoom();

    Wheel(pointer, 240);

    EXPECT_GT(View().GetZoom(), zoom);
    const QPointF before = View().ToPhoto(pointer);
    Wheel(pointer, 480);
    EXPECT_NEAR(View().ToPhoto(pointer).x(), before.x(), 0.01);
    EXPECT_NEAR(View().ToPhoto(pointer).y(), before.y(), 0.01);
    Wheel(pointer, -1200);
    EXPECT_TRUE(View().IsFitted());
}

TEST_F(CanvasTest, movesAZoomedPhotoWithThePointer)
{
    OpenLarge();
    Canvas().SetZoom(1);
    const QPointF before = View().ToView(QPointF(1000, 750));

    Drag(Canvas(), {300, 200}, {340, 170});

    EXPECT_EQ(View().ToView(QPointF(1000, 750)), before + QPointF(40, -30));
}

TEST_F(CanvasTest, switchesBetweenFittedAndActualSizeByDoubleClick)
{
    OpenLarge();

    QTest::mouseDClick(&Canvas(), Qt::LeftButton, {}, {100, 100});
    EXPECT_DOUBLE_EQ(View().GetZoom(), 1);
    QTest::mouseDClick(&Canvas(), Qt::LeftButton, {}, {100, 100});

    EXPECT_TRUE(View().IsFitted());
}

TEST_F(CanvasTest, zoomsByCommands)
{
    OpenLarge();
    const double fitting = View().GetZoom();

    FindAction("zoomIn")->trigger();
    EXPECT_GT(View().GetZoom(), fitting);
    FindAction("zoomOut")->trigger();
    EXPECT_DOUBLE_EQ(View().GetZoom(), fitting);
    FindAction("actualSize")->trigger();
    EXPECT_EQ(Find<QLabel>("zoomText")->text(), QStringLiteral("100 %"));
    FindAction("fit")->trigger();

    EXPECT_TRUE(View().IsFitted());
}

TEST_F(CanvasTest, zoomsAndMovesByKeys)
{
    OpenLarge();
    Canvas().setFocus();

    QTest::keyClick(&Canvas(), Qt::Key_1);
    EXPECT_DOUBLE_EQ(View().GetZoom(), 1);
    const QRect before = View().GetVisiblePart();
    QTest::keyClick(&Canvas(), Qt::Key_Right);
    EXPECT_GT(View().GetVisiblePart().left(), before.left());
    QTest::keyClick(&Canvas(), Qt::Key_Down);
    EXPECT_GT(View().GetVisiblePart().top(), before.top());
    QTest::keyClick(&Canvas(), Qt::Key_Plus);
    EXPECT_DOUBLE_EQ(View().GetZoom(), 1.5);
    QTest::keyClick(&Canvas(), Qt::Key_Minus);
    EXPECT_DOUBLE_EQ(View().GetZoom(), 1);
    QTest::keyClick(&Canvas(), Qt::Key_0);
    EXPECT_TRUE(View().IsFitted());
}

TEST_F(CanvasTest, showsTheEdit)
{
    OpenLarge();
    const QColor before = ColourAt(Grab(), 0.5, 0.5);

    MakeLighter(10);

    EXPECT_GT(ColourAt(Grab(), 0.5, 0.5).red(), before.red() + 20);
}

TEST_F(CanvasTest, showsTheOriginalWhileTheKeyIsHeld)
{
    OpenLarge();
    const QColor original = ColourAt(Grab(), 0.5, 0.5);
    MakeLighter(10);
    const QColor edited = ColourAt(Grab(), 0.5, 0.5);
    Canvas().setFocus();

    QTest::keyPress(&Canvas(), Qt::Key_Space);
    EXPECT_EQ(ColourAt(Grab(), 0.5, 0.5), original);
    QTest::keyRelease(&Canvas(), Qt::Key_Space);

    EXPECT_EQ(ColourAt(Grab(), 0.5, 0.5), edited);
}

TEST_F(CanvasTest, showsTheOriginalWhileTheButtonIsHeld)
{
    OpenLarge();
    auto* const button = Find<QToolButton>("compare");

    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_TRUE(Canvas().IsComparing());
    QTest::mouseRelease(button, Qt::LeftButton);

    EXPECT_FALSE(Canvas().IsComparing());
}

TEST_F(CanvasTest, endsTheComparisonWhenTheFocusGoes)
{
    OpenLarge();
    Canvas().setFocus();
    QTest::keyPress(&Canvas(), Qt::Key_Space);
    ASSERT_TRUE(Canvas().IsComparing());

    Find<QToolButton>("compare")->setFocus();

    EXPECT_FALSE(Canvas().IsComparing());
}

TEST_F(CanvasTest, showsTheOriginalLeftOfTheLine)
{
    OpenLarge();
    const QImage original = Grab();
    MakeLighter(10);
    const QImage edited = Grab();

    FindAction("split")->trigger();
    const QImage split = Grab();

    EXPECT_EQ(ColourAt(split, 0.25, 0.5), ColourAt(original, 0.25, 0.5));
    EXPECT_EQ(ColourAt(split, 0.75, 0.5), ColourAt(edited, 0.75, 0.5));
    EXPECT_NE(ColourAt(edited, 0.25, 0.5), ColourAt(original, 0.25, 0.5));
}

TEST_F(CanvasTest, movesTheLineOfTheSplitView)
{
    OpenLarge();
    FindAction("split")->trigger();
    const QPoint line(Canvas().width() / 2, 100);

    Drag(Canvas(), line, {Canvas().width() / 4, 100});
    EXPECT_NEAR(FindSplitLine(Canvas()), 0.25, 0.01);
    QTest::keyClick(&Canvas(), Qt::Key_Right, Qt::AltModifier);

    EXPECT_NEAR(FindSplitLine(Canvas()), 0.27, 0.01);
}
