// SPDX-License-Identifier: GPL-2.0-or-later
#include "StripBenchmark.h"

#include "Memory.h"
#include "WatchedApplication.h"

#include "export/ExportGuard.h"
#include "export/selection/SelectionExporter.h"
#include "photo/PhotoWriter.h"
#include "strip/PhotoBrowser.h"
#include "strip/PhotoStrip.h"
#include "window/EditorWindow.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>

namespace LumetraBenchmark {
namespace {

using LumetraEditor::PhotoStrip;
using LumetraEditor::PhotoStripModel;
using LumetraHost::Image;

constexpr int PhotoWidth = 1200, PhotoHeight = 800;

/// A folder with links to one photo: each is a photo of its own for the editor.
QString WriteFolder(const QTemporaryDir& folder, int count)
{
    LumetraHost::Photo photo;
    photo.image = Image::Allocate(PhotoWidth, PhotoHeight, Image::Depth::Bits8);
    for (int y = 0; y < PhotoHeight; ++y)
        for (int x = 0; x < PhotoWidth; ++x) {
            std::uint8_t* const pixel = photo.image.Row(y) + Image::Channels * x;
            pixel[0] = static_cast<std::uint8_t>(x / 5);
            pixel[1] = static_cast<std::uint8_t>(y / 4);
            pixel[2] = static_cast<std::uint8_t>((x ^ y) / 4);
            pixel[3] = 255;
        }
    const QString path = folder.filePath(QString::number(count));
    QDir().mkpath(path);
    const QString first = path + QStringLiteral("/0.jpg");
    LumetraHost::PhotoWriter::Write(first, photo);
    for (int i = 1; i < count; ++i)
        QFile::link(first, QStringLiteral("%1/%2.jpg").arg(path).arg(i));
    return path;
}

/// Does the work inside an event, so that it is measured, and all that follows from it.
void RunInEvent(QObject& receiver, const std::function<void()>& work)
{
    QMetaObject::invokeMethod(&receiver, work, Qt::QueuedConnection);
    QApplication::processEvents();
}

void WaitForRow(LumetraEditor::EditorWindow& window, const QString& path, int count)
{
    const auto* const photos = window.findChild<PhotoStripModel*>();
    RunInEvent(window, [&] { window.OpenPhotos({path}); });
    while (photos->rowCount() < count || photos->GetCurrent().isEmpty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// True when all rows in sight have their thumbnails.
bool IsComplete(const PhotoStrip& strip)
{
    const int width = strip.gridSize().width();
    const int left = strip.horizontalScrollBar()->value();
    const int last =
        std::min((left + strip.viewport()->width() - 1) / width, strip.model()->rowCount() - 1);
    for (int row = left / width; row <= last; ++row)
        if (strip.model()->index(row, 0).data(Qt::DecorationRole).isNull())
            return false;
    return true;
}

/// Goes from page to page as soon as each is there.
void LoadAll(PhotoStrip& strip)
{
    QScrollBar& bar = *strip.horizontalScrollBar();
    for (;;) {
        while (!IsComplete(strip))
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (bar.value() == bar.maximum())
            return;
        RunInEvent(bar, [&bar] { bar.setValue(bar.value() + bar.pageStep()); });
    }
}

/// Exports all photos of a folder again and again until it is destroyed.
class EndlessExport
{
public:
    explicit EndlessExport(const QString& folder)
        : m_exporter(std::make_shared<LumetraEditor::ExportGuard>())
    {
        LumetraEditor::SelectionOrder order;
        for (const QString& name : QDir(folder).entryList(QDir::Files))
            order.photos << folder + QLatin1Char('/') + name;
        order.recipes = LumetraHost::NamedRecipe::GetShipped();
        order.folder = folder + QStringLiteral("-exported");
        order.replaces = true;
        m_plan = LumetraEditor::SelectionPlan::Make(order, LumetraEditor::ExportGuard());
        QObject::connect(&m_exporter, &LumetraEditor::SelectionExporter::progressed,
                         [this] { ++m_count; });
        QObject::connect(&m_exporter, &LumetraEditor::SelectionExporter::ended,
                         [this] { m_exporter.Start(m_plan); });
        m_exporter.Start(m_plan);
    }

    /// The files that have been written so far.
    int GetCount() const { return m_count; }

private:
    LumetraEditor::SelectionPlan m_plan;
    int m_count = 0;
    LumetraEditor::SelectionExporter m_exporter; ///< destroyed first: it tells no more
};

/// Drags the scroll bar from one end to the other, waiting for nothing.
void Sweep(PhotoStrip& strip)
{
    constexpr int Steps = 500;
    QScrollBar& bar = *strip.horizontalScrollBar();
    for (int i = 0; i <= Steps; ++i) {
        const auto value = static_cast<int>(qint64(bar.maximum()) * i / Steps);
        RunInEvent(bar, [&bar, value] { bar.setValue(value); });
    }
}

void Report(const WatchedApplication& application, const char* name, const QElapsedTimer& clock)
{
    std::printf("%-22s longest event %5.1f ms of work (%5.1f ms real), 99 %% %5.2f ms, in %.1f s, "
                "%5.0f MB\n",
                name, application.GetWork(1), application.GetReal(1), application.GetWork(0.99),
                clock.elapsed() / 1000.0, Memory("VmRSS"));
    std::fflush(stdout);
}

} // namespace

void RunStripBenchmark(WatchedApplication& application, LumetraEditor::EditorWindow& window,
                       const QTemporaryDir& folder)
{
    const QString thousand = WriteFolder(folder, 1000);
    const QString tenThousand = WriteFolder(folder, 10000);
    auto& strip = *window.findChild<PhotoStrip*>();
    QElapsedTimer clock;
    const auto measure = [&](const char* name, const auto& work) {
        application.Restart();
        clock.start();
        work();
        Report(application, name, clock);
    };
    measure("open 1,000", [&] { WaitForRow(window, thousand, 1000); });
    measure("1,000 thumbnails", [&] { LoadAll(strip); });
    const QString another = WriteFolder(folder, 1001);
    WaitForRow(window, another, 1001);
    {
        const EndlessExport exported(thousand);
        measure("... beside an export", [&] { LoadAll(strip); });
        std::printf("%d files were exported meanwhile\n", exported.GetCount());
    }
    measure("open 10,000", [&] { WaitForRow(window, tenThousand, 10000); });
    measure("scroll 10,000", [&] { Sweep(strip); });
    measure("select 10,000", [&] { RunInEvent(window, [&] { window.GetBrowser().SelectAll(); }); });
}

} // namespace LumetraBenchmark
