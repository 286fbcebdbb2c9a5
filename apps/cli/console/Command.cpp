// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/Command.h"

#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"

namespace LumetraCli {
namespace {

const QString HelpOption = QStringLiteral("help");

} // namespace

Command::~Command() = default;

QString Command::GetSummary() const
{
    return Text::tr(m_summary);
}

OptionTable Command::GetTable() const
{
    OptionTable table;
    table.AddOption({{QStringLiteral("h"), HelpOption}, Text::tr("Shows this help.")});
    AddOptions(table);
    return table;
}

QString Command::GetHelp() const
{
    const OptionTable table = GetTable();
    QCommandLineParser parser;
    parser.setApplicationDescription(GetSummary());
    table.Fill(parser);
    // Qt's usage line gives way, as it names the program by the path it was started with, and knows
    // no commands.
    const QString help = parser.helpText();
    return Text::tr("Usage: lumetra-presets %1 %2")
               .arg(GetName(), table.GetUsage(Text::tr("[options]"))) +
           help.mid(help.indexOf(QLatin1Char('\n')));
}

ExitCode Command::Run(const QStringList& arguments, Console& console) const
{
    QCommandLineParser parser;
    GetTable().Fill(parser);
    try {
        if (!parser.parse(arguments))
            throw UsageError(parser.errorText());
        if (parser.isSet(HelpOption)) {
            console.PrintText(GetHelp());
            return ExitCode::Done;
        }
        return Execute(parser, console);
    } catch (const UsageError& error) {
        console.Report(QString::fromUtf8(error.what()));
        console.Report(Text::tr("\"lumetra-presets %1 --help\" tells more").arg(GetName()));
        return ExitCode::Usage;
    }
}

QStringList Command::Arguments(const QCommandLineParser& parser, int minimum, int maximum)
{
    const QStringList arguments = parser.positionalArguments().mid(1);
    if (arguments.size() < minimum)
        throw UsageError(Text::tr("expected %1 argument(s), found %2")
                             .arg(QString::number(minimum), QString::number(arguments.size())));
    if (arguments.size() > maximum)
        throw UsageError(Text::tr("unexpected argument \"%1\"").arg(arguments[maximum]));
    return arguments;
}

int ReadNumber(const QCommandLineParser& parser, const QString& option, int minimum, int maximum)
{
    const QString text = parser.value(option);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < minimum || number > maximum)
        throw UsageError(
            Text::tr("--%1: expected a whole number from %2 to %3, found \"%4\"")
                .arg(option, QString::number(minimum), QString::number(maximum), text));
    return number;
}

} // namespace LumetraCli
