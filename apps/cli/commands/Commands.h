// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/Command.h"

#include <memory>
#include <vector>

namespace LumetraCli {

/// Each command is made in a source of its own.
std::unique_ptr<Command> MakeListCommand();
std::unique_ptr<Command> MakeApplyCommand();
std::unique_ptr<Command> MakeSheetCommand();
std::unique_ptr<Command> MakeCheckCommand();
std::unique_ptr<Command> MakeImportCommand();
std::unique_ptr<Command> MakeExportCommand();
std::unique_ptr<Command> MakeExportLutCommand();
std::unique_ptr<Command> MakeSaveCommand();
std::unique_ptr<Command> MakeRenameCommand();
std::unique_ptr<Command> MakeRemoveCommand();
std::unique_ptr<Command> MakeFavouriteCommand();

/// All commands, in the order of the help. A new command is added to this list and above.
const std::vector<std::unique_ptr<Command>>& GetCommands();

/// The command of that name, or null.
const Command* FindCommand(const QString& name);

} // namespace LumetraCli
