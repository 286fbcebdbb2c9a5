// SPDX-License-Identifier: GPL-2.0-or-later
#include "manual/ProgramHelp.h"

#include "console/Text.h"

#include <QCoreApplication>

#include <algorithm>

namespace LumetraCli {
namespace {

/// Lines "  name  text", the texts below each other.
QString MakeLines(const QList<QPair<QString, QString>>& entries)
{
    int width = 0;
    for (const auto& [name, text] : entries)
        width = std::max(width, name.size());
    QString lines;
    for (const auto& [name, text] : entries)
        lines += QStringLiteral("  %1  %2\n").arg(name, -width).arg(text);
    return lines;
}

QString MakeOptions()
{
    QList<QPair<QString, QString>> entries;
    const OptionTable table = ProgramHelp::GetTable();
    for (const QCommandLineOption& option : table.GetOptions())
        entries.append(
            {OptionTable::GetNames(option).join(QStringLiteral(", ")), option.description()});
    return MakeLines(entries);
}

} // namespace

OptionTable ProgramHelp::GetTable()
{
    OptionTable table;
    table.AddOptions({
        {{QStringLiteral("h"), QStringLiteral("help")},
         Text::tr("Shows this help; after a command, its own.")},
        {{QStringLiteral("v"), QStringLiteral("version")}, Text::tr("Shows the version.")},
    });
    return table;
}

QString ProgramHelp::Make(const CommandList& commands)
{
    QList<QPair<QString, QString>> entries;
    for (const Command* command : commands)
        entries.append({command->GetName(), command->GetSummary()});
    return Text::tr("Usage: lumetra-presets COMMAND [options]\nApplies presets to photos.") +
           QStringLiteral("\n\n") + Text::tr("Commands:") + QLatin1Char('\n') + MakeLines(entries) +
           QLatin1Char('\n') + Text::tr("Options:") + QLatin1Char('\n') + MakeOptions() +
           QLatin1Char('\n') +
           Text::tr("Exit code: 0 done, 1 an input could not be used, 2 wrong usage, "
                    "130 interrupted.") +
           QLatin1Char('\n');
}

} // namespace LumetraCli
