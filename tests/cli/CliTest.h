// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <map>
#include <sstream>
#include <string>

/// Exit code and output of a run of the program.
struct CliResult
{
    int code = -1;
    std::string output;
    std::string messages;
};

/// The parts of a command line without spaces in them.
QStringList Words(const char* line);

/// Output of a check without its notes on tables, which sound looks get too.
inline std::string WithoutTableNotes(const std::string& output)
{
    std::string rest;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        if (line.find(": note: the table moves colours outside its domain") == std::string::npos)
            rest += line + "\n";
    return rest;
}

/// Runs the real program in a folder of its own, without display, runtime folder or any
/// configuration of the machine. The folder has a catalogue "looks.json" with these presets:
/// "Test Bright" (blending, at 80; slider "exposure"), "Test Grey" (blending), "Test Slide" (slider
/// intensity) and "Test Twin" twice, ids test.bright, test.grey, test.slide, test.twin-1 and -2.
class CliTest : public testing::Test
{
protected:
    void SetUp() override;

    /// Runs with the folder's catalogue alone. `arguments` begin with a command.
    CliResult Run(const QStringList& arguments) const;
    /// Runs with no arguments but these.
    CliResult RunPlain(const QStringList& arguments) const;
    /// Runs like Run(), with these bytes at its standard input.
    CliResult RunWithInput(const QStringList& arguments, const QByteArray& input) const;
    /// Runs like Run(), through another program, such as "setpriv", with its own arguments.
    CliResult RunThrough(const QString& program, const QStringList& before,
                         const QStringList& arguments) const;
    /// Runs like Run(), with texts in the language of that locale, such as "de_DE.UTF-8".
    CliResult RunIn(const char* locale, const QStringList& arguments) const;

    /// Runs like RunPlain(), with these environment variables set besides.
    CliResult RunWith(const std::map<const char*, QString>& variables,
                      const QStringList& arguments) const;
    /// The environment of all runs.
    QProcessEnvironment GetEnvironment() const;

    QString Path(const char* name) const;
    bool Exists(const char* name) const;
    void WriteFile(const char* name, const QByteArray& content) const;
    QByteArray ReadFile(const char* name) const;
    /// A picture of many colours, written in the format of its name.
    LumetraHost::Image WritePhoto(const char* name, int width = 48, int height = 32) const;
    LumetraHost::Image ReadPhoto(const char* name) const;

    QTemporaryDir folder;

private:
    CliResult Start(const QProcessEnvironment& environment, const QStringList& arguments,
                    const QByteArray& input = {}) const;
    CliResult StartProgram(const QString& program, const QProcessEnvironment& environment,
                           const QStringList& arguments, const QByteArray& input) const;
};
