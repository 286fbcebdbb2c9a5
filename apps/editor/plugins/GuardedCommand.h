// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QUndoCommand>

#include <memory>

namespace LumetraEditor {

class GuardedPanel;

/// A module's command on the undo stack. Every call into it passes its panel's boundary; when the
/// panel is put out of use, the command does nothing any more.
class GuardedCommand : public QUndoCommand
{
public:
    using Shared = std::shared_ptr<std::unique_ptr<QUndoCommand>>;

    /// `command` is shared with the panel, which empties it when it ends first.
    GuardedCommand(GuardedPanel& panel, const Shared& command, const QString& text);
    ~GuardedCommand() override;

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand* other) override;

private:
    GuardedPanel& m_panel; ///< not touched once the command is empty
    Shared m_command;
};

} // namespace LumetraEditor
