// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the time from the pointer to the pixel: the intensity of a third look is dragged by
// the pointer of an X server, with two kept looks below it, and the screen is watched from outside.
//
//   bench_pointer [--json=FILE] [--quick]
//
// Needs an X server of 1920 x 1080 that nobody else uses, as xvfb-run starts one. Times are real,
// so another program's work is in them.
#include "EditorSession.h"
#include "LargePhoto.h"
#include "PointerDrag.h"

#include "canvas/PhotoCanvas.h"
#include "plugins/GuardedApplication.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSlider>
#include <QStyle>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <exception>
#include <thread>

namespace {

using LumetraBenchmark::EditorSession;
using LumetraBenchmark::GetQuantile;
using LumetraBenchmark::LargePhoto;
using LumetraBenchmark::PointerDrag;

constexpr LargePhoto Photos[] = {{"24 megapixels", 6000, 4000, 8, "jpg", 1},
                                 {"100 megapixels", 12240, 8160, 8, "jpg", 1}};
constexpr int Places = 16;
constexpr int WatchedPixels = 400;

/// The places lie in the middle of the slider, where its value follows the pointer.
PointerDrag::Target MakeTarget(EditorSession& session, int events)
{
    const QSlider& slider = session.GetIntensity();
    const auto& canvas = session.GetCanvas();
    const int step = slider.width() * 7 / 10 / (Places - 1);
    PointerDrag::Target target;
    target.first = slider.mapToGlobal({slider.width() * 15 / 100, slider.height() / 2});
    target.step = {step, 0};
    target.places = Places;
    target.pixels =
        canvas.mapToGlobal({(canvas.width() - WatchedPixels) / 2, canvas.height() * 2 / 5});
    target.count = WatchedPixels;
    target.events = events;
    target.interval = std::chrono::milliseconds(8); // as a quick mouse reports
    return target;
}

/// Runs the drag on a thread of its own, while the editor works on this one.
PointerDrag::Result Drag(const PointerDrag::Target& target)
{
    PointerDrag drag(target);
    PointerDrag::Result result;
    std::exception_ptr problem;
    QEventLoop loop;
    std::thread thread([&] {
        try {
            result = drag.Run();
        } catch (...) {
            problem = std::current_exception();
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    thread.join();
    if (problem)
        std::rethrow_exception(problem);
    return result;
}

QJsonObject Measure(const QString& path, const char* photo, const QSize& size, const QString& look,
                    int events)
{
    EditorSession session(size);
    session.Open(path);
    for (const char* const kept : {"Autumn", "Winter"}) {
        session.ClickLook(QLatin1String(kept));
        session.KeepLook();
    }
    session.ClickLook(look);
    const auto result = Drag(MakeTarget(session, events));
    const QString window = QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
    const double median = GetQuantile(result.times, 0.5);
    const double most = GetQuantile(result.times, 0.99);
    std::printf("%-14s %-11s %-15s median %5.1f ms, 99 %% %5.1f ms, longest %5.1f ms; the screen "
                "changed %d times, longest pause %5.1f ms (%zu events, %d places alike)\n",
                photo, qPrintable(window), qPrintable(look), median, most,
                GetQuantile(result.times, 1), result.changes, result.longestPause,
                result.times.size(), result.notTold);
    std::fflush(stdout);
    return {{QStringLiteral("photo"), QLatin1String(photo)},
            {QStringLiteral("window"), window},
            {QStringLiteral("look"), look},
            {QStringLiteral("events"), int(result.times.size())},
            {QStringLiteral("medianMs"), std::round(median * 10) / 10},
            {QStringLiteral("ms99"), std::round(most * 10) / 10},
            {QStringLiteral("longestMs"), std::round(GetQuantile(result.times, 1) * 10) / 10},
            {QStringLiteral("changes"), result.changes},
            {QStringLiteral("longestPauseMs"), std::round(result.longestPause * 10) / 10}};
}

/// Photos are written by another process, so that their memory and heat are not in this one.
void Write(int number, const QString& path)
{
    QProcess::execute(QApplication::applicationFilePath(),
                      {QStringLiteral("--write"), QString::number(number), path});
}

int MeasureAll(const QStringList& words)
{
    const bool isQuick = words.contains(QStringLiteral("--quick"));
    const QTemporaryDir folder;
    QJsonArray runs;
    for (int i = 0; i < (isQuick ? 1 : int(std::size(Photos))); ++i) {
        const QString path = folder.filePath(QStringLiteral("%1.jpg").arg(i));
        Write(i, path);
        for (const QSize& size : {QSize(1366, 768), QSize(1920, 1080)})
            // A look that is blended, and one whose slider changes its effects.
            for (const char* const look : {"Candlelight", "Teal and Orange"})
                runs.append(
                    Measure(path, Photos[i].name, size, QLatin1String(look), isQuick ? 50 : 1000));
    }
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
        if (words.value(1) != QLatin1String("--write"))
            return MeasureAll(words);
        LumetraBenchmark::WriteLargePhoto(Photos[words.value(2).toInt()], words.value(3));
        return 0;
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "bench_pointer: %s\n", problem.what());
        return 1;
    }
}
