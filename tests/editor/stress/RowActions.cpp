// SPDX-License-Identifier: GPL-2.0-or-later
#include "RowActions.h"

#include "AnsweredDialog.h"
#include "Pointer.h"

#include "many/FollowSwitch.h"
#include "session/Editor.h"
#include "strip/PhotoStrip.h"
#include "window/EditorWindow.h"

#include <QAction>
#include <QApplication>

namespace LumetraTest {

using LumetraEditor::PhotoStrip;

RowActions::RowActions(LumetraEditor::Editor& editor, LumetraEditor::EditorWindow& window,
                       RandomChoice& choice)
    : m_editor(editor), m_window(window), m_choice(choice)
{
}

void RowActions::Act()
{
    const int kind = m_choice.Pick(10);
    if (kind < 3)
        Step();
    else if (kind < 6)
        ClickInStrip();
    else
        Command();
    // Some actions come while the next photo is being read.
    if (m_choice.Pick(4) == 0)
        return;
    while (m_editor.IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void RowActions::Step()
{
    Trigger(m_choice.Pick(2) == 0 ? "nextPhoto" : "previousPhoto");
}

void RowActions::ClickInStrip()
{
    auto& strip = *m_window.findChild<PhotoStrip*>();
    if (!strip.isVisible() || strip.model()->rowCount() == 0)
        return Trigger("strip");
    static const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier,
                                                      Qt::ControlModifier, Qt::ShiftModifier};
    const QModelIndex row = strip.model()->index(m_choice.Pick(strip.model()->rowCount()), 0);
    SendClick(*strip.viewport(), strip.visualRect(row).center(), modifiers[m_choice.Pick(4)]);
}

void RowActions::Command()
{
    static const char* const names[] = {"copyEdit",  "copyEdit",   "pasteEdit", "pasteEdit",
                                        "putLook",   "pasteParts", "selectAll", "selectAll",
                                        "selectOne", "revert",     "strip",     "refresh"};
    const int kind = m_choice.Pick(14);
    if (kind < 12)
        Trigger(names[kind]);
    else if (auto* const follow = m_window.findChild<LumetraEditor::FollowSwitch*>();
             follow && follow->isVisible())
        follow->click();
}

void RowActions::Trigger(const char* name)
{
    auto* const action = m_window.findChild<QAction*>(QLatin1String(name));
    if (!action || !action->isEnabled())
        return;
    AnswerNextDialog(m_window, [](QDialog&) {});
    action->trigger();
    QApplication::processEvents();
}

} // namespace LumetraTest
