// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/wheel/HueWheel.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace LumetraAdjust;

namespace {

class HueWheelTest : public testing::Test
{
protected:
    HueWheelTest()
    {
        wheel.resize(214, 214); // a circle of 200 pixels
        wheel.show();
        QApplication::setActiveWindow(&wheel);
        wheel.setFocus();
    }

    HueWheel wheel;
    QSignalSpy moved{&wheel, &HueWheel::moved};
    QSignalSpy finished{&wheel, &HueWheel::finished};
};

} // namespace

TEST_F(HueWheelTest, turnsAPlaceIntoHueAndSaturation)
{
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, {107 + 50, 107});
    EXPECT_NEAR(wheel.GetHue(), 0, 1);
    EXPECT_NEAR(wheel.GetSaturation(), 50, 1);

    QTest::mouseClick(&wheel, Qt::LeftButton, {}, {107, 107 - 80});
    EXPECT_NEAR(wheel.GetHue(), 90, 1);
    EXPECT_NEAR(wheel.GetSaturation(), 80, 1);
    EXPECT_EQ(moved.count(), 2);
    EXPECT_EQ(finished.count(), 2);
}

TEST_F(HueWheelTest, goesNoFurtherThanItsRim)
{
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, {2, 107});

    EXPECT_NEAR(wheel.GetHue(), 180, 1);
    EXPECT_EQ(wheel.GetSaturation(), 100);
}

TEST_F(HueWheelTest, goesOnWithADragWhileAnotherButtonIsPressed)
{
    QTest::mousePress(&wheel, Qt::LeftButton, {}, {107, 107 - 80});
    QTest::mousePress(&wheel, Qt::RightButton, {}, {107, 107 - 80});
    QTest::mouseRelease(&wheel, Qt::RightButton, {}, {107, 107 - 80});
    QMouseEvent move(QEvent::MouseMove, QPointF(107 + 50, 107), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&wheel, &move);
    QTest::mouseRelease(&wheel, Qt::LeftButton, {}, {107 + 50, 107});

    EXPECT_NEAR(wheel.GetHue(), 0, 1);
    EXPECT_NEAR(wheel.GetSaturation(), 50, 1);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(HueWheelTest, isWorkedByKeyboard)
{
    QTest::keyClick(&wheel, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&wheel, Qt::Key_Right);

    EXPECT_EQ(wheel.GetSaturation(), 10);
    EXPECT_EQ(wheel.GetHue(), 359);
    QTest::keyClick(&wheel, Qt::Key_Left);
    EXPECT_EQ(wheel.GetHue(), 0);
    QTest::keyClick(&wheel, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&wheel, Qt::Key_Down);
    EXPECT_EQ(wheel.GetSaturation(), 0);
    EXPECT_EQ(finished.count(), 5);
}

TEST_F(HueWheelTest, asksForAResetAtADoubleClick)
{
    QSignalSpy reset(&wheel, &HueWheel::resetRequested);

    QTest::mouseDClick(&wheel, Qt::LeftButton);

    EXPECT_EQ(reset.count(), 1);
}

TEST_F(HueWheelTest, tellsAScreenReaderOfItsValues)
{
    wheel.SetName(QStringLiteral("Colour grading: Shadows"));
    wheel.Show(210, 30);

    EXPECT_EQ(wheel.accessibleName(), QStringLiteral("Colour grading: Shadows"));
    EXPECT_EQ(wheel.accessibleDescription(), QStringLiteral("Hue 210°, saturation 30 %"));
    EXPECT_EQ(moved.count(), 0);
}
