// SPDX-License-Identifier: GPL-2.0-or-later
#include "manual/FishCompletion.h"

#include "manual/ProgramHelp.h"

namespace LumetraCli {
namespace {

using ValueKind = OptionTable::ValueKind;

constexpr char Functions[] =
    R"script(# fish completion of lumetra-presets, written by "lumetra-presets completion fish"

function __lumetra_presets_command
    set -l words (commandline -opc)
    test (count $words) -gt 1; and test $words[2] = $argv[1]
end

function __lumetra_presets_no_command
    test (count (commandline -opc)) -eq 1
end

function __lumetra_presets_names
    lumetra-presets list --names 2>/dev/null
end

complete -c lumetra-presets -f
)script";

QString Quote(QString text)
{
    text.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QStringLiteral("\\'")) +
           QLatin1Char('\'');
}

/// The options of "complete" for values of that kind; `commands` are the names of all commands.
QString GetValues(const QString& valueName, const QString& commands)
{
    switch (OptionTable::GetValueKind(valueName)) {
    case ValueKind::File:
        return QStringLiteral(" -F");
    case ValueKind::Folder:
        return QStringLiteral(" -a '(__fish_complete_directories (commandline -ct))'");
    case ValueKind::Preset:
        return QStringLiteral(" -a '(__lumetra_presets_names)'");
    case ValueKind::PresetOrFile:
        return QStringLiteral(" -F -a '(__lumetra_presets_names)'");
    case ValueKind::Command:
        return QStringLiteral(" -a ") + Quote(commands);
    case ValueKind::Choice:
        return QStringLiteral(" -a ") +
               Quote(OptionTable::GetChoices(valueName).join(QLatin1Char(' ')));
    default:
        return {};
    }
}

QString MakeOption(const QCommandLineOption& option, const QString& condition,
                   const QString& commands)
{
    QString line = QStringLiteral("complete -c lumetra-presets -n '%1'").arg(condition);
    for (const QString& name : OptionTable::GetNames(option))
        line += name.startsWith(QLatin1String("--")) ? QStringLiteral(" -l ") + name.mid(2)
                                                     : QStringLiteral(" -s ") + name.mid(1);
    if (!option.valueName().isEmpty()) {
        const QString values = GetValues(option.valueName(), commands);
        const bool mayBeFile = values.contains(QLatin1String("-F"));
        line += (mayBeFile ? QStringLiteral(" -r") : QStringLiteral(" -x")) + values;
    }
    return line + QStringLiteral(" -d ") + Quote(option.description()) + QLatin1Char('\n');
}

QString MakeCommand(const Command& command, const QString& commands)
{
    const OptionTable table = command.GetTable();
    const QString condition = QStringLiteral("__lumetra_presets_command ") + command.GetName();
    QString lines =
        QStringLiteral(
            "\ncomplete -c lumetra-presets -n '__lumetra_presets_no_command' -a %1 -d %2\n")
            .arg(command.GetName(), Quote(command.GetSummary()));
    for (const QCommandLineOption& option : table.GetOptions())
        lines += MakeOption(option, condition, commands);
    for (const OptionTable::Argument& argument : table.GetArguments()) {
        const QString values = GetValues(argument.values, commands);
        if (!values.isEmpty())
            lines +=
                QStringLiteral("complete -c lumetra-presets -n '%1'%2\n").arg(condition, values);
    }
    return lines;
}

} // namespace

QString FishCompletion::Make(const CommandList& commands)
{
    QStringList names;
    for (const Command* command : commands)
        names.append(command->GetName());
    const QString all = names.join(QLatin1Char(' '));
    QString text = QLatin1String(Functions);
    const OptionTable own = ProgramHelp::GetTable();
    for (const QCommandLineOption& option : own.GetOptions())
        text += MakeOption(option, QStringLiteral("__lumetra_presets_no_command"), all);
    for (const Command* command : commands)
        text += MakeCommand(*command, all);
    return text;
}

} // namespace LumetraCli
