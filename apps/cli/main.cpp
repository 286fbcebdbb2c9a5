// SPDX-License-Identifier: GPL-2.0-or-later
#include "Zorvik/Exception.h"
#include "catalogue/NearestName.h"
#include "commands/Commands.h"
#include "console/Console.h"
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

QString Usage()
{
    QString text = QStringLiteral("Usage: lumetra-presets COMMAND [options]\n"
                                  "Applies presets to photos.\n\nCommands:\n");
    for (const auto& command : GetCommands())
        text += QStringLiteral("  %1%2\n").arg(command->GetName(), -11).arg(command->GetSummary());
    return text +
           QStringLiteral("\nOptions:\n"
                          "  -h, --help     Shows this help; after a command, its own.\n"
                          "  -v, --version  Shows the version.\n\n"
                          "Exit code: 0 done, 1 an input could not be used, 2 wrong usage.\n");
}

ExitCode RefuseCommand(const QString& name, Console& console)
{
    std::vector<std::string> names;
    for (const auto& command : GetCommands())
        names.push_back(command->GetName().toStdString());
    const std::string found = name.toStdString();
    console.Report(QString::fromStdString("expected a command, found \"" + found + "\"" +
                                          LumetraHost::DidYouMean(found, names)));
    console.Report(QStringLiteral("\"lumetra-presets --help\" lists the commands"));
    return ExitCode::Usage;
}

ExitCode Run(const QStringList& arguments, Console& console)
{
    const QString first = arguments.value(1);
    if (const Command* command = FindCommand(first))
        return command->Run(arguments, console);
    if (first == QLatin1String("-h") || first == QLatin1String("--help")) {
        console.PrintText(Usage());
        return ExitCode::Done;
    }
    if (first == QLatin1String("-v") || first == QLatin1String("--version")) {
        console.PrintLine(QStringLiteral("lumetra-presets ") + QLatin1String(Version));
        return ExitCode::Done;
    }
    if (!first.isEmpty())
        return RefuseCommand(first, console);
    console.ReportText(Usage());
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
            console.Report(QStringLiteral("the output could not be written"));
        code = ExitCode::SomeFailed;
    }
    return static_cast<int>(code);
}
