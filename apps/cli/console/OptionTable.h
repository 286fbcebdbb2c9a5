// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QMap>
#include <QString>

class QCommandLineParser;

namespace LumetraCli {

/// The options and arguments of one command. The command line is parsed by this table; help,
/// completions and the manual page are written from it, so that none of them can lack an option.
///
/// The name of a value says how the value is completed: "file", "photo" and "template" by files,
/// "folder" by folders, "preset" and "id" by presets, "command" by commands. Other words with "|"
/// between them, such as "8|16", are the values that there are. See GetValueKind().
class OptionTable
{
public:
    struct Argument
    {
        QString name;   ///< "PHOTO"
        QString help;   ///< a sentence or more
        QString syntax; ///< as the usage line has it: "PHOTO..."
        QString values; ///< says of what kind the values are, see GetValueKind()
    };

    /// Kinds of values, which may be combined.
    enum class ValueKind
    {
        Text = 0, ///< a number or anything else that nobody can complete
        File = 1,
        Folder = 2,
        Preset = 4,
        PresetOrFile = 5,
        Choice = 8, ///< one of GetChoices()
        Command = 16
    };

    /// Adds an argument; arguments stand in the order of the command line. `syntax` empty: its
    /// name. `values` empty: its name says of what kind the values are.
    void AddArgument(const QString& name, const QString& help, const QString& syntax = {},
                     const QString& values = {});
    void AddOption(const QCommandLineOption& option) { m_options.append(option); }
    void AddOptions(const QList<QCommandLineOption>& options) { m_options.append(options); }
    /// Adds what is so on this machine alone, such as a default that depends on it. The help shows
    /// it after the text of the option of that name; the manual page, which is made on another
    /// machine, does not.
    void AddNote(const QString& option, const QString& note) { m_notes.insert(option, note); }

    const QList<QCommandLineOption>& GetOptions() const { return m_options; }
    const QList<Argument>& GetArguments() const { return m_arguments; }
    QString GetNote(const QCommandLineOption& option) const;

    /// Makes the parser know the table, notes included.
    void Fill(QCommandLineParser& parser) const;
    /// "[options] PRESET PHOTO...", with `options` for the first word.
    QString GetUsage(const QString& options) const;

    /// The kind of the values of that name, in upper or lower case.
    static ValueKind GetValueKind(const QString& valueName);
    /// The values that there are: "8" and "16" of "8|16". Empty for other kinds of values.
    static QStringList GetChoices(const QString& valueName);
    /// "--name": the option's longest name with its dashes.
    static QString GetLongName(const QCommandLineOption& option);
    /// "-n" and "--name": all names with their dashes, the short ones first.
    static QStringList GetNames(const QCommandLineOption& option);

private:
    QList<Argument> m_arguments;
    QList<QCommandLineOption> m_options;
    QMap<QString, QString> m_notes;
};

} // namespace LumetraCli
