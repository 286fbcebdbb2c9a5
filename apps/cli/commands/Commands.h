// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/Command.h"
#include "manual/CommandList.h"

#include <memory>
#include <vector>

namespace LumetraCli {

/// Each command is made in a source of its own.
std::unique_ptr<Command> MakeListCommand();
std::unique_ptr<Command> MakeShowCommand();
std::unique_ptr<Command> MakeApplyCommand();
std::unique_ptr<Command> MakeReportCommand();
std::unique_ptr<Command> MakeSheetCommand();
std::unique_ptr<Command> MakeCheckCommand();
std::unique_ptr<Command> MakeImportCommand();
std::unique_ptr<Command> MakeExportCommand();
std::unique_ptr<Command> MakeExportLutCommand();
std::unique_ptr<Command> MakeSaveCommand();
std::unique_ptr<Command> MakeRenameCommand();
std::unique_ptr<Command> MakeRemoveCommand();
std::unique_ptr<Command> MakeFavouriteCommand();
std::unique_ptr<Command> MakeCompletionCommand();
std::unique_ptr<Command> MakeHelpCommand();
std::unique_ptr<Command> MakeManualPageCommand();

/// All commands, in the order of the help. A new command is added to this list and above.
const std::vector<std::unique_ptr<Command>>& GetCommands();

/// The commands without those that serve the build of this program alone.
CommandList GetShownCommands();

/// The command of that name, or null.
const Command* FindCommand(const QString& name);
/// The command of that name. UsageError, with the name that is nearest, when there is none.
const Command& GetCommand(const QString& name);

} // namespace LumetraCli
