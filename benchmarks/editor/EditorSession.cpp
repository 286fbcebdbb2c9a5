// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorSession.h"

#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"
#include "drawer/view/LiveView.h"
#include "plugins/PluginLoader.h"
#include "session/Editor.h"
#include "window/EditorWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QListView>
#include <QMouseEvent>
#include <QSettings>
#include <QSlider>
#include <QTimer>

#include <stdexcept>

namespace LumetraBenchmark {
namespace {

void Click(QWidget& widget, const QPoint& at)
{
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool isDown = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                          isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

} // namespace

EditorSession::EditorSession(const QSize& size)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_settings.filePath(QStringLiteral("data"))));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    m_editor = std::make_unique<LumetraEditor::Editor>();
    m_window = std::make_unique<LumetraEditor::EditorWindow>(*m_editor);
    m_window->LoadPanels(LumetraEditor::GetPluginFolders());
    m_window->setGeometry(QRect(QPoint(0, 0), size));
    m_window->show();
    m_window->repaint();
}

EditorSession::~EditorSession() = default;

LumetraEditor::PhotoCanvas& EditorSession::GetCanvas()
{
    return *m_window->findChild<LumetraEditor::PhotoCanvas*>();
}

LumetraHost::LiveView& EditorSession::GetView()
{
    return *m_window->findChild<LumetraEditor::CanvasFeed*>()->findChild<LumetraHost::LiveView*>();
}

QSlider& EditorSession::GetIntensity()
{
    return *m_window->findChild<QSlider*>(QStringLiteral("intensitySlider"));
}

void EditorSession::Open(const QString& path)
{
    m_window->OpenPhotos({path});
    while (m_editor->IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Settle();
}

void EditorSession::ClickLook(const QString& name)
{
    for (auto* const list : m_window->findChildren<QListView*>())
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex look = list->model()->index(row, 0);
            if (look.data().toString() != name)
                continue;
            list->scrollTo(look);
            Click(*list->viewport(), list->visualRect(look).center());
            return Settle();
        }
    throw std::runtime_error("expected the look \"" + name.toStdString() + "\"");
}

void EditorSession::KeepLook()
{
    m_window->findChild<QAbstractButton*>(QStringLiteral("applyButton"))->click();
    Settle();
}

void EditorSession::Settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    GetView().WaitForFrame();
    QApplication::processEvents();
}

} // namespace LumetraBenchmark
