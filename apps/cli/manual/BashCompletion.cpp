// SPDX-License-Identifier: GPL-2.0-or-later
#include "manual/BashCompletion.h"

#include "manual/ProgramHelp.h"

namespace LumetraCli {
namespace {

using ValueKind = OptionTable::ValueKind;

/// Functions that add to the replies what begins with the word at the cursor. Readline quotes the
/// replies as it quotes names of files.
constexpr char Functions[] =
    R"script(# bash completion of lumetra-presets, written by "lumetra-presets completion bash"

_lumetra_presets_take()
{
    local reply
    for reply in "$@"; do
        [[ $reply == "$word"* ]] && COMPREPLY+=("$reply")
    done
}

_lumetra_presets_value()
{
    local kind replies
    for kind in $1; do
        replies=()
        case $kind in
            =*) replies=("${kind#=}") ;;
            command) replies=($commands) ;;
            preset) mapfile -t replies < <("$program" list --names 2>/dev/null) ;;
            file) mapfile -t replies < <(compgen -f -- "$word") ;;
            folder) mapfile -t replies < <(compgen -d -- "$word") ;;
        esac
        [[ $kind == preset || $kind == file || $kind == folder ]] && compopt -o filenames 2>/dev/null
        _lumetra_presets_take "${replies[@]}"
    done
}

_lumetra_presets()
{
    local program=$1 at=$COMP_CWORD kept="" options="" arguments="" value=""
    COMPREPLY=()
    # Bash breaks words at ":" and "=". "4:2:0" arrives as five words, and a reply replaces what stands
    # behind the last ":"; "--preset=Name" arrives as three words.
    while [[ $at -gt 2 && (${COMP_WORDS[at]} == : || ${COMP_WORDS[at - 1]} == :) ]]; do
        at=$((at - 1))
        kept=${COMP_WORDS[at]}$kept
    done
    local word=$kept${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[at - 1]}
    [[ -n $kept && $word == *: ]] && kept=$word
    if [[ $word == = ]]; then
        word=""
    elif [[ $previous == = && $at -gt 2 ]]; then
        previous=${COMP_WORDS[at - 2]}
    fi
    case $word in
        [\"\']*) word=${word:1} ;;
        *) word=${word//\\/} ;;
    esac
)script";

constexpr char Ending[] = R"script(
    if [[ $COMP_CWORD -eq 1 ]]; then
        _lumetra_presets_take $commands $program_options
    elif [[ -n $value ]]; then
        _lumetra_presets_value "$value"
    elif [[ $word == -* ]]; then
        _lumetra_presets_take $options
    else
        _lumetra_presets_value "$arguments"
    fi
    COMPREPLY=("${COMPREPLY[@]#"$kept"}")
}

complete -F _lumetra_presets lumetra-presets
)script";

/// Words for _lumetra_presets_value.
QString GetKinds(const QString& valueName)
{
    switch (OptionTable::GetValueKind(valueName)) {
    case ValueKind::File:
        return QStringLiteral("file");
    case ValueKind::Folder:
        return QStringLiteral("folder");
    case ValueKind::Preset:
        return QStringLiteral("preset");
    case ValueKind::PresetOrFile:
        return QStringLiteral("preset file");
    case ValueKind::Command:
        return QStringLiteral("command");
    case ValueKind::Choice:
        return QLatin1Char('=') + OptionTable::GetChoices(valueName).join(QStringLiteral(" ="));
    default:
        return QStringLiteral("text");
    }
}

QString GetAllNames(const OptionTable& table)
{
    QStringList names;
    for (const QCommandLineOption& option : table.GetOptions())
        names += OptionTable::GetNames(option);
    return names.join(QLatin1Char(' '));
}

/// The branch that sets `value` when the word before the cursor is an option with a value.
QString MakeValues(const OptionTable& table)
{
    QString branches;
    for (const QCommandLineOption& option : table.GetOptions())
        if (!option.valueName().isEmpty())
            branches += QStringLiteral("                %1) value=\"%2\" ;;\n")
                            .arg(OptionTable::GetNames(option).join(QLatin1Char('|')),
                                 GetKinds(option.valueName()));
    if (branches.isEmpty())
        return {};
    return QStringLiteral("            case $previous in\n") + branches +
           QStringLiteral("            esac\n");
}

QString MakeBranch(const Command& command)
{
    const OptionTable table = command.GetTable();
    QStringList arguments;
    for (const OptionTable::Argument& argument : table.GetArguments())
        arguments.append(GetKinds(argument.values));
    return QStringLiteral("        %1)\n"
                          "            options=\"%2\"\n"
                          "            arguments=\"%3\"\n")
               .arg(command.GetName(), GetAllNames(table), arguments.join(QLatin1Char(' '))) +
           MakeValues(table) + QStringLiteral("            ;;\n");
}

} // namespace

QString BashCompletion::Make(const CommandList& commands)
{
    QStringList names;
    QString branches;
    for (const Command* command : commands) {
        names.append(command->GetName());
        branches += MakeBranch(*command);
    }
    return QLatin1String(Functions) +
           QStringLiteral("    local commands=\"%1\"\n    local program_options=\"%2\"\n"
                          "    case ${COMP_WORDS[1]} in\n")
               .arg(names.join(QLatin1Char(' ')), GetAllNames(ProgramHelp::GetTable())) +
           branches + QStringLiteral("    esac\n") + QLatin1String(Ending);
}

} // namespace LumetraCli
