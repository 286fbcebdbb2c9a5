// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorOnStage.h"

#include "EffectPresets/EffectPresetModel.h"
#include "drawer/previews/AsyncPreviews.h"
#include "drawer/view/LiveView.h"
#include "plugins/PluginLoader.h"
#include "strip/PhotoStripModel.h"
#include "widgets/CustomToolBoxButton.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QSettings>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>
#include <QUrl>

#include <algorithm>

namespace LumetraScreenshots {
namespace {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

constexpr int SettlingRounds = 6;
constexpr int FolderPhotos = 24;
constexpr int PopupGap = 4; // to the edge of the window

void Send(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons down)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, down, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

int DepthOf(const QWidget* widget)
{
    int depth = 0;
    for (; widget; widget = widget->parentWidget())
        ++depth;
    return depth;
}

/// Everything over the window, a dialog's dialogs after it.
QList<QWidget*> FindPopups(const QWidget& window)
{
    QList<QWidget*> popups;
    for (QWidget* const widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget != &window)
            popups.append(widget);
    std::sort(popups.begin(), popups.end(),
              [](const QWidget* a, const QWidget* b) { return DepthOf(a) < DepthOf(b); });
    return popups;
}

void ClosePopups(const QWidget& window)
{
    QToolTip::hideText();
    const QList<QWidget*> popups = FindPopups(window);
    for (auto popup = popups.rbegin(); popup != popups.rend(); ++popup) {
        if (auto* const dialog = qobject_cast<QDialog*>(*popup))
            dialog->reject();
        else
            (*popup)->close();
    }
}

} // namespace

EditorOnStage::EditorOnStage(LumetraHost::PaletteKind kind, const QString& language)
    : m_folder(QDir::temp().filePath(QStringLiteral("Photos-XXXXXX")))
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.filePath(QStringLiteral("data"))));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.filePath(QStringLiteral("config"))));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       m_folder.filePath(QStringLiteral("settings")));
    m_editor = std::make_unique<LumetraEditor::Editor>();
    m_window = std::make_unique<LumetraEditor::EditorWindow>(*m_editor);
    m_window->UsePalette(kind);
    m_window->UseLanguage(language);
    m_window->LoadPanels(LumetraEditor::GetPluginFolders());
    m_window->resize(1280, 800);
    m_window->show();
    Settle();
}

EditorOnStage::~EditorOnStage() = default;

QString EditorOnStage::CopySample()
{
    const QString path = m_folder.filePath(QStringLiteral("lake.jpg"));
    QFile::copy(QStringLiteral(LUMETRA_SAMPLE_PHOTO), path);
    return path;
}

