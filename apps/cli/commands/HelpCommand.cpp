// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "console/Console.h"
#include "console/Text.h"
#include "manual/ProgramHelp.h"

namespace LumetraCli {
namespace {

/// The help of the program or of a command, as --help shows it.
class HelpCommand : public Command
{
public:
    HelpCommand()
        : Command(QStringLiteral("help"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text", "Shows this help, or that of a command."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void HelpCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("COMMAND"),
                        Text::tr("The command to tell about. Default: all of them, in a line each"),
                        QStringLiteral("[COMMAND]"));
}

ExitCode HelpCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList arguments = Arguments(parser, 0, 1);
    if (arguments.isEmpty())
        console.PrintText(ProgramHelp::Make(GetShownCommands()));
    else
        console.PrintText(GetCommand(arguments.first()).GetHelp());
    return ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeHelpCommand()
{
    return std::make_unique<HelpCommand>();
}

} // namespace LumetraCli
