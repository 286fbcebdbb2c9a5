// SPDX-License-Identifier: GPL-2.0-or-later
#include "StressRun.h"

#include "PanelAudit.h"

#include "host/drawer/DrawnPicture.h"

#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"
#include "drawer/previews/AsyncPreviews.h"
#include "drawer/view/LiveView.h"
#include "edit/EditChanges.h"
#include "edits/DrawnEdit.h"
#include "edits/EditFile.h"
#include "layers/LayersView.h"
#include "photo/PhotoWriter.h"
#include "plugins/PluginLoader.h"
#include "userdata/EditPlaces.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QSettings>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <vector>

namespace LumetraTest {
namespace {

using LumetraHost::Image;

/// Growth of the heap between two restarts that is allowed: libraries keep some memory for good.
constexpr std::size_t MostGrowth = std::size_t{8} << 20;

void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons down)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, down,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

int FindLargestDifference(const QImage& shown, const Image& picture, const QPoint& corner)
{
    int largest = 0;
    for (int y = 0; y < shown.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(shown.constScanLine(y));
        for (int x = 0; x < shown.width(); ++x) {
            const std::uint8_t* const pixel =
                picture.Row(corner.y() + y) + Image::Channels * (corner.x() + x);
            largest =
                std::max({largest, std::abs(qRed(row[x]) - pixel[0]),
                          std::abs(qGreen(row[x]) - pixel[1]), std::abs(qBlue(row[x]) - pixel[2])});
        }
    }
    return largest;
}

} // namespace

template <class Widget>
Widget* StressRun::PickOne()
{
    std::vector<Widget*> found;
    for (Widget* const widget : m_window->findChildren<Widget*>())
        if (widget->isVisible() && widget->isEnabled())
            found.push_back(widget);
    return found.empty() ? nullptr
                         : found[static_cast<std::size_t>(Pick(static_cast<int>(found.size())))];
}

StressRun::StressRun(unsigned seed) : m_random(seed)
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
    m_window->AddPanel({QStringLiteral("lumetra-presets"), QString(), &m_plugin});
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

