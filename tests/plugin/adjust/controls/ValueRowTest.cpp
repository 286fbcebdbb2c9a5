// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/ValueRow.h"

#include "adjust/controls/NeutralSlider.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace LumetraAdjust;

namespace {

class ValueRowTest : public testing::Test
{
protected:
    ValueRowTest()
    {
        row.resize(280, 26);
        row.show();
        QApplication::setActiveWindow(&row);
    }

    static LumetraEditor::ParameterDescription Describe()
    {
        LumetraEditor::ParameterDescription stops;
        stops.name = "stops";
        stops.minimum = -5;
        stops.maximum = 5;
        return stops;
    }
    QDoubleSpinBox& Number() { return *row.findChild<QDoubleSpinBox*>(); }

    ValueRow row{Describe()};
    QSignalSpy moved{&row, &ValueRow::moved};
    QSignalSpy finished{&row, &ValueRow::finished};
    QSignalSpy typed{&row, &ValueRow::typed};
    QSignalSpy reset{&row, &ValueRow::resetRequested};
};

} // namespace

TEST_F(ValueRowTest, showsAValueWithoutASignal)
{
    row.Show(1.25);

    EXPECT_EQ(row.GetSlider().value(), 125);
    EXPECT_EQ(Number().value(), 1.25);
    EXPECT_EQ(moved.count() + finished.count() + typed.count(), 0);
}

TEST_F(ValueRowTest, tellsOfADragAndOfItsEnd)
{
    const QPoint middle = row.GetSlider().rect().center();
    QTest::mousePress(&row.GetSlider(), Qt::LeftButton, {}, middle + QPoint(30, 0));
    EXPECT_GE(moved.count(), 1);
    EXPECT_EQ(finished.count(), 0);

    QTest::mouseRelease(&row.GetSlider(), Qt::LeftButton, {}, middle + QPoint(30, 0));

    EXPECT_EQ(finished.count(), 1);
    EXPECT_GT(moved.last().first().toDouble(), 0);
    EXPECT_EQ(Number().value(), moved.last().first().toDouble());
}

TEST_F(ValueRowTest, takesANumberThatIsTyped)
{
    Number().setFocus();
    Number().selectAll();
    QTest::keyClicks(&Number(), QStringLiteral("-1.5"));
    QTest::keyClick(&Number(), Qt::Key_Return);

    ASSERT_EQ(typed.count(), 1);
    EXPECT_EQ(typed.first().first().toDouble(), -1.5);
}

TEST_F(ValueRowTest, asksForTheDefaultAtADoubleClick)
{
    QTest::mouseDClick(&row.GetSlider(), Qt::LeftButton);

    EXPECT_EQ(reset.count(), 1);
}

TEST_F(ValueRowTest, leavesTheWheelToThePanelWithoutTheFocus)
{
    row.setFocusProxy(nullptr);
    row.setFocus();
    const auto turn = [this] {
        const QPointF at = row.GetSlider().rect().center();
        QWheelEvent wheel(at, row.GetSlider().mapToGlobal(at.toPoint()), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&row.GetSlider(), &wheel);
    };
    row.GetSlider().clearFocus();
    turn();
    EXPECT_EQ(moved.count(), 0);

    row.GetSlider().setFocus();
    turn();
    EXPECT_EQ(moved.count(), 1);
}

TEST_F(ValueRowTest, namesItsPartsForAScreenReader)
{
    row.SetNames(QStringLiteral("Stops"), QStringLiteral("Exposure"));

    EXPECT_EQ(row.GetSlider().accessibleName(), QStringLiteral("Exposure"));
    EXPECT_EQ(Number().accessibleName(), QStringLiteral("Exposure as a number"));
}
