// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QUndoCommand>

#include <functional>
#include <utility>

namespace LumetraEditor {

/// One step of an edit on the undo stack: the states before and after it. The step has been done
/// before it is made, so the first redo() does nothing.
class EditStep : public QUndoCommand
{
public:
    using Restore = std::function<void(const LumetraHost::EditState& state)>;

    EditStep(const QString& text, LumetraHost::EditState before, LumetraHost::EditState after,
             Restore restore)
        : QUndoCommand(text), m_before(std::move(before)), m_after(std::move(after)),
          m_restore(std::move(restore))
    {
    }

    void undo() override
    {
        m_isDone = false;
        m_restore(m_before);
    }
    void redo() override
    {
        if (!std::exchange(m_isDone, true))
            m_restore(m_after);
    }

private:
    LumetraHost::EditState m_before;
    LumetraHost::EditState m_after;
    Restore m_restore;
    bool m_isDone = true;
};

} // namespace LumetraEditor
