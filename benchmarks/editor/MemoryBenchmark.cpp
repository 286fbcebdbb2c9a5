// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the memory of the editor with one photo, each in a process of its own: opened, with a
// look whose intensity has been dragged, and with an export.
//
//   bench_memory [--json=FILE] [--quick]
//
// "Peak" is the largest resident set that the process has had, which counts pages of files that
// other programs share too. "Pss" is what it has then, with shared pages divided among those who
// share them.
#include "EditorSession.h"
#include "LargePhoto.h"
#include "Memory.h"

#include "export/ExportJob.h"
#include "plugins/GuardedApplication.h"
#include "session/Editor.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSlider>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <exception>

namespace {

using LumetraBenchmark::EditorSession;
using LumetraBenchmark::LargePhoto;
using LumetraBenchmark::Memory;
using LumetraBenchmark::SharedMemory;

constexpr LargePhoto Photos[] = {
    {"24 megapixels, JPEG", 6000, 4000, 8, "jpg", 1},
    {"100 megapixels, JPEG", 12240, 8160, 8, "jpg", 1},
    {"100 megapixels, JPEG to be turned", 12240, 8160, 8, "jpg", 6},
    {"100 megapixels, PNG", 12240, 8160, 8, "png", 1},
    {"24 megapixels, TIFF with 16 bits", 6000, 4000, 16, "tif", 1},
    {"100 megapixels, TIFF with 16 bits", 12240, 8160, 16, "tif", 1},
};

/// Moves the intensity by the model's own slider, frame by frame.
void DragIntensity(EditorSession& session)
{
    QSlider& slider = session.GetIntensity();
    slider.setSliderDown(true);
    for (int tick = 0; tick < 100; ++tick) {
        const double share = 0.5 + 0.4 * std::sin(tick / 10.0);
        slider.setSliderPosition(slider.minimum() +
                                 static_cast<int>(share * (slider.maximum() - slider.minimum())));
        session.Settle(1);
    }
    slider.setSliderDown(false);
    session.Settle();
}

void Export(LumetraEditor::Editor& editor, const QString& path)
{
    LumetraEditor::ExportOptions options;
    options.path = path;
    LumetraEditor::ExportJob(editor.GetPhoto(), editor.GetPackages(), editor.GetRecords(), options)
        .Run([](int) {});
}

void Tell(QJsonObject& figures, const char* what)
{
    const QString name = QLatin1String(what);
    figures[name + QStringLiteral("PeakMB")] = std::round(Memory("VmHWM"));
    figures[name + QStringLiteral("PssMB")] = std::round(SharedMemory("Pss:"));
}

/// Measures one photo in this process and prints the figures as JSON.
void MeasureHere(const QString& photo)
{
    EditorSession session({1920, 1080});
    session.Settle();
    QJsonObject figures;
    Tell(figures, "empty");
    session.Open(photo);
    Tell(figures, "opened");
    session.ClickLook(QStringLiteral("Candlelight"));
    DragIntensity(session);
    Tell(figures, "look");
    figures[QStringLiteral("anonymousMB")] = std::round(SharedMemory("Pss_Anon:"));
    Export(session.GetEditor(), photo + QStringLiteral("-exported.jpg"));
    Tell(figures, "export");
    std::puts(QJsonDocument(figures).toJson(QJsonDocument::Compact).constData());
}

QByteArray RunSelf(const QStringList& words)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QApplication::applicationFilePath(), words);
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        std::fprintf(stderr, "bench_memory: a measurement has failed\n");
    return process.readAllStandardOutput();
}

QJsonObject Measure(int number, const QTemporaryDir& folder)
{
    const LargePhoto& photo = Photos[number];
    // Names of their own: an edit belongs to a name.
    const QString path = folder.filePath(
        QStringLiteral("%1.%2").arg(QString::number(number), QLatin1String(photo.suffix)));
    RunSelf({QStringLiteral("--write"), QString::number(number), path});
    auto figures = QJsonDocument::fromJson(RunSelf({QStringLiteral("--measure"), path})).object();
    const auto get = [&figures](const char* name) {
        return figures[QLatin1String(name)].toDouble();
    };
    std::printf(
        "%-36s opened %5.0f MB, with a look %5.0f MB (now %5.0f), with an export %5.0f MB\n",
        photo.name, get("openedPeakMB"), get("lookPeakMB"), get("lookPssMB"), get("exportPeakMB"));
    std::fflush(stdout);
    figures[QStringLiteral("photo")] = QLatin1String(photo.name);
    figures[QStringLiteral("fileMB")] = std::round(double(QFile(path).size()) / (1 << 20));
    return figures;
}

int MeasureAll(const QStringList& words)
{
    const QTemporaryDir folder;
    QJsonArray runs;
    const int count = words.contains(QStringLiteral("--quick")) ? 1 : int(std::size(Photos));
    for (int i = 0; i < count; ++i)
        runs.append(Measure(i, folder));
    for (const QString& word : words)
        if (word.startsWith(QLatin1String("--json="))) {
            QFile file(word.mid(7));
            if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(runs).toJson()) < 0)
                return 1;
        }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const LumetraEditor::GuardedApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    try {
        if (words.value(1) == QLatin1String("--write"))
            LumetraBenchmark::WriteLargePhoto(Photos[words.value(2).toInt()], words.value(3));
        else if (words.value(1) == QLatin1String("--measure"))
            MeasureHere(words.value(2));
        else
            return MeasureAll(words);
        return 0;
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "bench_memory: %s\n", problem.what());
        return 1;
    }
}
