// SPDX-License-Identifier: GPL-2.0-or-later
#include "actions/PanelKeys.h"

#include <QAction>
#include <QEvent>
#include <QShortcut>
#include <QWidget>

#include <algorithm>

namespace LumetraEditor {

PanelKeys::PanelKeys(QWidget& window, Reveal reveal)
    : QObject(&window), m_window(window), m_reveal(std::move(reveal))
{
}

void PanelKeys::Take(QWidget& panel, const QString& title)
{
    const QString dropped = DropTakenKeys(panel, title);
    for (QAction* const action : panel.actions())
        if (!action->shortcuts().isEmpty())
            TakeAction(panel, *action);
    panel.installEventFilter(this);
    if (!dropped.isEmpty())
        emit keysTaken(dropped);
}

void PanelKeys::TakeAction(QWidget& panel, QAction& action)
{
    action.setShortcutContext(Qt::WindowShortcut);
    action.installEventFilter(this);
    if (panel.isEnabled())
        m_window.addAction(&action);
    m_keyed.push_back({&panel, &action});
}

void PanelKeys::Release(QWidget* panel)
{
    if (panel)
        panel->removeEventFilter(this);
    const auto isGone = [panel](const Keyed& keyed) {
        return !keyed.panel || keyed.panel == panel;
    };
    for (const Keyed& keyed : m_keyed)
        if (isGone(keyed) && keyed.action)
            m_window.removeAction(keyed.action);
    m_keyed.erase(std::remove_if(m_keyed.begin(), m_keyed.end(), isGone), m_keyed.end());
}

bool PanelKeys::IsTaken(const QKeySequence& key, const QObject& asking) const
{
    const auto has = [&](const QAction* action) {
        return action != &asking && action->shortcuts().contains(key);
    };
    const auto window = m_window.actions();
    const auto shortcuts = m_window.findChildren<QShortcut*>();
    return std::any_of(window.begin(), window.end(), has) ||
           std::any_of(m_keyed.begin(), m_keyed.end(),
                       [&](const Keyed& keyed) { return keyed.action && has(keyed.action); }) ||
           std::any_of(shortcuts.begin(), shortcuts.end(), [&](const QShortcut* shortcut) {
               return shortcut != &asking && shortcut->key() == key;
           });
}

/// Takes keys with another meaning off the panel. Returns a sentence that names them; empty when
/// all are free.
QString PanelKeys::DropTakenKeys(QWidget& panel, const QString& title)
{
    QStringList dropped;
    const auto isDropped = [&](const QKeySequence& key, const QObject& asking) {
        const bool isTaken = !key.isEmpty() && IsTaken(key, asking);
        if (isTaken)
            dropped.append(key.toString(QKeySequence::NativeText));
        return isTaken;
    };
    for (QShortcut* const shortcut : panel.findChildren<QShortcut*>())
        if (isDropped(shortcut->key(), *shortcut))
            shortcut->setKey({});
    for (QAction* const action : panel.actions()) {
        QList<QKeySequence> keys = action->shortcuts();
        keys.erase(std::remove_if(keys.begin(), keys.end(),
                                  [&](const QKeySequence& key) { return isDropped(key, *action); }),
                   keys.end());
        action->setShortcuts(keys);
    }
    return dropped.isEmpty() ? QString()
                             : tr("Keys of the panel “%1” are taken already: %2")
                                   .arg(title, dropped.join(QStringLiteral(", ")));
}

void PanelKeys::FollowEnabled(const QWidget& panel)
{
    for (const Keyed& keyed : m_keyed) {
        if (keyed.panel != &panel || !keyed.action)
            continue;
        if (panel.isEnabled())
            m_window.addAction(keyed.action);
        else
            m_window.removeAction(keyed.action);
    }
}

void PanelKeys::RevealPanelOf(const QObject* action)
{
    if (m_areHiddenWanted && !action->property(ShowsPanel).toBool())
        return;
    for (const Keyed& keyed : m_keyed)
        if (keyed.action == action && keyed.panel && !keyed.panel->isVisible())
            return m_reveal(*keyed.panel);
}

bool PanelKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Shortcut)
        RevealPanelOf(watched);
    else if (event->type() == QEvent::EnabledChange)
        FollowEnabled(*static_cast<QWidget*>(watched));
    return QObject::eventFilter(watched, event);
}

} // namespace LumetraEditor