void StressRun::Open(const QString& path)
{
    m_window->OpenPhotos({path});
    while (m_editor->IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void StressRun::ClickLook()
{
    auto* const list = PickOne<QListView>();
    if (!list || list->model()->rowCount() == 0)
        return;
    const QPoint place =
        list->visualRect(list->model()->index(Pick(list->model()->rowCount()), 0)).center();
    SendMouse(*list->viewport(), QEvent::MouseButtonPress, place, Qt::LeftButton);
    SendMouse(*list->viewport(), QEvent::MouseButtonRelease, place, Qt::NoButton);
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
    QTimer::singleShot(0, m_window.get(), [name] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        if (auto* const edit = dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit")))
            edit->setText(name);
        dialog->accept();
        if (dialog->isVisible())
            dialog->reject();
    });
    m_window->findChild<QAction*>(QStringLiteral("savePreset"))->trigger();
    QApplication::processEvents();
}

void StressRun::Act()
{
    const int kind = Pick(100);
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

/// Waits until there is nothing left to be rendered or painted. Painting asks for pictures, which
/// are painted when they have come, and a look that the pointer rests on is shown after a moment.
void StressRun::Settle()
{
    const auto views = m_window->findChildren<LumetraHost::LiveView*>();
    auto& canvas =
        *m_window->findChild<LumetraEditor::CanvasFeed*>()->findChild<LumetraHost::LiveView*>();
    quint64 serial;
    const auto paint = [this] {
        QEvent update(QEvent::UpdateRequest);
        QApplication::sendEvent(m_window.get(), &update);
    };
    QApplication::processEvents();
    do {
        serial = canvas.GetFrame().serial;
        for (int i = 0; i < 3; ++i) {
            for (auto* const view : views)
                view->WaitForFrame();
            paint();
            m_editor->findChild<LumetraHost::AsyncPreviews*>()->WaitForAll();
            QApplication::processEvents();
        }
    } while (canvas.GetFrame().serial != serial);
    paint();
}

bool StressRun::Check(const char* what, bool isTrue)
{
    if (!isTrue)
        std::fprintf(stderr, "action %d: expected that %s\n", m_action, what);
    return isTrue;
}

/// True when the canvas, at actual size, shows the very pixels that the drawer makes, with the look
/// that the pointer rests on, if there is one.
bool StressRun::CheckCanvas()
{
    GetCanvas().SetZoom(1);
    Settle();
    const auto& frame = GetCanvas().GetFrame(LumetraEditor::PhotoCanvas::Layer::Edited);
    if (!Check("the canvas shows pixels as they are",
               !frame.image.isNull() && frame.image.size() == frame.part.size()))
        return false;
    const auto& drawer = m_editor->GetHost().GetDrawer();
    const auto& onTop = m_editor->GetShownOnTop();
    const auto recipe = onTop ? drawer.GetRecipeWith(*onTop) : drawer.GetRecipe();
    const Image expected = LumetraHost::DrawRecipe(recipe);
    const int difference = FindLargestDifference(frame.image, expected, frame.part.topLeft());
    if (difference > 1)
        std::fprintf(stderr, "%d steps apart%s\n", difference, onTop ? ", with a look on top" : "");
    return Check("the canvas shows what the drawer makes", difference <= 1);
}

/// True when the list shows the layers that are on the photo, as they are.
bool StressRun::CheckList()
{
    const auto layers = m_editor->CaptureLayers();
    const auto& model = *GetList().model();
    bool isSame = model.rowCount() == static_cast<int>(layers.size());
    for (int row = 0; isSame && row < model.rowCount(); ++row) {
        const auto& layer = layers[layers.size() - 1 - static_cast<std::size_t>(row)];
        const QModelIndex name = model.index(row, 0);
        isSame = name.data().toString().toStdString() == layer.record.preset &&
                 (name.data(Qt::CheckStateRole).toInt() == Qt::Checked) == layer.isOn &&
                 name.data(Qt::DecorationRole).isNull() != layer.isOpen &&
                 model.index(row, 1).data().toInt() == layer.record.intensity;
    }
    return Check("the list shows the layers", isSame);
}

/// True when the file has the edit, and a program that reads it draws the same photo.
bool StressRun::CheckFile()
{
    const LumetraHost::EditState kept = ReadEdit();
    auto& drawer = m_editor->GetHost().GetDrawer();
    LumetraHost::PictureRecipe recipe = drawer.GetRecipe();
    recipe.layers.clear();
    for (const auto& package : LumetraHost::DrawnEdit::Make(kept.layers).packages)
        recipe.layers.push_back(
            {std::make_shared<Zorvik::Quindle::EffectsSettings>(package), std::nullopt});
    recipe.committed = 0;
    return Check("the file has the edit",
                 LumetraEditor::EditChanges::AreSame(kept, m_editor->GetEdit())) &&
           Check("the file draws what is shown",
                 HaveSamePixels(LumetraHost::DrawRecipe(recipe), LumetraHost::DrawWhole(drawer)));
}

bool StressRun::CheckPanel()
{
    const QStringList differences = PanelAudit(*m_editor, m_plugin.GetPanel()).FindDifferences();
    for (const QString& difference : differences)
        std::fprintf(stderr, "%s\n", qUtf8Printable(difference));
    return Check("the panel shows what its model says", differences.isEmpty());
}

/// True when every change has been painted.
bool StressRun::CheckScreen()
{
    const QImage painted = m_window->screen()
                               ->grabWindow(m_window->winId())
                               .toImage()
                               .convertToFormat(QImage::Format_RGB32);
    const QImage now = m_window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const bool isSame = painted == now;
    const QString folder = qEnvironmentVariable("LUMETRA_STRESS_PICTURES");
    if (!isSame && !folder.isEmpty()) {
        painted.save(folder + QStringLiteral("/painted.png"));
        now.save(folder + QStringLiteral("/now.png"));
    }
    return Check("the screen shows what the window would paint", !painted.isNull() && isSame);
}

/// The edit in the file beside the photo; that of no step where there is none.
LumetraHost::EditState StressRun::ReadEdit()
{
    m_editor->SaveEdit();
    const QString file = LumetraHost::EditPlaces::GetBeside(m_editor->GetPhotoPath());
    return QFile::exists(file) ? LumetraHost::EditFile::Read(file).state : LumetraHost::EditState();
}

LumetraEditor::PhotoCanvas& StressRun::GetCanvas()
{
    return *m_window->findChild<LumetraEditor::PhotoCanvas*>();
}

bool StressRun::CheckUndo()
{
    auto& stack = m_editor->GetUndoStack();
    const Image now = LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer());
    const int steps = stack.index();
    const auto before = ReadEdit();
    while (stack.canUndo())
        stack.undo();
    while (stack.index() < steps)
        stack.redo();
    return Check("undoing and redoing all steps changes nothing",
                 ReadEdit() == before &&
                     HaveSamePixels(now, LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer())));
}

bool StressRun::CheckRestart()
{
    m_editor->SaveEdit();
    const QString photo = m_editor->GetPhotoPath();
    const Image now = LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer());
    Start();
    Open(photo);
    return Check("a restart brings the edit back",
                 HaveSamePixels(now, LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer())));
}

/// True when memory has not grown. Called right after a restart, when the session's objects are
/// gone. Sanitizers count for themselves.
bool StressRun::CheckMemory()
{
    const std::size_t used = mallinfo2().uordblks;
    if (!m_memory)
        m_memory = used;
    if (used > *m_memory + MostGrowth)
        std::fprintf(stderr, "%zu bytes, %zu after the first restart\n", used, *m_memory);
    return Check("memory does not grow from restart to restart", used <= *m_memory + MostGrowth);
}

bool StressRun::CheckNow()
{
    if (m_action % 100 == 0 &&
        !(CheckCanvas() && CheckPanel() && CheckList() && CheckFile() && CheckScreen()))
        return false;
    if (m_action % 250 == 0 && !CheckUndo())
        return false;
    return m_action % 1000 != 0 ||
           (CheckRestart() && CheckCanvas() && CheckPanel() && CheckMemory());
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
