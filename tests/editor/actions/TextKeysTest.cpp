// SPDX-License-Identifier: GPL-2.0-or-later
// Keys that edit text, in a field with the focus, while commands have the same keys.
#include "editor/EditorFixture.h"

#include "session/Editor.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

using namespace LumetraTest;

namespace {

class TextKeysTest : public EditorTest
{
protected:
    TextKeysTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 300, 200));
        ClickLook(QStringLiteral("Candlelight"));
    }

    QLineEdit* Search() const { return Find<QLineEdit>("searchField"); }
    QSpinBox* Number() const
    {
        return Find<QSlider>("intensitySlider")->parentWidget()->findChild<QSpinBox*>();
    }

    /// Counts commands from now on instead of running them.
    void CountCommands()
    {
        for (QAction* const action : window->findChildren<QAction*>()) {
            if (action->shortcut().isEmpty())
                continue;
            action->disconnect();
            action->setEnabled(true);
            QObject::connect(action, &QAction::triggered, window.get(),
                             [this, action] { done.append(action->objectName()); });
        }
    }

    QStringList done;
};

} // namespace

TEST_F(TextKeysTest, ctrlBackspaceInTheSearchTakesTheWordAndNotTheLook)
{
    Search()->setFocus();
    QTest::keyClicks(Search(), QStringLiteral("candle light"));

    QTest::keyClick(Search(), Qt::Key_Backspace, Qt::ControlModifier);

    EXPECT_EQ(Search()->text(), QStringLiteral("candle "));
    EXPECT_EQ(GetAppliedName(), QStringLiteral("Candlelight"));
}

TEST_F(TextKeysTest, ctrlBackspaceInANumberTakesTheNumberAndNotTheLook)
{
    Number()->setFocus();
    auto* const edit = Number()->findChild<QLineEdit*>();
    edit->deselect();
    edit->end(false);

    QTest::keyClick(Number(), Qt::Key_Backspace, Qt::ControlModifier);

    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(GetAppliedName(), QStringLiteral("Candlelight"));
}

/// True for the letters that delete, as in Emacs, where the window system has such keys. They are
/// commands of the window here.
bool IsLetterForDeleting(QKeySequence::StandardKey standard, const QKeySequence& key)
{
    const int letter = key[0] & ~Qt::KeyboardModifierMask;
    return letter >= Qt::Key_A && letter <= Qt::Key_Z && standard != QKeySequence::Undo &&
           standard != QKeySequence::Redo && standard != QKeySequence::Cut &&
           standard != QKeySequence::Copy && standard != QKeySequence::Paste &&
           standard != QKeySequence::SelectAll;
}

TEST_F(TextKeysTest, noKeyThatEditsTextIsACommandInATextField)
{
    CountCommands();
    for (QWidget* const field : {static_cast<QWidget*>(Search()), static_cast<QWidget*>(Number())})
        for (const auto standard : {QKeySequence::Undo,
                                    QKeySequence::Redo,
                                    QKeySequence::Cut,
                                    QKeySequence::Copy,
                                    QKeySequence::Paste,
                                    QKeySequence::SelectAll,
                                    QKeySequence::Backspace,
                                    QKeySequence::Delete,
                                    QKeySequence::DeleteStartOfWord,
                                    QKeySequence::DeleteEndOfWord,
                                    QKeySequence::DeleteEndOfLine,
                                    QKeySequence::DeleteCompleteLine,
                                    QKeySequence::MoveToNextWord,
                                    QKeySequence::MoveToPreviousWord,
                                    QKeySequence::MoveToStartOfLine,
                                    QKeySequence::MoveToEndOfLine,
                                    QKeySequence::MoveToStartOfDocument,
                                    QKeySequence::MoveToEndOfDocument,
                                    QKeySequence::SelectNextWord,
                                    QKeySequence::SelectPreviousWord,
                                    QKeySequence::SelectStartOfLine,
                                    QKeySequence::SelectEndOfLine})
            for (const QKeySequence& key : QKeySequence::keyBindings(standard)) {
                if (IsLetterForDeleting(standard, key))
                    continue;
                // Each key is that of a command too.
                QAction* const command = FindAction("favouritePreset");
                command->setShortcut(key);
                done.clear();
                field->setFocus();

                QTest::keyClick(
                    field, static_cast<Qt::Key>(key[0] & ~Qt::KeyboardModifierMask),
                    static_cast<Qt::KeyboardModifiers>(key[0] & Qt::KeyboardModifierMask));

                EXPECT_EQ(done, QStringList())
                    << key.toString().toStdString() << " on " << field->metaObject()->className();
            }
}

TEST_F(TextKeysTest, otherKeysStayCommandsInATextField)
{
    CountCommands();
    Search()->setFocus();

    QTest::keyClick(Search(), Qt::Key_D, Qt::ControlModifier);

    EXPECT_EQ(done, QStringList{QStringLiteral("favouritePreset")});
}
