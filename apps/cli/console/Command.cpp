// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/Command.h"

#include "console/Console.h"
#include "console/UsageError.h"

namespace LumetraCli {
namespace {

QString Help(const QCommandLineParser& parser, const QString& command)
{
    // The usage line is mended, as Qt names the program by the path it was started with, and knows
    // no commands.
    QString help = parser.helpText();
    help.replace(0, help.indexOf(QStringLiteral(" [options]")),
                 QStringLiteral("Usage: lumetra-presets ") + command);
    return help;
}

} // namespace

Command::~Command() = default;

ExitCode Command::Run(const QStringList& arguments, Console& console) const
{
    QCommandLineParser parser;
    parser.setApplicationDescription(GetSummary());
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Shows this help."));
    parser.addOption(help);
    AddOptions(parser);
    try {
        if (!parser.parse(arguments))
            throw UsageError(parser.errorText());
        if (parser.isSet(help)) {
            console.PrintText(Help(parser, GetName()));
            return ExitCode::Done;
        }
        return Execute(parser, console);
    } catch (const UsageError& error) {
        console.Report(QString::fromUtf8(error.what()));
        console.Report(QStringLiteral("\"lumetra-presets %1 --help\" tells more").arg(GetName()));
        return ExitCode::Usage;
    }
}

QStringList Command::Arguments(const QCommandLineParser& parser, int minimum, int maximum)
{
    const QStringList arguments = parser.positionalArguments().mid(1);
    if (arguments.size() < minimum)
        throw UsageError(QStringLiteral("expected %1 argument(s), found %2")
                             .arg(QString::number(minimum), QString::number(arguments.size())));
    if (arguments.size() > maximum)
        throw UsageError(QStringLiteral("unexpected argument \"%1\"").arg(arguments[maximum]));
    return arguments;
}

int ReadNumber(const QCommandLineParser& parser, const QString& option, int minimum, int maximum)
{
    const QString text = parser.value(option);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < minimum || number > maximum)
        throw UsageError(
            QStringLiteral("--%1: expected a whole number from %2 to %3, found \"%4\"")
                .arg(option, QString::number(minimum), QString::number(maximum), text));
    return number;
}

} // namespace LumetraCli
