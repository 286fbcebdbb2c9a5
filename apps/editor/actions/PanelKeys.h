// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QKeySequence>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QAction;

namespace LumetraEditor {

/// Lets the keys of the panels' actions work in the whole window, wherever the focus is and whether
/// the panel is seen or not: a hidden panel is shown first, unless hidden panels are wanted. While
/// a panel is disabled, its keys are too. No key has two meanings: one that is taken already is
/// taken off the action or shortcut that comes later, and the user is told.
class PanelKeys : public QObject
{
    Q_OBJECT

public:
    using Reveal = std::function<void(QWidget& panel)>;

    /// `window` is kept by reference, and has its own actions already.
    PanelKeys(QWidget& window, Reveal reveal);

    /// Adds the keys of a panel that has been placed in the window. `title` names it in messages.
    void Take(QWidget& panel, const QString& title);
    /// Removes the keys of `panel`; null stands for one that is deleted already.
    void Release(QWidget* panel);
    /// True: keys leave hidden panels hidden. An action whose property ShowsPanel is true brings
    /// its panel all the same, since it does nothing that could be seen without it.
    void KeepHidden(bool areHiddenWanted) { m_areHiddenWanted = areHiddenWanted; }
    static constexpr char ShowsPanel[] = "showsPanel";

signals:
    void keysTaken(const QString& message);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Keyed
    {
        QPointer<QWidget> panel;
        QPointer<QAction> action;
    };

    void TakeAction(QWidget& panel, QAction& action);
    QString DropTakenKeys(QWidget& panel, const QString& title);
    bool IsTaken(const QKeySequence& key, const QObject& asking) const;
    void FollowEnabled(const QWidget& panel);
    void RevealPanelOf(const QObject* action);

    QWidget& m_window;
    Reveal m_reveal;
    bool m_areHiddenWanted = false;
    std::vector<Keyed> m_keyed;
};

} // namespace LumetraEditor
