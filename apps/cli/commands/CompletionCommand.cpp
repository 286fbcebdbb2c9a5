// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "manual/BashCompletion.h"
#include "manual/FishCompletion.h"
#include "manual/ZshCompletion.h"

namespace LumetraCli {
namespace {

constexpr char Shells[] = "bash|zsh|fish";

/// Prints the script by which a shell completes the command line of this program.
class CompletionCommand : public Command
{
public:
    CompletionCommand()
        : Command(QStringLiteral("completion"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text",
                                    "Prints a script that completes commands in your shell."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void CompletionCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(
        QStringLiteral("SHELL"),
        Text::tr("The shell to print the script for: bash, zsh or fish. For this shell alone: "
                 "source <(lumetra-presets completion bash)"),
        {}, QLatin1String(Shells));
}

ExitCode CompletionCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QString shell = Arguments(parser, 1, 1).first();
    const CommandList commands = GetShownCommands();
    if (shell == QLatin1String("bash"))
        console.PrintText(BashCompletion::Make(commands));
    else if (shell == QLatin1String("zsh"))
        console.PrintText(ZshCompletion::Make(commands));
    else if (shell == QLatin1String("fish"))
        console.PrintText(FishCompletion::Make(commands));
    else
        throw UsageError(Text::tr("SHELL: expected bash, zsh or fish, found \"%1\"").arg(shell));
    return ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeCompletionCommand()
{
    return std::make_unique<CompletionCommand>();
}

} // namespace LumetraCli
