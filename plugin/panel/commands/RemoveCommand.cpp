// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/RemoveCommand.h"

#include "panel/commands/PresetCommands.h"

namespace LumetraPlugin {

RemoveCommand::RemoveCommand(PresetCommands& commands, const PresetModel::PresetPtr& preset,
                             int row, const QString& text)
    : QUndoCommand(text), m_commands(&commands), m_preset(preset), m_row(row)
{
}

void RemoveCommand::redo()
{
    if (m_commands)
        m_commands->TakeAway(m_preset);
}

void RemoveCommand::undo()
{
    if (m_commands)
        m_commands->PutBack(m_preset, m_row);
}

} // namespace LumetraPlugin
