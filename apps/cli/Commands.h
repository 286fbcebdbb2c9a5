// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Command.h"

#include <memory>
#include <vector>

namespace LumetraCli {

/// All commands, in the order of the help. A new command is added here and nowhere else.
const std::vector<std::unique_ptr<Command>>& GetCommands();

/// The command of that name, or null.
const Command* FindCommand(const QString& name);

} // namespace LumetraCli
