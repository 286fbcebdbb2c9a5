// SPDX-License-Identifier: GPL-2.0-or-later
#include "manual/ManualPage.h"

#include "manual/ProgramHelp.h"

#include <QCoreApplication>

namespace LumetraCli {
namespace {

/// `text` with everything that means something to the formatter written so that it is printed.
QString Escape(QString text)
{
    text.replace(QLatin1Char('\\'), QStringLiteral("\\e"));
    text.replace(QLatin1Char('-'), QStringLiteral("\\-"));
    text.replace(QLatin1Char('\''), QStringLiteral("\\(aq"));
    return text.startsWith(QLatin1Char('.')) ? QStringLiteral("\\&") + text : text;
}

QString Bold(const QString& text)
{
    return QStringLiteral("\\fB%1\\fR").arg(Escape(text));
}

QString Italic(const QString& text)
{
    return QStringLiteral("\\fI%1\\fR").arg(Escape(text));
}

QString MakeEntry(const QString& heading, const QString& text)
{
    return QStringLiteral(".TP\n%1\n%2\n").arg(heading, Escape(text));
}

QString MakeOptions(const OptionTable& table)
{
    QString text;
    for (const QCommandLineOption& option : table.GetOptions()) {
        QStringList names;
        for (const QString& name : OptionTable::GetNames(option))
            names.append(Bold(name));
        const QString value = option.valueName();
        text += MakeEntry(names.join(QStringLiteral(", ")) +
                              (value.isEmpty() ? QString() : QLatin1Char(' ') + Italic(value)),
                          option.description());
    }
    return text;
}

QString MakeCommand(const Command& command)
{
    const OptionTable table = command.GetTable();
    QString text = QStringLiteral(".SS %1\n%2\n.PP\n%3 %4\n")
                       .arg(Escape(command.GetName()), Escape(command.GetSummary()),
                            Bold(QStringLiteral("lumetra-presets ") + command.GetName()),
                            Italic(table.GetUsage(QStringLiteral("[options]"))));
    for (const OptionTable::Argument& argument : table.GetArguments())
        text += MakeEntry(Italic(argument.name), argument.help);
    return text + MakeOptions(table);
}

} // namespace

QString ManualPage::Make(const QString& text, const CommandList& commands)
{
    QString sections;
    for (const Command* command : commands)
        sections += MakeCommand(*command);
    QString page = text;
    page.replace(QStringLiteral("@VERSION@"), Escape(QCoreApplication::applicationVersion()));
    page.replace(QStringLiteral("@OPTIONS@\n"), MakeOptions(ProgramHelp::GetTable()));
    return page.replace(QStringLiteral("@COMMANDS@\n"), sections);
}

} // namespace LumetraCli
