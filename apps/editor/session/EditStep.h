// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QUndoCommand>

#include <functional>
#include <memory>
#include <utility>

namespace LumetraEditor {

/// Steps are numbered in the order in which the user has taken them, on whatever photo.
class StepNumber
{
public:
    static quint64 GiveNext() { return ++s_last; }

private:
    inline static quint64 s_last = 0;
};

/// One step of the edit of one photo: the edits before and after it. Nobody changes them, and
/// copies share them.
struct OwnStep
{
    QString text;
    std::shared_ptr<const LumetraHost::EditState> before; ///< never null
    std::shared_ptr<const LumetraHost::EditState> after;  ///< never null
    quint64 number = 0;
    bool isDone = true; ///< false: the step has been undone
};

/// A step of the photo that is shown, on the undo stack. The first calls are passed over that bring
/// it into its place there.
class EditStep : public QUndoCommand
{
public:
    using Restore = std::function<void(const LumetraHost::EditState& state)>;

    /// A step that has been done just now.
    EditStep(const QString& text, const LumetraHost::EditState& before,
             const LumetraHost::EditState& after, Restore restore)
        : EditStep({text, std::make_shared<const LumetraHost::EditState>(before),
                    std::make_shared<const LumetraHost::EditState>(after), StepNumber::GiveNext()},
                   std::move(restore), 1)
    {
    }

    EditStep(const OwnStep& step, Restore restore, int passedOver)
        : QUndoCommand(step.text), m_step(step), m_restore(std::move(restore)),
          m_passedOver(passedOver)
    {
    }

    const OwnStep& GetStep() const { return m_step; }
    void undo() override { Go(*m_step.before); }
    void redo() override { Go(*m_step.after); }

private:
    void Go(const LumetraHost::EditState& state)
    {
        if (m_passedOver > 0)
            --m_passedOver;
        else
            m_restore(state);
    }

    OwnStep m_step;
    Restore m_restore;
    int m_passedOver;
};

} // namespace LumetraEditor
