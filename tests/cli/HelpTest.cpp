// SPDX-License-Identifier: GPL-2.0-or-later
// Help, manual page and completions: what is written from the tables of options.
#include "CliTest.h"
#include "Places.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using testing::UnorderedElementsAre;

namespace {

constexpr const char* Shells[] = {"bash", "zsh", "fish"};

/// All matches of the pattern's first group.
QStringList FindAll(const QString& text, const char* pattern)
{
    QStringList all;
    auto matches = QRegularExpression(QLatin1String(pattern), QRegularExpression::MultilineOption)
                       .globalMatch(text);
    while (matches.hasNext())
        all.append(matches.next().captured(1));
    return all;
}

class HelpTest : public CliTest
{
protected:
    QString GetOutput(const QStringList& arguments) const
    {
        const CliResult result = RunPlain(arguments);
        EXPECT_EQ(result.code, 0) << result.messages;
        EXPECT_EQ(result.messages, "");
        return QString::fromStdString(result.output);
    }

    QStringList GetCommands() const
    {
        const QString help = GetOutput({QStringLiteral("help")});
        return FindAll(
            help.section(QStringLiteral("Commands:"), 1).section(QStringLiteral("Options:"), 0, 0),
            "^  ([a-z-]+)  ");
    }

    QString GetHelp(const QString& command) const
    {
        return GetOutput({QStringLiteral("help"), command});
    }

    /// The names of the command's options, without their dashes, from its help.
    QStringList GetOptions(const QString& command) const
    {
        QStringList options;
        for (const QString& names : FindAll(GetHelp(command), "^  (-.*?)(?:  |$)"))
            options += FindAll(names, "(?:^|\\s)--?([a-z-]+)");
        return options;
    }

    QString GetManualPage() const
    {
        return GetOutput(
            {QStringLiteral("manual-page"), QStringLiteral(LUMETRA_MANUAL_PAGE_TEMPLATE)});
    }

    QString GetScript(const char* shell) const
    {
        return GetOutput({QStringLiteral("completion"), QLatin1String(shell)});
    }

    /// The replies of bash's completion of the last word.
    std::vector<std::string> Complete(const QStringList& words) const
    {
        WriteFile("completion.bash", GetScript("bash").toUtf8());
        QProcess bash;
        bash.setProcessEnvironment(GetEnvironment());
        bash.setWorkingDirectory(folder.path());
        bash.start(QStringLiteral("bash"),
                   QStringList{QStringLiteral("--norc"), QStringLiteral("-c"),
                               QStringLiteral("source completion.bash; COMP_WORDS=(\"$@\"); "
                                              "COMP_CWORD=$(($# - 1)); _lumetra_presets \"$1\"; "
                                              "printf '%s\\n' \"${COMPREPLY[@]}\""),
                               QStringLiteral("bash"), QStringLiteral(LUMETRA_PRESETS_PROGRAM)} +
                       words);
        EXPECT_TRUE(bash.waitForFinished(-1));
        EXPECT_EQ(bash.readAllStandardError().toStdString(), "");
        std::vector<std::string> replies;
        for (const QByteArray& line : bash.readAllStandardOutput().split('\n'))
            if (!line.isEmpty())
                replies.push_back(line.toStdString());
        return replies;
    }
};

} // namespace

TEST_F(HelpTest, helpOfACommandIsWhatItsOptionShows)
{
    EXPECT_EQ(GetOutput({QStringLiteral("help")}), GetOutput({QStringLiteral("--help")}));
    const QStringList commands = GetCommands();
    EXPECT_GE(commands.size(), 14);
    EXPECT_FALSE(commands.contains(QStringLiteral("manual-page"))) << "serves the build alone";
    for (const QString& command : commands) {
        EXPECT_EQ(GetHelp(command), GetOutput({command, QStringLiteral("--help")}));
        EXPECT_TRUE(GetHelp(command).startsWith(QStringLiteral("Usage: lumetra-presets ") +
                                                command + QStringLiteral(" [options]")))
            << command.toStdString();
    }
}

