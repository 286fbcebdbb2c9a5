// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "manual/CommandList.h"

#include <QString>

namespace LumetraCli {

/// The help of the program as a whole.
class ProgramHelp
{
public:
    static QString Make(const CommandList& commands);

    /// The program's own options, which stand in place of a command.
    static OptionTable GetTable();
};

} // namespace LumetraCli
