// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/GuardedApplication.h"
#include "plugins/PluginLoader.h"
#include "session/Editor.h"
#include "settings/EditorSettings.h"
#include "style/EditorStyle.h"
#include "style/MessageBoxAlertBackend.h"
#include "window/EditorWindow.h"

#include <QCommandLineParser>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

struct CommandLine
{
    QStringList files;
    std::optional<QString> monitorProfile;
    bool shallListModules = false;
};

CommandLine ReadCommandLine(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A photo editor built around looks."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption monitorProfile(
        QStringLiteral("monitor-profile"),
        QStringLiteral("Show photos in the colours of this ICC profile, not the one that the "
                       "window system has of the monitor; \"srgb\": without any."),
        QStringLiteral("FILE"));
    parser.addOption(monitorProfile);
    const QCommandLineOption modules(
        QStringLiteral("modules"),
        QStringLiteral("Print the id, the file and the version of each module that the editor "
                       "loads, and on the standard error output why others cannot be used, which "
                       "ends with 1; open no window."));
    parser.addOption(modules);
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QStringLiteral("Photos to open, or folders of photos; the first one is shown. Files with "
                       "looks (.lumetra, .zip, .cube and the like) go to the panel that takes "
                       "them."),
        QStringLiteral("[FILE...]"));
    parser.process(application);
    CommandLine line{parser.positionalArguments(), std::nullopt, parser.isSet(modules)};
    if (parser.isSet(monitorProfile))
        line.monitorProfile = parser.value(monitorProfile);
    return line;
}

/// Returns the program's exit code.
int ListModules()
{
    LumetraEditor::PluginLoader loader;
    loader.LoadFolders(LumetraEditor::GetPluginFolders(),
                       LumetraEditor::EditorSettings().GetModulesOff());
    for (const LumetraEditor::FoundModule& module : loader.GetModules())
        if (module.isLoaded)
            std::printf("%s\t%s\t%s\n", qUtf8Printable(module.id),
                        QFile::encodeName(module.path).constData(), qUtf8Printable(module.version));
    for (const QString& report : loader.GetReports())
        std::fprintf(stderr, "%s\n", qUtf8Printable(report));
    return loader.GetReports().isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

void UseAlerts()
{
    const auto style = std::make_shared<LumetraHost::EditorStyle>();
    Zorvik::Lumetra::StyleProvider::SetBackend(style);
    Zorvik::Util::AlertBox::SetBackend(
        std::make_shared<LumetraHost::MessageBoxAlertBackend>(style));
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    LumetraEditor::GuardedApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lumetra-editor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMETRA_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Lumetra"));
    QGuiApplication::setDesktopFileName(QStringLiteral("lumetra-editor"));
    const CommandLine line = ReadCommandLine(application);
    if (line.shallListModules)
        return ListModules();
    UseAlerts();

    LumetraEditor::Editor editor;
    LumetraEditor::EditorWindow window(editor);
    window.LoadPanels(LumetraEditor::GetPluginFolders());
    if (line.monitorProfile)
        window.UseMonitorProfile(*line.monitorProfile);
    window.show();
    window.TakeFiles(line.files);
    return QApplication::exec();
}
