// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QString>

#include <functional>

class QWidget;

namespace LumetraEditor {

struct ManyReport;

/// Returns the name of a layer's look in the user's language; empty for a layer without a look.
using NameLayer = std::function<QString(const LumetraHost::EditLayer& layer)>;

/// Says what an edit has of a module, in the user's language: looks with their intensities, or how
/// many layers.
QString DescribePart(const LumetraHost::EditState& edit, const QString& module,
                     const NameLayer& nameLayer);

/// Says how many photos a step has changed.
QString CountChanged(const ManyReport& report);
/// Says how many photos a step has changed and left as they were, with the reasons for the first
/// few.
QString DescribeReport(const ManyReport& report);
/// True when the user has to be told more than CountChanged().
bool HasMoreToTell(const ManyReport& report);

/// Says what becomes of changes that are not made yet when the program ends.
enum class LateChanges
{
    Finish,
    GiveUp,
    Stay ///< the program goes on
};
LateChanges AskForLateChanges(QWidget* parent);

} // namespace LumetraEditor