void EditorOnStage::WaitUntilOpen()
{
    while (m_editor->IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Settle();
}

void EditorOnStage::OpenSample()
{
    m_window->OpenPhotos({CopySample()});
    WaitUntilOpen();
}

void EditorOnStage::OpenFolder()
{
    const QDir folder(m_folder.filePath(QStringLiteral("Evening")));
    folder.mkpath(QStringLiteral("."));
    const QImage sample(QStringLiteral(LUMETRA_SAMPLE_PHOTO));
    const int width = sample.width() / 2;
    for (int i = 1; i <= FolderPhotos; ++i) {
        const bool isUpright = i % 4 == 0;
        const QSize size(isUpright ? width * 2 / 5 : width, width * 2 / 3);
        const QRect part(QPoint((i * 97) % (sample.width() - size.width()),
                                (i * 61) % (sample.height() - size.height())),
                         size);
        sample.copy(part).save(folder.filePath(QStringLiteral("IMG_%1.jpg").arg(i)));
    }
    QFile text(folder.filePath(QStringLiteral("IMG_5.jpg")));
    if (text.open(QIODevice::WriteOnly))
        text.write("milk, bread, apples");
    text.close();
    m_window->OpenPhotos({folder.path()});
    while (!m_editor->HasPhoto())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    WaitUntilOpen();
}

void EditorOnStage::WaitForThumbnails()
{
    const auto& photos = *m_window->findChild<LumetraEditor::PhotoStripModel*>();
    while (!photos.HasAllThumbnails())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void EditorOnStage::StartOpening()
{
    m_window->OpenPhotos({CopySample()});
}

void EditorOnStage::OpenText()
{
    QFile file(m_folder.filePath(QStringLiteral("shopping-list.jpg")));
    if (file.open(QIODevice::WriteOnly))
        file.write("milk, bread, apples");
    file.close();
    m_window->OpenPhotos({file.fileName()});
    WaitUntilOpen();
}

QModelIndex EditorOnStage::FindLook(const QString& name, QAbstractItemView*& view) const
{
    for (auto* const list : m_window->findChildren<QListView*>()) {
        const auto* const model = list->model();
        for (int row = 0; model && row < model->rowCount(); ++row)
            if (model->index(row, 0).data(EffectPresetModel::PresetNameRole).toString() == name) {
                view = list;
                return model->index(row, 0);
            }
    }
    qFatal("expected a look named \"%s\"", qPrintable(name));
}

void EditorOnStage::ClickLook(const QString& name)
{
    QAbstractItemView* view = nullptr;
    const QModelIndex look = FindLook(name, view);
    const QPoint place = view->visualRect(look).center();
    Send(*view->viewport(), QEvent::MouseButtonPress, place, Qt::LeftButton);
    Send(*view->viewport(), QEvent::MouseButtonRelease, place, Qt::NoButton);
    Settle();
}

void EditorOnStage::PointAtLook(const QString& name)
{
    QAbstractItemView* view = nullptr;
    const QModelIndex look = FindLook(name, view);
    const QPoint place = view->visualRect(look).center();
    QHoverEvent hover(QEvent::HoverMove, place, place - QPoint(1, 1));
    QApplication::sendEvent(view->viewport(), &hover);
    Send(*view->viewport(), QEvent::MouseMove, place, Qt::NoButton);
    while (!m_editor->GetShownOnTop())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Settle();
}

QPoint EditorOnStage::PlaceOf(const QString& look)
{
    QAbstractItemView* view = nullptr;
    const QModelIndex index = FindLook(look, view);
    return view->viewport()->mapTo(m_window.get(), view->visualRect(index).center());
}

void EditorOnStage::AskForMenu(const QString& look)
{
    QAbstractItemView* view = nullptr;
    const QModelIndex index = FindLook(look, view);
    const QPoint place = view->visualRect(index).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
    QApplication::sendEvent(view->viewport(), &event);
}

QString EditorOnStage::WriteFiles(const std::map<QString, QByteArray>& files)
{
    const QString folder = m_folder.filePath(QStringLiteral("Looks"));
    QDir().mkpath(folder);
    for (const auto& [name, content] : files) {
        QFile file(QDir(folder).filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("expected to be able to write %s", qPrintable(file.fileName()));
    }
    return folder;
}

void EditorOnStage::DropOnPanel(const QString& path)
{
    auto& panel = Find<QWidget>("presetsPanel");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPoint place(10, 10);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&panel, &enter); // without it Qt knows of no target for the drop
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&panel, &drop);
}

void EditorOnStage::Search(const QString& text)
{
    Find<QLineEdit>("searchField").setText(text);
    Settle();
}

void EditorOnStage::ShowAdjust(int section)
{
    auto& tabs = Find<QTabWidget>("panels");
    auto* const panel = m_window->findChild<QWidget*>(QStringLiteral("adjustPanel"));
    tabs.setCurrentWidget(panel);
    Settle();
    const auto headers =
        panel->findChildren<Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton*>();
    for (int i = 0; i < headers.size(); ++i)
        if (headers[i]->isSelected() != (i == section))
            headers[i]->click();
    Settle();
}

void EditorOnStage::SetAdjustment(const char* parameter, int position)
{
    auto& slider = Find<QSlider>(parameter);
    slider.setSliderDown(true);
    slider.setValue(position);
    slider.setSliderDown(false);
    Settle();
}

void EditorOnStage::SaveLook(const QString& name)
{
    GrabWithPopups([this] { Find<QAction>("savePreset").trigger(); }, {},
                   [name] {
                       auto* const dialog =
                           qobject_cast<QDialog*>(QApplication::activeModalWidget());
                       dialog->findChild<QLineEdit*>()->setText(name);
                       dialog->accept();
                   });
    Settle();
}

void EditorOnStage::Settle()
{
    // Painting asks for pictures, and new pictures are painted: several rounds settle both.
    for (int round = 0; round < SettlingRounds; ++round) {
        QApplication::processEvents();
        m_window->grab();
        m_editor->findChild<LumetraHost::AsyncPreviews*>()->WaitForAll();
        for (auto* const view : m_window->findChildren<LumetraHost::LiveView*>())
            view->WaitForFrame();
        m_editor->SaveEdit();
        m_editor->GetManySteps().GetEdits().WaitForAll();
        WaitForThumbnails();
    }
}

QImage EditorOnStage::GrabNow()
{
    return m_window->grab().toImage();
}

QImage EditorOnStage::Grab()
{
    Settle();
    return GrabNow();
}

QImage EditorOnStage::Compose(QImage picture, const QPoint& place) const
{
    QPainter painter(&picture);
    for (QWidget* const popup : FindPopups(*m_window)) {
        const bool isDialog = qobject_cast<QDialog*>(popup) != nullptr;
        const QSize room = (m_window->size() - popup->size()) / 2;
        const QPoint corner =
            isDialog ? QPoint(room.width(), room.height() * 4 / 5)
                     : QPoint(std::min(place.x(), 2 * room.width() - PopupGap), place.y());
        if (isDialog)
            painter.fillRect(QRect(corner, popup->size()).adjusted(-1, -1, 1, 1),
                             QColor(0, 0, 0, 160));
        painter.drawImage(corner, popup->grab().toImage());
    }
    return picture;
}

QImage EditorOnStage::GrabWithPopups(const std::function<void()>& open, const QPoint& place,
                                     const std::function<void()>& work)
{
    QImage picture;
    // Dialogs and menus run loops of their own, and so may what is done in them.
    QTimer::singleShot(0, m_window.get(), [&] {
        QTimer::singleShot(0, m_window.get(), [&] {
            QApplication::processEvents();
            picture = Compose(Grab(), place);
            ClosePopups(*m_window);
        });
        if (work)
            work();
    });
    open();
    while (picture.isNull())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return picture;
}

QImage EditorOnStage::GrabWhenShown(const char* name, const std::function<void()>& open)
{
    QImage picture;
    QTimer look; // a loop here would keep that of the caller from going on
    QObject::connect(&look, &QTimer::timeout, m_window.get(), [&] {
        const auto* const part = m_window->findChild<QWidget*>(QLatin1String(name));
        if (!part || !part->isVisible())
            return;
        look.stop();
        picture = Compose(GrabNow(), {});
        ClosePopups(*m_window);
    });
    look.start();
    open();
    while (picture.isNull())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return picture;
}

} // namespace LumetraScreenshots
