// SPDX-License-Identifier: GPL-2.0-or-later
#include "StressRun.h"

#include "AdjustActions.h"
#include "AnsweredDialog.h"
#include "Pointer.h"
#include "RowActions.h"

#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"
#include "drawer/previews/AsyncPreviews.h"
#include "drawer/view/LiveView.h"
#include "layers/LayersView.h"
#include "photo/PhotoWriter.h"
#include "plugins/PluginLoader.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QSettings>
#include <QSlider>
#include <QToolButton>
#include <QWheelEvent>

namespace LumetraTest {

using LumetraHost::Image;

StressRun::StressRun(unsigned seed) : m_choice(seed)
{
    qputenv("XDG_DATA_HOME", m_folder.filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", m_folder.filePath(QStringLiteral("config")).toLocal8Bit());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    for (int i = 0; i < 3; ++i) {
        LumetraHost::Photo photo;
        photo.image = Image::Allocate(90 + 40 * i, 60 + 10 * i, Image::Depth::Bits8);
        for (int y = 0; y < photo.image.GetHeight(); ++y)
            for (int x = 0; x < photo.image.GetWidth() * Image::Channels; ++x)
                photo.image.Row(y)[x] =
                    x % 4 == 3 ? 255 : static_cast<std::uint8_t>((x * 3 + y * 5 + i * 40) % 256);
        m_photos.append(m_folder.filePath(QStringLiteral("photo%1.png").arg(i)));
        LumetraHost::PhotoWriter::Write(m_photos.last(), photo);
    }
    Start();
}

void StressRun::Start()
{
    m_window.reset();
    m_editor = std::make_unique<LumetraEditor::Editor>();
    m_window = std::make_unique<LumetraEditor::EditorWindow>(*m_editor);
    m_window->UseLanguage(QStringLiteral("en"));
    m_window->AddPanel({QStringLiteral("lumetra-presets"), QString(), &m_looks});
    m_window->AddPanel({QStringLiteral("lumetra-tuning"), QString(), &m_adjust});
    // A button that fades makes the painting depend on the time, and leaks when the program ends
    // meanwhile.
    m_window->findChild<QLineEdit*>(QStringLiteral("searchField"))->setClearButtonEnabled(false);
    m_window->resize(1000, 900);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    OpenPhoto();
}

void StressRun::OpenPhoto()
{
    Open(m_photos[Pick(m_photos.size())]);
}

/// The other photos stand beside it.
void StressRun::Open(const QString& path)
{
    QStringList row = m_photos;
    row.removeOne(path);
    m_window->OpenPhotos(QStringList(path) + row);
    while (m_editor->IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void StressRun::ClickLook()
{
    auto* const list = PickOne<QListView>();
    if (!list || list->model()->rowCount() == 0)
        return;
    SendClick(*list->viewport(),
              list->visualRect(list->model()->index(Pick(list->model()->rowCount()), 0)).center());
}

void StressRun::HoverLook()
{
    auto* const list = PickOne<QListView>();
    if (list)
        SendMouse(*list->viewport(), QEvent::MouseMove,
                  {Pick(list->viewport()->width()), Pick(list->viewport()->height())},
                  Qt::NoButton);
}

void StressRun::DragSlider()
{
    auto* const slider = PickOne<QSlider>();
    if (!slider)
        return;
    const auto anywhere = [&] { return QPoint(Pick(slider->width()), slider->height() / 2); };
    SendMouse(*slider, QEvent::MouseButtonPress, anywhere(), Qt::LeftButton);
    for (int i = Pick(5); i > 0; --i)
        SendMouse(*slider, QEvent::MouseMove, anywhere(), Qt::LeftButton);
    SendMouse(*slider, QEvent::MouseButtonRelease, anywhere(), Qt::NoButton);
}

void StressRun::ClickButton()
{
    static const char* const names[] = {"applyButton",     "discardButton", "resetButton",
                                        "favouriteButton", "filterButton0", "filterButton0",
                                        "filterButton1",   "filterButton2", "messageClose"};
    auto* const button = m_window->findChild<QAbstractButton*>(QLatin1String(names[Pick(9)]));
    if (button)
        button->click();
}

void StressRun::TriggerAction()
{
    static const char* const names[] = {"undo",
                                        "undo",
                                        "redo",
                                        "fit",
                                        "actualSize",
                                        "zoomIn",
                                        "zoomOut",
                                        "split",
                                        "sidePanel",
                                        "sidePanel",
                                        "commitPreset",
                                        "discardPreset",
                                        "favouritePreset",
                                        "removePreset",
                                        "dark",
                                        "light"};
    auto* const action = m_window->findChild<QAction*>(QLatin1String(names[Pick(16)]));
    if (action && action->isEnabled())
        action->trigger();
}

void StressRun::UseCanvas()
{
    auto& canvas = GetCanvas();
    const QPoint at(Pick(canvas.width()), Pick(canvas.height()));
    QWheelEvent wheel(at, canvas.mapToGlobal(at), {}, {0, 120 * (Pick(5) - 2)}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas, &wheel);
    SendMouse(canvas, QEvent::MouseButtonPress, at, Qt::LeftButton);
    SendMouse(canvas, QEvent::MouseMove, {Pick(canvas.width()), Pick(canvas.height())},
              Qt::LeftButton);
    SendMouse(canvas, QEvent::MouseButtonRelease, at, Qt::NoButton);
    static const Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Space,
                                   Qt::Key_1,    Qt::Key_0,     Qt::Key_Plus};
    const Qt::Key key = keys[Pick(6)];
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &release);
}

LumetraEditor::LayersView& StressRun::GetList()
{
    return *m_window->findChild<LumetraEditor::LayersView*>();
}

void StressRun::PressInList(int key, Qt::KeyboardModifiers modifiers)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers,
                        key == Qt::Key_Space ? QStringLiteral(" ") : QString());
        QApplication::sendEvent(&GetList(), &event);
    }
}

