// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/CommandStep.h"

#include <utility>

namespace LumetraEditor {

using LumetraHost::EditState;

CommandStep::CommandStep(std::unique_ptr<QUndoCommand> command, EditState before, Run run,
                         Restore restore)
    : QUndoCommand(command->text()), m_command(std::move(command)), m_before(std::move(before)),
      m_run(std::move(run)), m_restore(std::move(restore))
{
}

/// Undoes the command first: the edit may need data that it brings back.
void CommandStep::undo()
{
    m_run([this] { m_command->undo(); });
    if (!(m_before == m_after))
        m_restore(m_before);
    setObsolete(m_command->isObsolete());
}

void CommandStep::redo()
{
    EditState state = m_run([this] { m_command->redo(); });
    if (!std::exchange(m_isDone, true))
        m_after = std::move(state);
    if (!(m_before == m_after))
        m_restore(m_after);
    setObsolete(m_command->isObsolete());
}

bool CommandStep::mergeWith(const QUndoCommand* other)
{
    const auto* const step = dynamic_cast<const CommandStep*>(other);
    if (!step || !m_command->mergeWith(step->m_command.get()))
        return false;
    m_after = step->m_after;
    return true;
}

} // namespace LumetraEditor
