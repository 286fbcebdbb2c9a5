// SPDX-License-Identifier: GPL-2.0-or-later
// editor-stress [SEED [ACTIONS]]: random actions of a user on the editor with its looks, by default
// 10,000. The same seed does the same. Ends with 1 when something is not as it must be: what is on
// the canvas is what the drawer's packages make, undoing everything gives the original, and a
// restart brings the last edit back.
#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"
#include "edit/Editor.h"
#include "photo/PhotoWriter.h"
#include "window/EditorWindow.h"
#include "workspace/WorkspaceController.h"

#include "Zorvik/Util/AlertBox.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QSettings>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>

namespace {

using LumetraHost::Image;

struct AnyAnswer : Zorvik::Util::IAlertBackend
{
    QMessageBox::StandardButton Exec(Zorvik::Util::AlertBox& box) override
    {
        for (const auto button : {QMessageBox::Save, QMessageBox::Yes, QMessageBox::Ok})
            if (box.buttons.testFlag(button))
                return button;
        return QMessageBox::Cancel;
    }
};

class StressRun
{
public:
    explicit StressRun(unsigned seed);

    bool Run(int actions);

private:
    void Start();
    void Act();
    void ClickLook();
    void HoverLook();
    void DragSlider();
    void ClickButton();
    void TriggerAction();
    void UseCanvas();
    void Filter();
    void SaveLook();
    void OpenPhoto();
    bool Check(const char* what, bool isTrue);
    bool CheckCanvas();
    bool CheckUndo();
    bool CheckRestart();

    int Pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    template <class Widget>
    Widget* PickOne()
    {
        std::vector<Widget*> found;
        for (Widget* const widget : m_window->findChildren<Widget*>())
            if (widget->isVisible() && widget->isEnabled())
                found.push_back(widget);
        return found.empty()
                   ? nullptr
                   : found[static_cast<std::size_t>(Pick(static_cast<int>(found.size())))];
    }
    void Settle()
    {
        QApplication::processEvents();
        if (m_editor->HasPhoto())
            m_window->GetFeed().GetLiveView().WaitForFrame();
    }

    std::mt19937 m_random;
    QTemporaryDir m_folder;
    QStringList m_photos;
    std::unique_ptr<LumetraEditor::Editor> m_editor;
    std::unique_ptr<LumetraEditor::EditorWindow> m_window;
    int m_action = 0;
};

void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons down)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, down,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

StressRun::StressRun(unsigned seed) : m_random(seed)
{
    qputenv("XDG_DATA_HOME", m_folder.filePath(QStringLiteral("data")).toLocal8Bit());
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
    m_window->LoadPanels({QStringLiteral(LUMETRA_MODULES)});
    m_window->resize(1000, 900);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    OpenPhoto();
}

void StressRun::OpenPhoto()
{
    m_window->OpenPhotos({m_photos[Pick(m_photos.size())]});
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
    auto& canvas = m_window->GetCanvas();
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
    else if (kind < 92)
        UseCanvas();
    else if (kind < 96)
        Filter();
    else if (kind < 97)
        SaveLook();
    else if (kind < 99)
        QApplication::processEvents();
    else
        OpenPhoto();
}

bool StressRun::Check(const char* what, bool isTrue)
{
    if (!isTrue)
        std::fprintf(stderr, "action %d: expected that %s\n", m_action, what);
    return isTrue;
}

/// At actual size the canvas shows the very pixels that the drawer makes.
bool StressRun::CheckCanvas()
{
    m_editor->ShowOnPhoto(nullptr);
    m_window->GetCanvas().SetZoom(1);
    Settle();
    const auto& frame = m_window->GetCanvas().GetFrame(LumetraEditor::PhotoCanvas::Layer::Edited);
    const Image result = m_editor->GetHost().GetDrawer().Result();
    int largest = frame.image.isNull() ? 255 : 0;
    QPoint worst;
    for (int y = 0; y < frame.image.height(); ++y) {
        const auto* const shown = reinterpret_cast<const QRgb*>(frame.image.constScanLine(y));
        for (int x = 0; x < frame.image.width(); ++x) {
            const std::uint8_t* const pixel =
                result.Row(frame.part.y() + y) + Image::Channels * (frame.part.x() + x);
            const int difference = std::max({std::abs(qRed(shown[x]) - pixel[0]),
                                             std::abs(qGreen(shown[x]) - pixel[1]),
                                             std::abs(qBlue(shown[x]) - pixel[2])});
            if (difference > largest) {
                largest = difference;
                worst = QPoint(x, y);
            }
        }
    }
    if (largest > 1)
        std::fprintf(stderr, "%d steps apart at %d, %d of the view\n", largest, worst.x(),
                     worst.y());
    return Check("the canvas shows what the drawer makes", largest <= 1);
}

bool StressRun::CheckUndo()
{
    auto& stack = m_editor->GetUndoStack();
    const Image now = m_editor->GetHost().GetDrawer().Result();
    const int steps = stack.index();
    const auto before = m_editor->CaptureEdit();
    while (stack.canUndo())
        stack.undo();
    while (stack.index() < steps)
        stack.redo();
    return Check("undoing and redoing all steps changes nothing",
                 m_editor->CaptureEdit() == before &&
                     HaveSamePixels(now, m_editor->GetHost().GetDrawer().Result()));
}

bool StressRun::CheckRestart()
{
    m_editor->SaveEdit();
    const QString photo = m_editor->GetPhotoPath();
    const Image now = m_editor->GetHost().GetDrawer().Result();
    Start();
    m_window->OpenPhotos({photo});
    while (m_editor->IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return Check("a restart brings the edit back",
                 HaveSamePixels(now, m_editor->GetHost().GetDrawer().Result()));
}

bool StressRun::Run(int actions)
{
    for (m_action = 1; m_action <= actions; ++m_action) {
        Act();
        if (m_action % 100 == 0 && !CheckCanvas())
            return false;
        if (m_action % 250 == 0 && !CheckUndo())
            return false;
        if (m_action % 1000 == 0 && !CheckRestart())
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto seed = static_cast<unsigned>(argc > 1 ? std::atoi(argv[1]) : 1);
    const int actions = argc > 2 ? std::atoi(argv[2]) : 10000;
    Zorvik::Util::AlertBox::SetBackend(std::make_shared<AnyAnswer>());
    StressRun run(seed);
    const bool isGood = run.Run(actions);
    std::printf("seed %u, %d actions: %s\n", seed, actions, isGood ? "good" : "failed");
    return isGood ? 0 : 1;
}
