// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "manual/CommandList.h"

#include <QString>

namespace LumetraCli {

/// The manual page, in the macros of man(7).
class ManualPage
{
public:
    /// Fills a template: @COMMANDS@, on a line of its own, becomes a subsection for each command
    /// with all its arguments and options, @OPTIONS@ the program's own options, and @VERSION@ the
    /// version. The rest is written by hand. What is so on this machine alone is left out.
    static QString Make(const QString& text, const CommandList& commands);
};

} // namespace LumetraCli
