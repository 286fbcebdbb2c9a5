// SPDX-License-Identifier: MIT
// The contract of ClickSlider: a press on the groove is a drag, a gesture has one end.
#include "Zorvik/Lumetra/ClickSlider.h"

#include <QApplication>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using Zorvik::Lumetra::ClickSlider;

/// Opens the operations that tests need to aim at the handle and to see whether it is drawn
/// pressed.
class AimedSlider : public ClickSlider
{
public:
    using ClickSlider::ClickSlider;

    QRect HandleAt(int value) const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        option.sliderPosition = value;
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
};

class ClickSliderTest : public testing::Test
{
protected:
    ClickSliderTest()
    {
        m_window.resize(460, 460);
        Lay(Qt::Horizontal);
        m_slider.setRange(0, 10);
        m_slider.setGestureEndDelay(1000000);
        QObject::connect(&m_slider, &QSlider::valueChanged, &m_slider,
                         [this](int value) { m_log += QString::number(value); });
        QObject::connect(&m_slider, &QSlider::sliderPressed, &m_slider,
                         [this] { m_log += QStringLiteral("pressed"); });
        QObject::connect(&m_slider, &QSlider::sliderReleased, &m_slider,
                         [this] { m_log += QStringLiteral("released"); });
        QObject::connect(&m_slider, &ClickSlider::wheelFinished, &m_slider,
                         [this] { m_log += QStringLiteral("finished"); });
        m_window.show();
        m_window.activateWindow();
        (void)QTest::qWaitForWindowActive(&m_window);
    }

    void Lay(Qt::Orientation orientation)
    {
        m_slider.setOrientation(orientation);
        m_slider.setGeometry(orientation == Qt::Horizontal ? QRect(20, 40, 400, 24)
                                                           : QRect(20, 40, 24, 400));
    }

    void Press(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(m_window.windowHandle(), button, {}, m_slider.mapToParent(position));
    }
    void Move(const QPoint& position)
    {
        QTest::mouseMove(m_window.windowHandle(), m_slider.mapToParent(position));
    }
    void Release(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(m_window.windowHandle(), button, {}, m_slider.mapToParent(position));
    }

    void TurnWheel(int angle)
    {
        const QPoint centre = m_slider.rect().center();
        QWheelEvent event(centre, m_slider.mapToGlobal(centre), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&m_slider, &event);
    }

    QPoint Centre(int value) const { return m_slider.HandleAt(value).center(); }

    std::string TakeLog()
    {
        const std::string log = m_log.join(QLatin1Char(' ')).toStdString();
        m_log.clear();
        return log;
    }

    QWidget m_window;
    AimedSlider m_slider{&m_window};

private:
    QStringList m_log;
};

TEST_F(ClickSliderTest, settersForwardToTheBase)
{
    m_slider.setMinimum(-5);
    m_slider.setValue(-3);

    EXPECT_EQ(m_slider.minimum(), -5);
    EXPECT_EQ(m_slider.value(), -3);
    EXPECT_EQ(TakeLog(), "-3");
}

TEST_F(ClickSliderTest, pressOnTheGrooveMovesTheHandleThereAndBeginsADrag)
{
    Press(Centre(7));
    EXPECT_EQ(TakeLog(), "pressed 7");
    EXPECT_TRUE(m_slider.isSliderDown());

    Move(Centre(8));
    Move(Centre(3));
    EXPECT_EQ(TakeLog(), "8 3");

    Release(Centre(3));
    EXPECT_EQ(TakeLog(), "released");
    EXPECT_FALSE(m_slider.isSliderDown());
}

TEST_F(ClickSliderTest, pressOnTheGrooveBringsTheHandlesMiddleUnderThePointer)
{
    m_slider.setRange(0, 5000);
    for (const int x : {60, 199, 341}) {
        Press(QPoint(x, 12));
        EXPECT_NEAR(Centre(m_slider.value()).x(), x, 1);
        Move(QPoint(x + 30, 12));
        EXPECT_NEAR(Centre(m_slider.value()).x(), x + 30, 1);
        Release(QPoint(x + 30, 12));
    }
}

