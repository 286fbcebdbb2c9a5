// SPDX-License-Identifier: GPL-2.0-or-later
#include "manual/ZshCompletion.h"

#include "manual/ProgramHelp.h"

namespace LumetraCli {
namespace {

using ValueKind = OptionTable::ValueKind;

constexpr char Functions[] = R"script(#compdef lumetra-presets
# zsh completion of lumetra-presets, written by "lumetra-presets completion zsh"

_lumetra-presets_presets() {
    local -a names
    names=("${(@f)$(lumetra-presets list --names 2>/dev/null)}")
    compadd -a names
}

_lumetra-presets_presets_or_files() {
    _lumetra-presets_presets
    _files
}

)script";

/// Runs at once when zsh loads the file for its first completion, and registers when it is sourced.
constexpr char Ending[] = R"script(
if [[ ${funcstack[1]} == _lumetra-presets ]]; then
    _lumetra-presets "$@"
else
    compdef _lumetra-presets lumetra-presets
fi
)script";

/// `text` inside '…[text]…' or '…:text:…' of what _arguments takes.
QString Escape(QString text)
{
    for (const char* special : {"\\", "[", "]", ":"})
        text.replace(QLatin1String(special), QLatin1Char('\\') + QLatin1String(special));
    return text.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
}

QString GetAction(const QString& valueName)
{
    switch (OptionTable::GetValueKind(valueName)) {
    case ValueKind::File:
        return QStringLiteral("_files");
    case ValueKind::Folder:
        return QStringLiteral("_files -/");
    case ValueKind::Preset:
        return QStringLiteral("_lumetra-presets_presets");
    case ValueKind::PresetOrFile:
        return QStringLiteral("_lumetra-presets_presets_or_files");
    case ValueKind::Command:
        return QStringLiteral("_lumetra-presets_commands");
    case ValueKind::Choice:
        return QStringLiteral("(%1)").arg(
            Escape(OptionTable::GetChoices(valueName).join(QLatin1Char(' '))));
    default:
        return QStringLiteral(" ");
    }
}

QString MakeOption(const QString& name, const QCommandLineOption& option)
{
    const bool hasValue = !option.valueName().isEmpty();
    const bool isLong = name.startsWith(QLatin1String("--"));
    QString text = QStringLiteral("'*%1%2[%3]")
                       .arg(name, hasValue && isLong ? QStringLiteral("=") : QString(),
                            Escape(option.description()));
    if (hasValue)
        text +=
            QStringLiteral(":%1:%2").arg(Escape(option.valueName()), GetAction(option.valueName()));
    return text + QLatin1Char('\'');
}

QStringList MakeSpecifications(const OptionTable& table)
{
    QStringList all;
    for (const QCommandLineOption& option : table.GetOptions())
        for (const QString& name : OptionTable::GetNames(option))
            all.append(MakeOption(name, option));
    for (const OptionTable::Argument& argument : table.GetArguments()) {
        const bool isRepeated = argument.syntax.contains(QLatin1String("..."));
        all.append(QStringLiteral("'%1:%2:%3'")
                       .arg(isRepeated ? QStringLiteral("*") : QString(), Escape(argument.name),
                            GetAction(argument.values)));
    }
    return all;
}

QString MakeBranch(const Command& command)
{
    return QStringLiteral("        %1)\n            _arguments \\\n                %2\n"
                          "            ;;\n")
        .arg(command.GetName(),
             MakeSpecifications(command.GetTable()).join(QStringLiteral(" \\\n                ")));
}

QString MakeCommands(const CommandList& commands)
{
    QString lines;
    for (const Command* command : commands)
        lines +=
            QStringLiteral("        '%1:%2'\n")
                .arg(command->GetName(),
                     command->GetSummary().replace(QLatin1Char('\''), QStringLiteral("'\\''")));
    return QStringLiteral(
               "_lumetra-presets_commands() {\n    local -a commands\n    commands=(\n") +
           lines + QStringLiteral("    )\n    _describe command commands\n}\n\n");
}

} // namespace

QString ZshCompletion::Make(const CommandList& commands)
{
    const QString own =
        MakeSpecifications(ProgramHelp::GetTable()).join(QStringLiteral(" \\\n        "));
    QString branches;
    for (const Command* command : commands)
        branches += MakeBranch(*command);
    return QLatin1String(Functions) + MakeCommands(commands) +
           QStringLiteral("_lumetra-presets() {\n"
                          "    local context state state_descr line\n"
                          "    typeset -A opt_args\n"
                          "    _arguments -C \\\n        ") +
           own +
           QStringLiteral(" \\\n        '1:COMMAND:_lumetra-presets_commands' \\\n"
                          "        '*::argument:->arguments'\n"
                          "    [[ $state == arguments ]] || return\n"
                          "    case ${line[1]} in\n") +
           branches + QStringLiteral("    esac\n}\n") + QLatin1String(Ending);
}

} // namespace LumetraCli
