// SPDX-License-Identifier: GPL-2.0-or-later
// Messages that need no answer leave by themselves; those that have to be read stay.
#include "editor/EditorFixture.h"

#include "window/MessageBar.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace LumetraTest;
using LumetraEditor::MessageBar;

namespace {

const QString Brief = QStringLiteral("Wrote “a.cube”.");
const QString Problem = QStringLiteral("The disk is full.");

class BriefMessageTest : public EditorTest
{
protected:
    MessageBar& Bar() { return GetPart<MessageBar>(); }
    QTimer& Clock() { return *Find<QTimer>("briefTime"); }
    /// The time of brief messages is over.
    void PassTime()
    {
        ASSERT_TRUE(Clock().isActive());
        Clock().stop();
        QMetaObject::invokeMethod(&Clock(), "timeout");
    }
};

} // namespace

TEST_F(BriefMessageTest, aBriefMessageLeavesByItself)
{
    editor->ShowBriefly(Brief);
    ASSERT_TRUE(Bar().isVisible());
    EXPECT_EQ(Bar().GetText(), Brief);
    EXPECT_GE(Clock().interval(), 4000) << "it can be read";

    PassTime();

    EXPECT_FALSE(Bar().isVisible());
}

TEST_F(BriefMessageTest, aProblemStaysUntilItIsClosed)
{
    editor->ShowMessage(Problem);
    EXPECT_FALSE(Clock().isActive());
    editor->ShowBriefly(Brief);

    PassTime();

    EXPECT_EQ(Bar().GetText(), Problem);
    EXPECT_FALSE(Clock().isActive());
}

TEST_F(BriefMessageTest, aMessageStaysWhileSomebodyIsAtIt)
{
    editor->ShowBriefly(Brief);
    Find<QToolButton>("messageClose")->setFocus();
    PassTime();
    EXPECT_EQ(Bar().GetText(), Brief);

    Find<QToolButton>("messageClose")->clearFocus();
    PassTime();
    EXPECT_EQ(Bar().GetText(), QString());
}

TEST_F(BriefMessageTest, screenReadersFindItsText)
{
    editor->ShowBriefly(Brief);

    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&Bar());
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(face->text(QAccessible::Name), Brief);
}

TEST_F(BriefMessageTest, aBriefMessageOutlivesThePhoto)
{
    Open(WritePhoto("lake.png", 60, 40));
    editor->ShowBriefly(Brief);

    Open(WritePhoto("hill.png", 60, 40));

    EXPECT_EQ(Bar().GetText(), Brief);
}
