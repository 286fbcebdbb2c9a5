// SPDX-License-Identifier: GPL-2.0-or-later
#include "Zorvik/Exception.h"
#include "commands/Commands.h"
#include "console/Console.h"
#include "console/Language.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "manual/ProgramHelp.h"
#include "storage/ErrorText.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <exception>
#include <memory>

using namespace LumetraCli;

namespace {

constexpr char Version[] = LUMETRA_VERSION;

ExitCode RunCommand(const QStringList& arguments, Console& console)
{
    try {
        return GetCommand(arguments[1]).Run(arguments, console);
    } catch (const UsageError& error) {
        console.Report(QString::fromUtf8(error.what()));
        console.Report(Text::tr("\"lumetra-presets --help\" lists the commands"));
        return ExitCode::Usage;
    }
}

ExitCode Run(const QStringList& arguments, Console& console)
{
    const QString first = arguments.value(1);
    if (first == QLatin1String("-h") || first == QLatin1String("--help")) {
        console.PrintText(ProgramHelp::Make(GetShownCommands()));
        return ExitCode::Done;
    }
    if (first == QLatin1String("-v") || first == QLatin1String("--version")) {
        console.PrintLine(QStringLiteral("lumetra-presets ") + QLatin1String(Version));
        return ExitCode::Done;
    }
    if (!first.isEmpty())
        return RunCommand(arguments, console);
    console.ReportText(ProgramHelp::Make(GetShownCommands()));
    return ExitCode::Usage;
}

/// Makes a runtime folder when the system names none: Qt would warn, and make one that stays.
void EnsureRuntimeFolder(const QTemporaryDir& folder)
{
    const QFileInfo given(qEnvironmentVariable("XDG_RUNTIME_DIR"));
    if (!given.isDir() || !given.isWritable())
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
}

/// `runtimeFolder` has to outlive the application.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv,
                                                  std::unique_ptr<QTemporaryDir>& runtimeFolder)
{
    const Command* command = argc > 1 ? FindCommand(QString::fromLocal8Bit(argv[1])) : nullptr;
    if (!command || !command->DrawsText())
        return std::make_unique<QCoreApplication>(argc, argv);
    runtimeFolder = std::make_unique<QTemporaryDir>();
    EnsureRuntimeFolder(*runtimeFolder);
    // Fonts need a platform plug-in, but not a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<QTemporaryDir> runtimeFolder;
    const auto application = MakeApplication(argc, argv, runtimeFolder);
    QCoreApplication::setApplicationName(QStringLiteral("lumetra-presets"));
    QCoreApplication::setApplicationVersion(QLatin1String(Version));
    Language::Use();
    Console console;
    ExitCode code = ExitCode::SomeFailed;
    try {
        code = Run(QCoreApplication::arguments(), console);
    } catch (const Zorvik::Exception& error) {
        console.Report(QString::fromUtf8(error.what()));
    } catch (const std::exception& error) {
        console.Report(LumetraHost::ErrorText::Show(error));
    }
    if (!console.Finish()) {
        if (!console.IsReaderGone())
            console.Report(Text::tr("the output could not be written"));
        code = ExitCode::SomeFailed;
    }
    return static_cast<int>(code);
}
