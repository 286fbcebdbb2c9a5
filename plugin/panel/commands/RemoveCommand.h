// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetModel.h"

#include <QPointer>
#include <QUndoCommand>

namespace LumetraPlugin {

class PresetCommands;

/// The removal of one of the user's presets, which can be undone as long as the panel lives.
class RemoveCommand : public QUndoCommand
{
public:
    RemoveCommand(PresetCommands& commands, const PresetModel::PresetPtr& preset, int row,
                  const QString& text);

    void redo() override;
    void undo() override;

private:
    QPointer<PresetCommands> m_commands;
    PresetModel::PresetPtr m_preset;
    int m_row;
};

} // namespace LumetraPlugin
