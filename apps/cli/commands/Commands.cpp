// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "console/NameHint.h"
#include "console/Text.h"
#include "console/UsageError.h"

#include <algorithm>

namespace LumetraCli {
namespace {

std::vector<std::unique_ptr<Command>> MakeCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(MakeListCommand());
    commands.push_back(MakeShowCommand());
    commands.push_back(MakeApplyCommand());
    commands.push_back(MakeReportCommand());
    commands.push_back(MakeSheetCommand());
    commands.push_back(MakeCheckCommand());
    commands.push_back(MakeImportCommand());
    commands.push_back(MakeExportCommand());
    commands.push_back(MakeExportLutCommand());
    commands.push_back(MakeSaveCommand());
    commands.push_back(MakeRenameCommand());
    commands.push_back(MakeRemoveCommand());
    commands.push_back(MakeFavouriteCommand());
    commands.push_back(MakeCompletionCommand());
    commands.push_back(MakeHelpCommand());
    commands.push_back(MakeManualPageCommand());
    return commands;
}

} // namespace

const std::vector<std::unique_ptr<Command>>& GetCommands()
{
    static const std::vector<std::unique_ptr<Command>> commands = MakeCommands();
    return commands;
}

const Command* FindCommand(const QString& name)
{
    const auto& commands = GetCommands();
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&name](const auto& c) { return c->GetName() == name; });
    return found == commands.end() ? nullptr : found->get();
}

CommandList GetShownCommands()
{
    CommandList shown;
    for (const auto& command : GetCommands())
        if (!command->IsHidden())
            shown.push_back(command.get());
    return shown;
}

const Command& GetCommand(const QString& name)
{
    if (const Command* const command = FindCommand(name))
        return *command;
    std::vector<std::string> names;
    for (const Command* command : GetShownCommands())
        names.push_back(command->GetName().toStdString());
    throw UsageError(Text::tr("expected a command, found \"%1\"").arg(name) +
                     MakeNameHint(name, names));
}

} // namespace LumetraCli
