// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/EditStep.h"

#include <utility>

namespace LumetraEditor {

EditStep::EditStep(const QString& text, EditState before, EditState after, Restore restore)
    : QUndoCommand(text), m_before(std::move(before)), m_after(std::move(after)),
      m_restore(std::move(restore))
{
}

void EditStep::undo()
{
    m_isDone = false;
    m_restore(m_before);
}

void EditStep::redo()
{
    if (!std::exchange(m_isDone, true))
        m_restore(m_after);
}

} // namespace LumetraEditor