TEST_F(HelpTest, refusesHelpOfAnUnknownCommand)
{
    const CliResult result = RunPlain(Words("help aply"));
    EXPECT_EQ(result.code, 2);
    EXPECT_THAT(result.messages,
                HasSubstr("expected a command, found \"aply\", did you mean \"apply\"?"));
    EXPECT_EQ(RunPlain(Words("help apply list")).code, 2);
}

TEST_F(HelpTest, everyOptionOfEveryCommandIsInTheManualPage)
{
    const QString page = GetManualPage();
    for (const QString& command : GetCommands()) {
        QString name = command;
        name.replace(QLatin1Char('-'), QStringLiteral("\\-"));
        const QString section = page.section(QStringLiteral(".SS %1\n").arg(name), 1)
                                    .section(QStringLiteral("\n.S"), 0, 0);
        ASSERT_FALSE(section.isEmpty()) << command.toStdString();
        const QStringList options = GetOptions(command);
        EXPECT_TRUE(options.contains(QStringLiteral("help"))) << command.toStdString();
        for (QString option : options) {
            option.replace(QLatin1Char('-'), QStringLiteral("\\-"));
            EXPECT_TRUE(section.contains(QStringLiteral("\\-%1\\fR").arg(option)))
                << command.toStdString() << ' ' << option.toStdString();
        }
    }
}

TEST_F(HelpTest, theManualPageIsTheSameOnEveryMachine)
{
    const QString page = GetManualPage();
    EXPECT_FALSE(page.contains(folder.path()));
    EXPECT_FALSE(page.contains(QStringLiteral("(here")));
    EXPECT_TRUE(GetHelp(QStringLiteral("list")).contains(QStringLiteral("(here")));
}

TEST_F(HelpTest, theManualPageIsWithoutFault)
{
    const QString man = QStandardPaths::findExecutable(QStringLiteral("man"));
    if (man.isEmpty())
        GTEST_SKIP() << "man is not installed";
    WriteFile("lumetra-presets.1", GetManualPage().toUtf8());
    QProcess process;
    process.setProcessEnvironment(GetEnvironment());
    process.setWorkingDirectory(folder.path());
    process.start(man, Words("--warnings -E UTF-8 -l ./lumetra-presets.1"));
    ASSERT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardError().toStdString(), "");
    const QByteArray text = process.readAllStandardOutput();
    EXPECT_TRUE(text.contains("EXIT STATUS") && text.contains("--preset name|id"))
        << text.toStdString();
}

TEST_F(HelpTest, everyOptionOfEveryCommandIsCompletedInEveryShell)
{
    const QString zsh = GetScript("zsh");
    const QString fish = GetScript("fish");
    for (const QString& command : GetCommands()) {
        const auto replies = Complete({command, QStringLiteral("-")});
        const QString branch = zsh.section(QStringLiteral("        %1)\n").arg(command), 1)
                                   .section(QStringLiteral(";;"), 0, 0);
        for (const QString& option : GetOptions(command)) {
            const bool isShort = option.size() == 1;
            const QString name = (isShort ? QStringLiteral("-") : QStringLiteral("--")) + option;
            EXPECT_THAT(replies, Contains(name.toStdString())) << command.toStdString();
            EXPECT_TRUE(branch.contains(QRegularExpression(
                QStringLiteral("'\\*%1=?\\[").arg(QRegularExpression::escape(name)))))
                << command.toStdString() << ' ' << name.toStdString();
            EXPECT_TRUE(fish.contains(QRegularExpression(
                QStringLiteral("-n '__lumetra_presets_command %1' .*-%2 %3 ")
                    .arg(command, isShort ? QStringLiteral("s") : QStringLiteral("l"), option))))
                << command.toStdString() << ' ' << name.toStdString();
        }
    }
}

