// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/EditState.h"

#include <QUndoCommand>

#include <functional>

namespace LumetraEditor {

/// One step of an edit on the undo stack: the states before and after it. The step has been done
/// before it is made, so the first redo() does nothing.
class EditStep : public QUndoCommand
{
public:
    using Restore = std::function<void(const EditState& state)>;

    EditStep(const QString& text, EditState before, EditState after, Restore restore);

    void undo() override;
    void redo() override;

private:
    EditState m_before;
    EditState m_after;
    Restore m_restore;
    bool m_isDone = true;
};

} // namespace LumetraEditor
