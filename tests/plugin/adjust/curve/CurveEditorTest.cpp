// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/curve/CurveEditor.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace LumetraAdjust;

namespace {

class CurveEditorTest : public testing::Test
{
protected:
    CurveEditorTest()
    {
        editor.resize(216, 216); // a square of 200 pixels
        editor.show();
        QApplication::setActiveWindow(&editor);
        editor.setFocus();
    }

    static QPoint At(double x, double y)
    {
        return {static_cast<int>(8 + 2 * x), static_cast<int>(208 - 2 * y)};
    }
    void Drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(&editor, Qt::LeftButton, {}, from);
        MoveTo(to);
        QTest::mouseRelease(&editor, Qt::LeftButton, {}, to);
    }
    /// Moves the pointer with the left button down.
    void MoveTo(const QPoint& to)
    {
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&editor, &move);
    }
    void ExpectPoint(int position, double x, double y)
    {
        const QPointF point = editor.GetPoints().Get().at(static_cast<std::size_t>(position));
        EXPECT_NEAR(point.x(), x, 0.6);
        EXPECT_NEAR(point.y(), y, 0.6);
    }

    CurveEditor editor;
    QSignalSpy moved{&editor, &CurveEditor::moved};
    QSignalSpy finished{&editor, &CurveEditor::finished};
};

} // namespace

TEST_F(CurveEditorTest, addsAPointWhereItIsPressedAndDragsIt)
{
    Drag(At(50, 50), At(50, 70));

    ASSERT_EQ(editor.GetPoints().Count(), 3);
    ExpectPoint(1, 50, 70);
    EXPECT_EQ(editor.GetSelected(), 1);
    EXPECT_GE(moved.count(), 2);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(CurveEditorTest, dragsAPointThatIsThere)
{
    Drag(At(0, 0), At(0, 20));

    EXPECT_EQ(editor.GetPoints().Count(), 2);
    ExpectPoint(0, 0, 20);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(CurveEditorTest, onlySelectsWhatIsClickedAndNotMoved)
{
    QTest::mouseClick(&editor, Qt::LeftButton, {}, At(100, 100));

    EXPECT_EQ(editor.GetSelected(), 1);
    EXPECT_EQ(moved.count() + finished.count(), 0);
}

TEST_F(CurveEditorTest, removesAPointAtADoubleClick)
{
    Drag(At(50, 50), At(50, 70));
    QTest::mouseDClick(&editor, Qt::LeftButton, {}, At(50, 70));

    EXPECT_EQ(editor.GetPoints().Count(), 2);
    EXPECT_EQ(finished.count(), 2);
}

TEST_F(CurveEditorTest, isWorkedByKeyboardAlone)
{
    QTest::keyClick(&editor, Qt::Key_Insert);
    ASSERT_EQ(editor.GetPoints().Count(), 3);
    EXPECT_EQ(editor.GetSelected(), 1);

    QTest::keyClick(&editor, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&editor, Qt::Key_Right);
    ExpectPoint(1, 51, 55);
    QTest::keyClick(&editor, Qt::Key_Down);
    QTest::keyClick(&editor, Qt::Key_Left);
    ExpectPoint(1, 50, 54);
    QTest::keyClick(&editor, Qt::Key_PageDown);
    EXPECT_EQ(editor.GetSelected(), 0);
    QTest::keyClick(&editor, Qt::Key_End);
    EXPECT_EQ(editor.GetSelected(), 2);
    QTest::keyClick(&editor, Qt::Key_PageDown);
    QTest::keyClick(&editor, Qt::Key_Delete);

    EXPECT_EQ(editor.GetPoints().Count(), 2);
    EXPECT_EQ(finished.count(), 6);
}

TEST_F(CurveEditorTest, keepsItsKeysFromTheWindow)
{
    QKeyEvent own(QEvent::ShortcutOverride, Qt::Key_Left, Qt::NoModifier);
    own.ignore();
    QApplication::sendEvent(&editor, &own);
    EXPECT_TRUE(own.isAccepted());

    QKeyEvent windows(QEvent::ShortcutOverride, Qt::Key_Left, Qt::AltModifier);
    windows.ignore();
    QApplication::sendEvent(&editor, &windows);
    EXPECT_FALSE(windows.isAccepted());
}

TEST_F(CurveEditorTest, endsAStepThatIsCutShort)
{
    QTest::mousePress(&editor, Qt::LeftButton, {}, At(50, 50));
    editor.setEnabled(false);

    EXPECT_EQ(finished.count(), 1);
}

TEST_F(CurveEditorTest, leavesOtherPointsAloneThatComeDuringADrag)
{
    QTest::mousePress(&editor, Qt::LeftButton, {}, At(50, 50));
    MoveTo(At(50, 70));
    CurvePoints undone;
    undone.Move(1, {100, 80});

    editor.Show(undone);
    MoveTo(At(30, 20));
    QTest::mouseRelease(&editor, Qt::LeftButton, {}, At(30, 20));

    ASSERT_EQ(editor.GetPoints().Count(), 2);
    ExpectPoint(0, 0, 0);
    ExpectPoint(1, 100, 80);
    EXPECT_EQ(finished.count(), 0);
}

TEST_F(CurveEditorTest, goesOnWithADragWhileAnotherButtonIsPressed)
{
    QTest::mousePress(&editor, Qt::LeftButton, {}, At(50, 50));
    QTest::mousePress(&editor, Qt::RightButton, {}, At(50, 50));
    QTest::mouseRelease(&editor, Qt::RightButton, {}, At(50, 50));
    MoveTo(At(50, 70));
    QTest::mouseRelease(&editor, Qt::LeftButton, {}, At(50, 70));

    ExpectPoint(1, 50, 70);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(CurveEditorTest, tellsAScreenReaderOfTheSelectedPoint)
{
    editor.SetName(QStringLiteral("Tone curve: All"));
    QTest::keyClick(&editor, Qt::Key_End);

    EXPECT_EQ(editor.accessibleName(), QStringLiteral("Tone curve: All"));
    EXPECT_EQ(editor.accessibleDescription(), QStringLiteral("Point 2 of 2: 100 % becomes 100 %"));
}
