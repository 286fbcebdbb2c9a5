// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the editor's answers: the time until its first window, the ticks of an intensity that is
// dragged, thumbnails that load, an export beside the tool's, and its memory. Times are real, so
// another program's work is in them. With the argument "strip", the strip alone.
#include "EditorExportBenchmark.h"
#include "Memory.h"
#include "StripBenchmark.h"
#include "WatchedApplication.h"

#include "canvas/CanvasFeed.h"
#include "drawer/previews/AsyncPreviews.h"
#include "photo/PhotoWriter.h"
#include "plugins/PluginLoader.h"
#include "session/Editor.h"
#include "window/EditorWindow.h"

#include <QApplication>
#include <QFile>
#include <QListView>
#include <QMouseEvent>
#include <QSettings>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>

#include <cmath>
#include <cstdio>

namespace {

using LumetraBenchmark::Memory;
using LumetraBenchmark::WatchedApplication;
using LumetraHost::Image;

constexpr int Ticks = 250, TickInterval = 8; // milliseconds, as a quick mouse reports

QString WritePhoto(const QTemporaryDir& folder, int width, int height)
{
    LumetraHost::Photo photo;
    photo.image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* const pixel = photo.image.Row(y) + Image::Channels * x;
            pixel[0] = static_cast<std::uint8_t>(x / 8);
            pixel[1] = static_cast<std::uint8_t>(y / 8);
            pixel[2] = static_cast<std::uint8_t>((x + y) / 16);
            pixel[3] = 255;
        }
    }
    const QString path = folder.filePath(QStringLiteral("%1.jpg").arg(width));
    LumetraHost::PhotoWriter::Write(path, photo);
    return path;
}

void Send(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons down)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, down,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void Wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

LumetraHost::LiveView& GetCanvasView(const LumetraEditor::EditorWindow& window)
{
    return *window.findChild<LumetraEditor::CanvasFeed*>()->findChild<LumetraHost::LiveView*>();
}

void Open(LumetraEditor::Editor& editor, LumetraEditor::EditorWindow& window, const char* name,
          const QString& path)
{
    QElapsedTimer clock;
    qint64 photo = 0, thumbnail = 0; // nanoseconds
    const QObject here;
    QObject::connect(&editor, &LumetraEditor::Editor::photoChanged, &here,
                     [&] { photo = clock.nsecsElapsed(); });
    QObject::connect(editor.findChild<LumetraHost::AsyncPreviews*>(),
                     &LumetraHost::AsyncPreviews::previewReady, &here, [&] {
                         if (photo != 0 && thumbnail == 0) // not one of the photo before
                             thumbnail = clock.nsecsElapsed();
                     });
    clock.start();
    window.OpenPhotos({path});
    while (editor.IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    GetCanvasView(window).WaitForFrame();
    Wait(1000); // until the thumbnails in sight are there
    std::printf("open    %-14s photo after %4.0f ms, first thumbnail %4.0f ms later, %5.0f MB\n",
                name, photo / 1e6, (thumbnail - photo) / 1e6, Memory("VmRSS"));
}

void ClickFirstLook(LumetraEditor::EditorWindow& window)
{
    for (auto* const list : window.findChildren<QListView*>()) {
        const bool isOfPanel = list->objectName() != QLatin1String("photoStrip");
        if (!isOfPanel || !list->isVisible() || list->model()->rowCount() < 2)
            continue;
        const QPoint place = list->visualRect(list->model()->index(1, 0)).center();
        Send(*list->viewport(), QEvent::MouseButtonPress, place, Qt::LeftButton);
        Send(*list->viewport(), QEvent::MouseButtonRelease, place, Qt::NoButton);
        Wait(500);
        return;
    }
}

void Drag(WatchedApplication& application, LumetraEditor::EditorWindow& window, const char* name)
{
    auto& slider = *window.findChild<QSlider*>(QStringLiteral("intensitySlider"));
    const auto place = [&slider](int tick) {
        const double share = 0.5 + 0.4 * std::sin(tick / 20.0);
        return QPoint(static_cast<int>(slider.width() * share), slider.height() / 2);
    };
    int frames = 0;
    const auto counting = QObject::connect(
        &GetCanvasView(window), &LumetraHost::LiveView::frameReady, [&frames] { ++frames; });
    QEventLoop loop;
    QTimer timer;
    int tick = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++tick == Ticks)
            loop.quit();
        else
            Send(slider, QEvent::MouseMove, place(tick), Qt::LeftButton);
    });
    Send(slider, QEvent::MouseButtonPress, place(0), Qt::LeftButton);
    Wait(200);
    application.Restart();
    frames = 0;
    timer.start(TickInterval);
    loop.exec();
    timer.stop();
    std::printf("drag at %-14s longest event %5.1f ms of work (%5.1f ms real), 99 %% %5.2f ms, "
                "%d frames in %.1f s\n",
                name, application.GetWork(1), application.GetReal(1), application.GetWork(0.99),
                frames, Ticks * TickInterval / 1000.0);
    QObject::disconnect(counting);
    Send(slider, QEvent::MouseButtonRelease, place(Ticks), Qt::NoButton);
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    WatchedApplication application(argc, argv);
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.filePath(QStringLiteral("data"))));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());

    LumetraEditor::Editor editor;
    LumetraEditor::EditorWindow window(editor);
    window.LoadPanels(LumetraEditor::GetPluginFolders());
    window.resize(1920, 1200); // the canvas has some 2 megapixels minus the panel
    window.show();
    window.repaint();
    std::printf("first window           %5.0f ms, %4.0f MB\n", sinceStart.nsecsElapsed() / 1e6,
                Memory("VmRSS"));
    if (WatchedApplication::arguments().contains(QStringLiteral("strip"))) {
        LumetraBenchmark::RunStripBenchmark(application, window, folder);
        return 0;
    }

    const struct
    {
        const char* name;
        int width, height;
    } photos[] = {{"2 megapixels", 1632, 1224},
                  {"24 megapixels", 6000, 4000},
                  {"100 megapixels", 12240, 8160}};
    for (const auto& photo : photos) {
        const QString path = WritePhoto(folder, photo.width, photo.height);
        Open(editor, window, photo.name, path);
        ClickFirstLook(window);
        LumetraBenchmark::RunEditorExportBenchmark(editor, path);
        Drag(application, window, photo.name);
        std::printf("edited  %-14s %5.0f MB, at most so far %5.0f MB\n", photo.name,
                    Memory("VmRSS"), Memory("VmHWM"));
        std::fflush(stdout);
    }
    LumetraBenchmark::RunStripBenchmark(application, window, folder);
    return 0;
}
