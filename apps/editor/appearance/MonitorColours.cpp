// SPDX-License-Identifier: GPL-2.0-or-later
#include "appearance/MonitorColours.h"

#include "appearance/SystemProfile.h"
#include "drawer/view/DisplayTransform.h"
#include "session/Editor.h"
#include "storage/ErrorText.h"

#include <QEvent>
#include <QFile>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <exception>

namespace LumetraEditor {

using LumetraHost::DisplayTransform;

MonitorColours::MonitorColours(Editor& editor, QWidget& window)
    : QObject(&window), m_editor(editor), m_window(window)
{
    window.installEventFilter(this);
}

void MonitorColours::Use(const QString& choice)
{
    m_choice = choice;
    Follow();
}

/// Follows the window's screen, which it has from the moment that it is shown.
bool MonitorColours::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && m_window.windowHandle()) {
        connect(m_window.windowHandle(), &QWindow::screenChanged, this, &MonitorColours::Follow,
                Qt::UniqueConnection);
        Follow();
    }
    return QObject::eventFilter(watched, event);
}

void MonitorColours::Follow()
{
    if (m_choice == QLatin1String(Srgb))
        return Show({}, {});
    if (m_choice.isEmpty()) {
        const SystemProfile profile = SystemProfile::Of(*m_window.screen());
        return Show(profile.icc, profile.origin);
    }
    QFile file(m_choice);
    if (file.open(QIODevice::ReadOnly))
        return Show(file.readAll(), m_choice);
    m_editor.ShowNotice(
        tr("The monitor's profile “%1” cannot be read: %2").arg(m_choice, file.errorString()));
    Show({}, {});
}

void MonitorColours::Show(const QByteArray& icc, const QString& origin)
{
    if (icc == m_shown)
        return;
    m_shown = icc;
    std::shared_ptr<const DisplayTransform> display;
    try {
        if (!icc.isEmpty())
            display = DisplayTransform::Make(icc, origin.toStdString());
    } catch (const std::exception& error) {
        const QString text = LumetraHost::ErrorText::Show(error);
        m_editor.ShowNotice(tr("The monitor's profile cannot be used: %1").arg(text));
    }
    m_editor.SetDisplay(display);
}

} // namespace LumetraEditor