TEST_F(HelpTest, completionsAreValidScripts)
{
    for (const char* shell : Shells) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(shell));
        if (program.isEmpty())
            continue;
        WriteFile("script", GetScript(shell).toUtf8());
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(program, {QStringLiteral("-n"), QStringLiteral("script")});
        ASSERT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitCode(), 0) << shell;
        EXPECT_EQ(process.readAllStandardError().toStdString(), "") << shell;
    }
    EXPECT_THAT(GetScript("fish").toStdString(), HasSubstr(" -l format -x -a 'cube clf hald' "))
        << "no files beside the choices";
    EXPECT_EQ(RunPlain(Words("completion tcsh")).code, 2);
    EXPECT_EQ(RunPlain(Words("completion")).code, 2);
}

TEST_F(HelpTest, bashCompletesCommandsOptionsAndClosedChoices)
{
    EXPECT_THAT(Complete(Words("exp")), ElementsAre("export", "export-lut"));
    EXPECT_THAT(Complete(Words("--")), ElementsAre("--help", "--version"));
    EXPECT_THAT(Complete(Words("apply --dry")), ElementsAre("--dry-run"));
    EXPECT_THAT(Complete({QStringLiteral("export-lut"), QStringLiteral("--format"), QString()}),
                ElementsAre("cube", "clf", "hald"));
    EXPECT_THAT(Complete(Words("export-lut --format = c")), ElementsAre("cube", "clf"));
    EXPECT_THAT(Complete(Words("export-lut --format =")), ElementsAre("cube", "clf", "hald"));
    EXPECT_THAT(Complete(Words("help app")), ElementsAre("apply"));
    EXPECT_THAT(Complete(Words("completion z")), ElementsAre("zsh"));
    EXPECT_THAT(Complete(Words("apply --jobs 1")), IsEmpty());
}

TEST_F(HelpTest, completesChoicesWithColons)
{
    EXPECT_THAT(Complete(Words("apply --subsampling 4")), ElementsAre("4:4:4", "4:2:2", "4:2:0"));
    EXPECT_THAT(Complete(Words("apply --subsampling 4 :")), ElementsAre("4:4", "2:2", "2:0"))
        << "bash breaks words at colons, and replaces what stands behind the last one";
    EXPECT_THAT(Complete(Words("apply --subsampling = 4 : 2")), ElementsAre("2:2", "2:0"));
    EXPECT_THAT(Complete(Words("apply --subsampling 4 : 2 :")), ElementsAre("2", "0"));
    EXPECT_TRUE(GetScript("zsh").contains(QStringLiteral(":(automatic 4\\:4\\:4 ")))
        << "a colon ends an action of zsh";
}

TEST_F(HelpTest, bashCompletesPresetsAndFiles)
{
    WriteFile("empty/lumetra/catalogue/looks.json", ReadFile("looks.json"));
    WriteFile("Test photo.jpg", "");
    EXPECT_THAT(Complete({QStringLiteral("show"), QStringLiteral("Test\\ B")}),
                ElementsAre("Test Bright"));
    EXPECT_THAT(
        Complete({QStringLiteral("apply"), QStringLiteral("-p"), QStringLiteral("\"Test ")}),
        UnorderedElementsAre("Test Bright", "Test Grey", "Test Slide", "Test Plain",
                             "Test photo.jpg"));
    EXPECT_THAT(Complete(Words("export-lut --preset test.")),
                ElementsAre("test.twin-1", "test.twin-2"));
    EXPECT_THAT(Complete(Words("apply Te")), ElementsAre("Test photo.jpg"));
    EXPECT_THAT(Complete(Words("list --catalogue loo")), ElementsAre("looks.json"));
}

TEST_F(HelpTest, listsTheNamesByWhichCommandsTakePresets)
{
    const CliResult result = Run(Words("list --names"));
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output,
              "Test Bright\nTest Grey\nTest Slide\nTest Plain\ntest.twin-1\ntest.twin-2\n");
    for (const char* name : {"Test Bright", "test.twin-2"})
        EXPECT_EQ(Run({QStringLiteral("show"), QLatin1String(name)}).code, 0) << name;
    EXPECT_EQ(Run(Words("list --names --json")).code, 2);
}
