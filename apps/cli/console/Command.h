// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/ExitCode.h"

#include <QCommandLineParser>

namespace LumetraCli {

class Console;

/// One command of the program. Immutable; owned by the list of commands (Commands.h).
class Command
{
public:
    /// `summary`: one line for the list of commands.
    Command(const QString& name, const QString& summary) : m_name(name), m_summary(summary) {}
    virtual ~Command();

    const QString& GetName() const { return m_name; }
    const QString& GetSummary() const { return m_summary; }
    /// True when the command draws text, which needs fonts.
    virtual bool DrawsText() const { return false; }

    /// `arguments` begin with the program's and the command's name.
    ExitCode Run(const QStringList& arguments, Console& console) const;

protected:
    virtual void AddOptions(QCommandLineParser& parser) const = 0;
    /// Does the command's work. Throws UsageError before anything was changed.
    virtual ExitCode Execute(const QCommandLineParser& parser, Console& console) const = 0;

    /// The command's arguments. UsageError unless there are `minimum` to `maximum` of them.
    static QStringList Arguments(const QCommandLineParser& parser, int minimum, int maximum);

private:
    QString m_name;
    QString m_summary;
};

/// A positive whole number given as `option`. UsageError for anything out of minimum..maximum.
int ReadNumber(const QCommandLineParser& parser, const QString& option, int minimum, int maximum);

} // namespace LumetraCli