TEST_F(ClickSliderTest, pressOnTheGrooveIsNeverAPageStep)
{
    m_slider.setRange(0, 100);
    m_slider.setPageStep(10);

    Press(QPoint(m_slider.width() - 1, 0));
    EXPECT_EQ(TakeLog(), "pressed 100");
    Release(QPoint(m_slider.width() - 1, 0));
    TakeLog();

    Press(QPoint(0, m_slider.height() - 1));
    EXPECT_EQ(TakeLog(), "pressed 0");
}

TEST_F(ClickSliderTest, pressOnTheHandleMovesNothingAndKeepsTheGrip)
{
    m_slider.setValue(5);
    TakeLog();
    const QRect handle = m_slider.HandleAt(5);

    Press(handle.topLeft() + QPoint(1, 3));
    EXPECT_EQ(TakeLog(), "pressed");

    Move(m_slider.HandleAt(6).topLeft() + QPoint(1, 3));
    EXPECT_EQ(TakeLog(), "6");
}

TEST_F(ClickSliderTest, verticalSliderIsPressedAndDraggedToo)
{
    Lay(Qt::Vertical);

    Press(Centre(9));
    Move(Centre(2));
    Release(Centre(2));

    EXPECT_EQ(TakeLog(), "pressed 9 2 released");
}

TEST_F(ClickSliderTest, invertedAndMirroredSlidersFollowThePointer)
{
    m_slider.setInvertedAppearance(true);
    Press(Centre(2));
    Release(Centre(2));
    EXPECT_EQ(TakeLog(), "pressed 2 released");
    EXPECT_GT(Centre(2).x(), m_slider.width() / 2);

    m_slider.setLayoutDirection(Qt::RightToLeft);
    Press(Centre(3));
    Release(Centre(3));
    EXPECT_EQ(TakeLog(), "pressed 3 released");
    EXPECT_LT(Centre(3).x(), m_slider.width() / 2);
}

TEST_F(ClickSliderTest, withoutTrackingTheValueComesWithTheRelease)
{
    m_slider.setTracking(false);

    Press(Centre(7));
    Move(Centre(8));
    EXPECT_EQ(TakeLog(), "pressed");

    Release(Centre(8));
    EXPECT_EQ(TakeLog(), "released 8");
}

TEST_F(ClickSliderTest, emptyRangeTakesNoPress)
{
    m_slider.setRange(4, 4);
    TakeLog();

    Press(Centre(4) + QPoint(60, 0));

    EXPECT_EQ(TakeLog(), "");
    EXPECT_FALSE(m_slider.isSliderDown());
}

TEST_F(ClickSliderTest, otherButtonsDoNotDragToTheirPlace)
{
    Press(Centre(7), Qt::RightButton);
    Release(Centre(7), Qt::RightButton);

    EXPECT_EQ(TakeLog(), "");
}

TEST_F(ClickSliderTest, pressedHandleIsDrawnPressed)
{
    m_slider.setStyleSheet(
        QStringLiteral("QSlider::groove { height: 4px; background: black; }"
                       "QSlider::handle { width: 12px; margin: -4px 0; background: white; }"
                       "QSlider::handle:pressed { background: red; }"));
    const auto colourAt = [this](int value) {
        return m_slider.grab().toImage().pixelColor(Centre(value));
    };
    EXPECT_EQ(colourAt(0), QColor(Qt::white));

    Press(Centre(6));
    EXPECT_EQ(colourAt(6), QColor(Qt::red));

    Release(Centre(6));
    EXPECT_EQ(colourAt(6), QColor(Qt::white));
}

TEST_F(ClickSliderTest, wheelStepsEndOnceWhenTheDelayHasPassed)
{
    m_slider.setGestureEndDelay(0);

    TurnWheel(120);
    TurnWheel(120);
    EXPECT_EQ(TakeLog(), "3 6");

    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(TakeLog(), "finished");
}

