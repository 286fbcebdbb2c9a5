// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "export/selection/CurrentEdits.h"
#include "exporting/batch/OutputPlan.h"
#include "exporting/recipes/NamedRecipe.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace LumetraEditor {

class ExportGuard;

/// The export of several photos as the user wants it.
struct SelectionOrder
{
    QStringList photos;
    std::vector<LumetraHost::NamedRecipe> recipes; ///< each makes a file of every photo
    QString folder;                                ///< in place of the recipes' own; empty: theirs
    QString file;          ///< name without extension, in place of theirs; empty: theirs
    bool replaces = false; ///< false: files that are there stay, and their photos are skipped
    SettleEdit settle;     ///< called for each photo before its edit is read; may be empty
};

/// The files that an order makes, known before anything is written.
struct SelectionPlan
{
    std::vector<LumetraHost::PhotoJob> jobs; ///< photo by photo, each with all recipes
    bool replaces = false;                   ///< files that are there may be replaced
    QString problem; ///< why nothing can be planned; empty in a plan that holds

    /// Looks at the files of all photos and outputs, each photo with its own edit. Refuses names
    /// with {preset}, {group} or {intensity}, since an edit may be of several looks or of none.
    /// Usable from any thread.
    static SelectionPlan Make(const SelectionOrder& order, const ExportGuard& guard);
    /// The name of the first photo's first file; empty without photo or recipe. Zorvik::Exception
    /// for names that cannot be used.
    static QString PreviewFirst(const SelectionOrder& order);

    int Count(LumetraHost::PhotoJob::State state) const;
    /// The reasons of the jobs that failed, in their order.
    QStringList GetMessages() const;
};

} // namespace LumetraEditor
