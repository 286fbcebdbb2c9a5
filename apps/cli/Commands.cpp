// SPDX-License-Identifier: GPL-2.0-or-later
#include "Commands.h"

#include "ApplyCommand.h"
#include "CheckCommand.h"
#include "ExportLutCommand.h"
#include "FavouriteCommand.h"
#include "ImportCommand.h"
#include "ListCommand.h"
#include "RemoveCommand.h"
#include "RenameCommand.h"
#include "SaveCommand.h"
#include "SheetCommand.h"

#include <algorithm>

namespace LumetraCli {
namespace {

std::vector<std::unique_ptr<Command>> MakeCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(std::make_unique<ListCommand>());
    commands.push_back(std::make_unique<ApplyCommand>());
    commands.push_back(std::make_unique<SheetCommand>());
    commands.push_back(std::make_unique<CheckCommand>());
    commands.push_back(std::make_unique<ImportCommand>());
    commands.push_back(std::make_unique<ExportLutCommand>());
    commands.push_back(std::make_unique<SaveCommand>());
    commands.push_back(std::make_unique<RenameCommand>());
    commands.push_back(std::make_unique<RemoveCommand>());
    commands.push_back(std::make_unique<FavouriteCommand>());
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

} // namespace LumetraCli
