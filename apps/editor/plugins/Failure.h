// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

namespace LumetraEditor {

/// Says what went wrong in somebody else's code, in words for the user.
class Failure
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::Failure)

public:
    /// The exception that is being handled: one line, never empty. It may be of any type. To be
    /// called in a catch block.
    static QString Describe();
};

} // namespace LumetraEditor
