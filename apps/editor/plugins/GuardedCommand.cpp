// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/GuardedCommand.h"

#include "plugins/GuardedPanel.h"

namespace LumetraEditor {

GuardedCommand::GuardedCommand(GuardedPanel& panel, const Shared& command, const QString& text)
    : QUndoCommand(text), m_panel(panel), m_command(command)
{
}

GuardedCommand::~GuardedCommand() = default;

void GuardedCommand::undo()
{
    if (*m_command)
        m_panel.Guard([this] {
            (*m_command)->undo();
            setObsolete((*m_command)->isObsolete());
        });
}

void GuardedCommand::redo()
{
    if (*m_command)
        m_panel.Guard([this] {
            (*m_command)->redo();
            setObsolete((*m_command)->isObsolete());
        });
}

int GuardedCommand::id() const
{
    int id = -1;
    if (*m_command)
        m_panel.Guard([this, &id] { id = (*m_command)->id(); });
    return id;
}

bool GuardedCommand::mergeWith(const QUndoCommand* other)
{
    const auto* const guarded = dynamic_cast<const GuardedCommand*>(other);
    bool isMerged = false;
    if (*m_command && guarded && &guarded->m_panel == &m_panel && *guarded->m_command)
        m_panel.Guard([&] { isMerged = (*m_command)->mergeWith(guarded->m_command->get()); });
    return isMerged;
}

} // namespace LumetraEditor
