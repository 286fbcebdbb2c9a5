// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/ExitCode.h"
#include "console/OptionTable.h"

#include <QCommandLineParser>

namespace LumetraCli {

class Console;

/// One command of the program. Immutable; owned by the list of commands (Commands.h).
class Command
{
public:
    /// `summary`: one line for the list of commands, marked for translation as one of Text; it has
    /// to outlive the command.
    Command(const QString& name, const char* summary) : m_name(name), m_summary(summary) {}
    virtual ~Command();

    const QString& GetName() const { return m_name; }
    /// The summary in the user's language.
    QString GetSummary() const;
    /// True when the command draws text, which needs fonts.
    virtual bool DrawsText() const { return false; }
    /// True for a command that serves the build of this program alone: no list shows it.
    virtual bool IsHidden() const { return false; }

    /// All options and arguments, --help among them.
    OptionTable GetTable() const;
    /// The text of --help.
    QString GetHelp() const;

    /// `arguments` begin with the program's and the command's name.
    ExitCode Run(const QStringList& arguments, Console& console) const;

protected:
    virtual void AddOptions(OptionTable& options) const = 0;
    /// Does the command's work. Throws UsageError before anything was changed.
    virtual ExitCode Execute(const QCommandLineParser& parser, Console& console) const = 0;

    /// The command's arguments. UsageError unless there are `minimum` to `maximum` of them.
    static QStringList Arguments(const QCommandLineParser& parser, int minimum, int maximum);

private:
    QString m_name;
    const char* m_summary;
};

/// A positive whole number given as `option`. UsageError for anything out of minimum..maximum.
int ReadNumber(const QCommandLineParser& parser, const QString& option, int minimum, int maximum);

} // namespace LumetraCli