/// Does what the end of a drag does. The list moves the row in an event of its own.
void StressRun::DragInList()
{
    auto& model = *GetList().model();
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(Pick(model.rowCount()), 0)}));
    model.dropMimeData(data.get(), Qt::MoveAction, Pick(model.rowCount() + 1), 0, {});
    QApplication::processEvents();
}

void StressRun::UseList()
{
    auto& list = GetList();
    const int rows = list.model()->rowCount();
    if (rows == 0 || !list.isEnabled())
        return;
    list.setCurrentIndex(list.model()->index(Pick(rows), 0));
    const int kind = Pick(20);
    if (kind < 6)
        PressInList(Qt::Key_Return, Qt::NoModifier);
    else if (kind < 10)
        PressInList(Qt::Key_Space, Qt::NoModifier);
    else if (kind < 13)
        PressInList(Pick(2) == 0 ? Qt::Key_Up : Qt::Key_Down, Qt::AltModifier);
    else if (kind < 15)
        DragInList();
    else if (kind < 17)
        PressInList(Qt::Key_Delete, Qt::NoModifier);
    else if (kind < 18)
        m_window->findChild<QAction*>(QStringLiteral("closeLayer"))->trigger();
    else if (kind < 19)
        m_window->findChild<QAbstractButton*>(QStringLiteral("layersHeading"))->click();
    else if (rows > 6)
        m_window->findChild<QAction*>(QStringLiteral("revert"))->trigger();
}

void StressRun::Filter()
{
    static const char* const texts[] = {"", "", "a", "li", "zzz"};
    m_window->findChild<QLineEdit*>(QStringLiteral("searchField"))
        ->setText(QLatin1String(texts[Pick(5)]));
}

void StressRun::SaveLook()
{
    const QString name = QStringLiteral("Mine %1").arg(Pick(8));
    AnswerNextDialog(*m_window, [name](QDialog& dialog) {
        if (auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit")))
            edit->setText(name);
    });
    m_window->findChild<QAction*>(QStringLiteral("savePreset"))->trigger();
    QApplication::processEvents();
}

void StressRun::Act()
{
    const int kind = Pick(130);
    if (kind < 100)
        ActOnWindow(kind);
    else if (kind < 115)
        RowActions(*m_editor, *m_window, m_choice).Act();
    else
        AdjustActions(*m_window, m_choice).Act();
}

void StressRun::ActOnWindow(int kind)
{
    if (kind < 22)
        ClickLook();
    else if (kind < 32)
        HoverLook();
    else if (kind < 52)
        DragSlider();
    else if (kind < 64)
        ClickButton();
    else if (kind < 82)
        TriggerAction();
    else if (kind < 87)
        UseCanvas();
    else if (kind < 92)
        UseList();
    else if (kind < 96)
        Filter();
    else if (kind < 97)
        SaveLook();
    else if (kind < 99)
        QApplication::processEvents();
    else
        OpenPhoto();
}

/// Waits until no photo is being read or changed and there is nothing left to be rendered or
/// painted. Painting asks for pictures, which are painted when they have come and may bring others
/// into sight; a look that the pointer rests on is shown after a moment.
void StressRun::Settle()
{
    const auto views = m_window->findChildren<LumetraHost::LiveView*>();
    auto& canvas =
        *m_window->findChild<LumetraEditor::CanvasFeed*>()->findChild<LumetraHost::LiveView*>();
    quint64 serial;
    QImage shown;
    const auto paint = [this] {
        QEvent update(QEvent::UpdateRequest);
        QApplication::sendEvent(m_window.get(), &update);
    };
    while (m_editor->IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    m_editor->GetManySteps().GetEdits().WaitForAll();
    QApplication::processEvents();
    do {
        serial = canvas.GetFrame().serial;
        shown = m_window->grab().toImage();
        for (int i = 0; i < 3; ++i) {
            for (auto* const view : views)
                view->WaitForFrame();
            paint();
            m_editor->findChild<LumetraHost::AsyncPreviews*>()->WaitForAll();
            QApplication::processEvents();
        }
    } while (canvas.GetFrame().serial != serial || m_window->grab().toImage() != shown);
    paint();
}

bool StressRun::Run(int actions)
{
    for (m_action = 1; m_action <= actions; ++m_action) {
        Act();
        if (!CheckNow())
            return false;
    }
    return true;
}

} // namespace LumetraTest
