// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/SavedEdits.h"

#include <QString>

#include <functional>

namespace LumetraEditor {

/// Writes the changes to a photo's edit that are still waiting, and returns when they are on the
/// disk. Called from any thread.
using SettleEdit = std::function<void(const QString& photo)>;

/// Gives each photo the edit that the user sees: the saved one, after the changes that a step on
/// several photos has yet to make to it. Usable from several threads.
class CurrentEdits : public LumetraHost::LookSource
{
public:
    /// `settle` may be empty: nothing is waiting.
    explicit CurrentEdits(const SettleEdit& settle);

    LumetraHost::PhotoLook Get(const QString& photo) const override;

private:
    const LumetraHost::SavedEdits m_saved;
    const SettleEdit m_settle;
};

} // namespace LumetraEditor
