// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

namespace LumetraEditor {

/// Describes failures of a module's code in words for the user.
class Failure
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::Failure)

public:
    /// Describes the exception that is being handled, of any type: one line, never empty. To be
    /// called in a catch block.
    static QString Describe();
};

} // namespace LumetraEditor
