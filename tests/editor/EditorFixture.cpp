// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorFixture.h"
#include "Places.h"

#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"
#include "drawer/view/LiveView.h"
#include "histogram/HistogramFeed.h"
#include "photo/PhotoWriter.h"
#include "window/MessageBar.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QMouseEvent>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

namespace LumetraTest {
namespace {

using LumetraHost::Image;

Image MakeGradients(int width, int height)
{
    Image image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* const pixel = image.Row(y) + Image::Channels * x;
            pixel[0] = static_cast<std::uint8_t>(20 + 200 * x / width);
            pixel[1] = static_cast<std::uint8_t>(20 + 200 * y / height);
            pixel[2] = static_cast<std::uint8_t>(20 + (x + y) % 200);
            pixel[3] = 255;
        }
    }
    return image;
}

} // namespace

void WaitUntil(const std::function<bool()>& isDone)
{
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Drag(QWidget& widget, const QPoint& from, const QPoint& to)
{
    const auto send = [&widget](QEvent::Type type, const QPoint& at, Qt::MouseButtons down) {
        QMouseEvent event(type, at, widget.mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, down,
                          Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    send(QEvent::MouseMove, (from + to) / 2, Qt::LeftButton);
    send(QEvent::MouseMove, to, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, to, Qt::NoButton);
}

EditorFolder::EditorFolder()
{
    EXPECT_TRUE(m_folder.isValid());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Path("settings"));
    qputenv("XDG_DATA_HOME", QFile::encodeName(Path("data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(Path("config")));
}

QString EditorFolder::Path(const char* name) const
{
    const QDir folder(QDir(m_folder.path()).canonicalPath());
    return QDir::cleanPath(folder.filePath(QLatin1String(name)));
}

QString EditorFolder::WriteFile(const char* name, const QByteArray& content) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return Path(name);
}

QByteArray EditorFolder::ReadFile(const char* name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString EditorFolder::WritePhoto(const char* name, int width, int height) const
{
    LumetraHost::Photo photo;
    photo.image = MakeGradients(width, height);
    LumetraHost::PhotoWriter::Write(Path(name), photo);
    return Path(name);
}

QString EditorFolder::WriteTruncatedPhoto(const char* name) const
{
    WritePhoto(name, 64, 48);
    const QByteArray whole = ReadFile(name);
    return WriteFile(name, whole.left(whole.size() / 2));
}

EditorTest::EditorTest()
{
    Start();
}

void EditorTest::Start()
{
    editor = std::make_unique<LumetraEditor::Editor>();
    window = std::make_unique<LumetraEditor::EditorWindow>(*editor);
    window->UseLanguage(QStringLiteral("en"));
    window->resize(1000, 900);
    window->show();
    QApplication::setActiveWindow(window.get());
}

void EditorTest::Restart()
{
    window.reset();
    Start();
}

EditorTest::~EditorTest() = default;

void EditorTest::Open(const QString& path)
{
    window->OpenPhotos({path});
    WaitUntil([this] { return !editor->IsOpening(); });
}

void EditorTest::LoadExamplePanel()
{
    window->LoadPanels({QStringLiteral(LUMETRA_EXAMPLE_MODULES)});
}

void EditorTest::LoadPresetsPanel()
{
    window->LoadPanels({QStringLiteral(LUMETRA_MODULES)});
    QApplication::processEvents();
}

LumetraHost::LiveView& EditorTest::GetCanvasView() const
{
    return *GetPart<LumetraEditor::CanvasFeed>().findChild<LumetraHost::LiveView*>();
}

LumetraHost::LiveView& EditorTest::GetHistogramView() const
{
    return *GetPart<LumetraEditor::HistogramFeed>().findChild<LumetraHost::LiveView*>();
}

bool EditorTest::IsExporting() const
{
    return !Find<QToolButton>("cancelExport")->isHidden();
}

void EditorTest::DropFiles(const QStringList& paths) const
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
}

QImage EditorTest::GetPicture() const
{
    GetCanvasView().WaitForFrame();
    return GetPart<LumetraEditor::PhotoCanvas>()
        .GetFrame(LumetraEditor::PhotoCanvas::Layer::Edited)
        .image;
}

std::pair<QListView*, QModelIndex> EditorTest::FindLook(const QString& name) const
{
    for (auto* const list : window->findChildren<QListView*>())
        for (int row = 0; list->model() && row < list->model()->rowCount(); ++row)
            if (list->model()->index(row, 0).data().toString() == name)
                return {list, list->model()->index(row, 0)};
    return {nullptr, {}};
}

bool EditorTest::HasLook(const QString& name) const
{
    return FindLook(name).first != nullptr;
}

QPoint EditorTest::PlaceOf(const QString& look) const
{
    const auto [list, index] = FindLook(look);
    EXPECT_NE(list, nullptr) << look.toStdString();
    return list->visualRect(index).center();
}

void EditorTest::ClickLook(const QString& name) const
{
    QTest::mouseClick(FindLook(name).first->viewport(), Qt::LeftButton, {}, PlaceOf(name));
}

void EditorTest::PointAtLook(const QString& name) const
{
    QWidget& viewport = *FindLook(name).first->viewport();
    QMouseEvent move(QEvent::MouseMove, PlaceOf(name), viewport.mapToGlobal(PlaceOf(name)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&viewport, &move);
}

QString EditorTest::GetAppliedName() const
{
    return Find<QLabel>("appliedName")->text();
}

bool EditorTest::NameBy(const char* action, const QString& name) const
{
    bool isClosed = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* const edit = dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit"));
        edit->selectAll();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
        isClosed = !dialog->isVisible();
        if (!isClosed)
            dialog->reject();
    });
    FindAction(action)->trigger();
    return isClosed;
}

QString EditorTest::GetMessage() const
{
    return GetPart<LumetraEditor::MessageBar>().GetText();
}

QAction* EditorTest::FindAction(const char* name) const
{
    auto* const action = window->findChild<QAction*>(QLatin1String(name));
    EXPECT_NE(action, nullptr) << name;
    return action;
}

} // namespace LumetraTest
