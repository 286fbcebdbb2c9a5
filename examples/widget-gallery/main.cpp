// SPDX-License-Identifier: GPL-2.0-or-later
#include "GalleryPanel.h"
#include "GalleryStyle.h"
#include "Scenes.h"
#include "style/EditorStyle.h"
#include "style/MessageBoxAlertBackend.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QProcess>

#include <cstdio>

namespace {

using namespace LumetraGallery;
using LumetraHost::PaletteKind;

constexpr int Done = 0, Failed = 1, UsageError = 2;

void DescribeCommand(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Shows the widgets of the presets panel, or saves pictures of them."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("save"),
                      QStringLiteral("Save every picture into <folder>: light and dark, English "
                                     "and German, at scale 1 and 2."),
                      QStringLiteral("folder")});
    parser.addOption({QStringLiteral("scale"),
                      QStringLiteral("With --save: only this scale, 1 or 2."),
                      QStringLiteral("scale")});
    parser.addOption({QStringLiteral("dark"), QStringLiteral("Show the dark palette.")});
    parser.addOption({QStringLiteral("german"), QStringLiteral("Show the German texts.")});
}

/// Saves each scale in a process of its own: an application has but one.
int SaveAllScales(const QString& folder)
{
    for (const char* scale : {"1", "2"}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(scale));
        if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--save"), folder, QStringLiteral("--scale"),
                       QString::fromLatin1(scale)});
        process.waitForFinished(-1);
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != Done)
            return Failed;
    }
    return Done;
}

bool SavePicture(const QImage& image, const QString& path)
{
    if (image.save(path))
        return true;
    std::fprintf(stderr, "%s: expected to be able to write the picture here\n", qPrintable(path));
    return false;
}

bool SaveScenes(const QDir& folder, const QString& scale, PaletteKind kind, Language language)
{
    UseStyle(kind);
    UseLanguage(language);
    const QString suffix =
        QStringLiteral("-%1-%2@%3x.png")
            .arg(kind == PaletteKind::Light ? QStringLiteral("light") : QStringLiteral("dark"),
                 language == Language::English ? QStringLiteral("en") : QStringLiteral("de"),
                 scale);
    for (const Scene& scene : AllScenes()) {
        if (!SavePicture(scene.paint(kind, language), folder.filePath(scene.name + suffix)))
            return false;
    }
    return true;
}

int SaveOneScale(const QString& path, const QString& scale)
{
    const QDir folder(path);
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "%s: expected a folder that can be made\n", qPrintable(path));
        return Failed;
    }
    for (const auto kind : {PaletteKind::Light, PaletteKind::Dark}) {
        for (const auto language : {Language::English, Language::German}) {
            if (!SaveScenes(folder, scale, kind, language))
                return Failed;
        }
    }
    return Done;
}

int RunWindow(const QCommandLineParser& parser)
{
    const auto kind = parser.isSet(QStringLiteral("dark")) ? PaletteKind::Dark : PaletteKind::Light;
    const auto language =
        parser.isSet(QStringLiteral("german")) ? Language::German : Language::English;
    UseStyle(kind);
    UseLanguage(language);
    GalleryPanel panel(kind, language);
    panel.show();
    return QApplication::exec();
}

/// Saving all scales needs no window system in this process.
int RunWithoutWindows(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    DescribeCommand(parser);
    parser.process(application);
    return SaveAllScales(parser.value(QStringLiteral("save")));
}

bool IsGiven(int argc, char** argv, const char* option)
{
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]).startsWith(option))
            return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (IsGiven(argc, argv, "--save") && !IsGiven(argc, argv, "--scale"))
        return RunWithoutWindows(argc, argv);

    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QCommandLineParser parser;
    DescribeCommand(parser);
    parser.process(application);

    const auto style = std::make_shared<LumetraHost::EditorStyle>();
    Zorvik::Lumetra::StyleProvider::SetBackend(style);
    Zorvik::Util::AlertBox::SetBackend(
        std::make_shared<LumetraHost::MessageBoxAlertBackend>(style));
    QApplication::setCursorFlashTime(0);

    if (!parser.isSet(QStringLiteral("save")))
        return RunWindow(parser);
    const QString scale = parser.value(QStringLiteral("scale"));
    if (scale != QLatin1String("1") && scale != QLatin1String("2")) {
        std::fprintf(stderr, "--scale %s: expected 1 or 2\n", qPrintable(scale));
        return UsageError;
    }
    return SaveOneScale(parser.value(QStringLiteral("save")), scale);
}