TEST_F(ClickSliderTest, keyStepsEndOnceWhenTheDelayHasPassed)
{
    m_slider.setFocus();
    m_slider.setGestureEndDelay(0);

    QTest::keyClick(&m_slider, Qt::Key_Right);
    QTest::keyClick(&m_slider, Qt::Key_PageUp);
    QTest::keyClick(&m_slider, Qt::Key_Home);
    EXPECT_EQ(TakeLog(), "1 10 0");

    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(TakeLog(), "finished");
}

TEST_F(ClickSliderTest, stepsThatChangeNothingBeginNoGesture)
{
    m_slider.setFocus();

    TurnWheel(-120);
    QTest::keyClick(&m_slider, Qt::Key_Left);
    QTest::keyClick(&m_slider, Qt::Key_A);
    m_slider.clearFocus();

    EXPECT_EQ(TakeLog(), "");
}

TEST_F(ClickSliderTest, gestureEndsWhenThePointerLeaves)
{
    TurnWheel(120);

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&m_slider, &leave);
    QApplication::sendEvent(&m_slider, &leave);

    EXPECT_EQ(TakeLog(), "3 finished");
}

TEST_F(ClickSliderTest, gestureEndsWhenTheFocusLeaves)
{
    m_slider.setFocus();
    QTest::keyClick(&m_slider, Qt::Key_Right);

    m_slider.clearFocus();

    EXPECT_EQ(TakeLog(), "1 finished");
}

TEST_F(ClickSliderTest, gestureEndsWhenTheSliderIsHiddenOrDisabled)
{
    TurnWheel(120);
    m_slider.hide();
    EXPECT_EQ(TakeLog(), "3 finished");

    m_slider.show();
    TurnWheel(120);
    m_window.setEnabled(false);
    EXPECT_EQ(TakeLog(), "6 finished");
}

TEST_F(ClickSliderTest, gestureEndsBeforeAPressBeginsADrag)
{
    TurnWheel(120);

    Press(Centre(7));

    EXPECT_EQ(TakeLog(), "3 finished pressed 7");
}

TEST_F(ClickSliderTest, stepsDuringADragBelongToTheDrag)
{
    Press(Centre(5));
    TakeLog();

    TurnWheel(120);
    Release(Centre(5));
    m_slider.clearFocus();

    const std::string log = TakeLog();
    EXPECT_EQ(log.find("finished"), std::string::npos) << log;
    EXPECT_NE(log.find("released"), std::string::npos) << log;
}

TEST_F(ClickSliderTest, dragEndsWhenTheSliderIsDisabledOrHidden)
{
    Press(Centre(5));
    m_slider.setEnabled(false);
    EXPECT_EQ(TakeLog(), "pressed 5 released");
    Release(Centre(5));
    m_slider.setEnabled(true);

    Press(Centre(7));
    m_slider.hide();
    EXPECT_EQ(TakeLog(), "pressed 7 released");
    EXPECT_FALSE(m_slider.isSliderDown());
}

TEST_F(ClickSliderTest, sliderPutDownByTheProgramIsReleasedWhenDisabled)
{
    m_slider.setSliderDown(true);

    m_slider.setEnabled(false);

    EXPECT_EQ(TakeLog(), "pressed released");
    EXPECT_FALSE(m_slider.isSliderDown());
}

TEST_F(ClickSliderTest, slowWheelIsGatheredIntoSteps)
{
    TurnWheel(20);
    TurnWheel(20);

    EXPECT_EQ(TakeLog(), "1");
}

TEST_F(ClickSliderTest, negativeDelayCountsAsNone)
{
    m_slider.setGestureEndDelay(-5);

    TurnWheel(120);
    QCoreApplication::processEvents();

    EXPECT_EQ(TakeLog(), "3 finished");
}

TEST_F(ClickSliderTest, deletionDuringAGestureIsSilent)
{
    int ends = 0;
    auto* slider = new ClickSlider(&m_window);
    QObject::connect(slider, &ClickSlider::wheelFinished, &m_window, [&ends] { ++ends; });
    QTest::keyClick(slider, Qt::Key_Right);

    delete slider;

    EXPECT_EQ(ends, 0);
}

} // namespace
} // namespace LumetraTest
