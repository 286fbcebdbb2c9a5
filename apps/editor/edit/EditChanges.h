// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace LumetraEditor {

/// Makes an edit of another one; called on any thread.
using EditChange = std::function<LumetraHost::EditState(const LumetraHost::EditState& edit)>;

/// A choice among the parts of an edit. A part is everything of one module: its committed and its
/// open layers and what its panel shows. The module of a layer whose drawer is unknown is empty.
struct EditParts
{
    QStringList modules;
    bool areMeant = false; ///< true: only `modules` are chosen; false: all others are

    bool Has(const QString& module) const { return modules.contains(module) == areMeant; }
};

/// Changes of edits that bring what was done on one photo to others. All of them give edits that
/// EditStateFormat can store: open layers lie together, and no two of them have the same package.
namespace EditChanges {

/// Puts the chosen parts of `copied` in the place of those of `edit`, whose other parts stay. The
/// layers that come lie where the lowest lay that go, else on top. A lower layer that is open again
/// is closed first, in both edits.
LumetraHost::EditState Replace(const LumetraHost::EditState& edit,
                               const LumetraHost::EditState& copied, const EditParts& parts);

/// Puts the chosen layers of `copied` on top of all layers of `edit`. Open layers of `edit` become
/// committed where they would be in the way: below a committed layer, or below an open one of the
/// same module. A lower layer that is open again is closed first, in both edits.
LumetraHost::EditState AddOnTop(const LumetraHost::EditState& edit,
                                const LumetraHost::EditState& copied, const EditParts& parts);

/// Does with `edit` what a step has done with another one. Modules whose open layers or controls
/// the step has changed have the same ones on `edit` then, where their own had been. A step that
/// has committed open layers commits those of `edit`. A step that has changed committed layers is
/// not followed.
LumetraHost::EditState Follow(const LumetraHost::EditState& edit,
                              const LumetraHost::EditState& before,
                              const LumetraHost::EditState& after);

/// True when both edits put the same on a photo and panels show the same. A panel that shows
/// nothing counts like one without a part.
bool AreSame(const LumetraHost::EditState& first, const LumetraHost::EditState& second);

} // namespace EditChanges
} // namespace LumetraEditor
