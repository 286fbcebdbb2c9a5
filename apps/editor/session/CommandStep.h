// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QUndoCommand>

#include <functional>
#include <memory>

namespace LumetraEditor {

/// A panel's command on the undo stack together with its changes of the edit, so that both are one
/// step.
class CommandStep : public QUndoCommand
{
public:
    /// Runs a part of the command, during which nothing makes steps of its own, and returns the
    /// edit afterwards.
    using Run = std::function<LumetraHost::EditState(const std::function<void()>& part)>;
    using Restore = std::function<void(const LumetraHost::EditState& state)>;

    CommandStep(std::unique_ptr<QUndoCommand> command, LumetraHost::EditState before, Run run,
                Restore restore);

    void undo() override;
    void redo() override;
    int id() const override { return m_command->id(); }
    bool mergeWith(const QUndoCommand* other) override;

private:
    std::unique_ptr<QUndoCommand> m_command;
    LumetraHost::EditState m_before;
    LumetraHost::EditState m_after;
    Run m_run;
    Restore m_restore;
    bool m_isDone = false;
};

} // namespace LumetraEditor
