// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorOnStage.h"
#include "Scenes.h"

#include "style/EditorStyle.h"
#include "style/MessageBoxAlertBackend.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <cstdio>

namespace {

using namespace LumetraScreenshots;
using LumetraHost::PaletteKind;

constexpr int Done = 0, Failed = 1;
constexpr qint64 LargestPicture = 300 * 1000; // bytes, in the documents
const char* const ScaleVariable = "QT_SCALE_FACTOR";

void DescribeCommand(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "Saves pictures of the editor: every scene, dark and light, in English and German, at "
        "scale 1 and 2."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("save"), QStringLiteral("Where to; it is made."),
                      QStringLiteral("folder"), QStringLiteral("docs/images")});
    parser.addOption(
        {QStringLiteral("scene"), QStringLiteral("Only this scene."), QStringLiteral("name")});
    parser.addOption({QStringLiteral("docs"),
                      QStringLiteral("Only the pictures that the documents show, made smaller by "
                                     "pngquant, which must be installed.")});
    parser.addOption({QStringLiteral("scale"), QStringLiteral("Only this scale, 1 or 2."),
                      QStringLiteral("scale")});
}

/// Saves one scale in a process of its own: an application has but one.
bool SaveScale(const QString& scale)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(ScaleVariable), scale);
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  QCoreApplication::arguments().mid(1) +
                      QStringList{QStringLiteral("--scale"), scale});
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == Done;
}

/// Writes a copy of the picture with so many colours, which hardly shows on a photo. False, after
/// saying why, when that has failed.
bool ReduceColours(const QString& path, int colours, const QString& copy)
{
    const int exitCode =
        QProcess::execute(QStringLiteral("pngquant"),
                          {QStringLiteral("--speed=1"), QStringLiteral("--force"),
                           QStringLiteral("--output"), copy, QString::number(colours), path});
    if (exitCode != 0)
        std::fprintf(stderr,
                     "%s: expected pngquant to make the picture smaller; it ended with %d\n",
                     qPrintable(path), exitCode);
    return exitCode == 0;
}

/// Leaves the picture as many colours as a file of that size can have.
bool MakeSmall(const QString& path)
{
    const QString copy = path + QStringLiteral(".small");
    for (const int colours : {256, 192, 128, 96, 64}) {
        if (!ReduceColours(path, colours, copy))
            return false;
        if (QFileInfo(copy).size() <= LargestPicture)
            break;
    }
    QFile::remove(path);
    return QFile::rename(copy, path);
}

bool SaveScene(const Scene& scene, const QString& path, PaletteKind kind, const QString& language)
{
    EditorOnStage stage(kind, language);
    if (scene.play(stage).convertToFormat(QImage::Format_RGB32).save(path))
        return true;
    std::fprintf(stderr, "%s: expected to be able to write the picture here\n", qPrintable(path));
    return false;
}

int SaveScenes(const QCommandLineParser& parser)
{
    const QDir folder(parser.value(QStringLiteral("save")));
    folder.mkpath(QStringLiteral("."));
    const QString wanted = parser.value(QStringLiteral("scene"));
    const QString scale = parser.value(QStringLiteral("scale"));
    const bool isForDocs = parser.isSet(QStringLiteral("docs"));
    for (const Scene& scene : AllScenes()) {
        if (!wanted.isEmpty() && scene.name != wanted)
            continue;
        for (const auto kind : {PaletteKind::Dark, PaletteKind::Light})
            for (const char* const language : {"en", "de"}) {
                const QString look =
                    QStringLiteral("%1-%2@%3x")
                        .arg(QLatin1String(kind == PaletteKind::Dark ? "dark" : "light"),
                             QLatin1String(language), scale);
                if (isForDocs && look != QLatin1String(scene.inDocs))
                    continue;
                const QString path =
                    folder.filePath(QStringLiteral("editor-%1-%2.png").arg(scene.name, look));
                if (!SaveScene(scene, path, kind, QLatin1String(language)) ||
                    (isForDocs && !MakeSmall(path)))
                    return Failed;
            }
    }
    return Done;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet(ScaleVariable)) {
        const QCoreApplication application(argc, argv);
        QCommandLineParser parser;
        DescribeCommand(parser);
        parser.process(application);
        QStringList scales{parser.value(QStringLiteral("scale"))};
        if (scales.first().isEmpty())
            scales = QStringList{QStringLiteral("1"), QStringLiteral("2")};
        for (const QString& scale : scales)
            if (!SaveScale(scale))
                return Failed;
        return Done;
    }
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMETRA_VERSION));
    QApplication::setCursorFlashTime(0);
    const auto style = std::make_shared<LumetraHost::EditorStyle>();
    Zorvik::Lumetra::StyleProvider::SetBackend(style);
    Zorvik::Util::AlertBox::SetBackend(
        std::make_shared<LumetraHost::MessageBoxAlertBackend>(style));
    QCommandLineParser parser;
    DescribeCommand(parser);
    parser.process(application);
    return SaveScenes(parser);
}
