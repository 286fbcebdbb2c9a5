// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTreeView>

namespace LumetraEditor {

/// The list of layers. Shows a few rows and scrolls the rest. Its keys are its own while it has the
/// focus, whatever commands of the window have the same ones.
class LayersView : public QTreeView
{
    Q_OBJECT

public:
    /// How many rows are seen at most without scrolling.
    static constexpr int MostRows = 3;

    explicit LayersView(QWidget* parent = nullptr);

    /// Follows the number of rows.
    void FollowRows();

signals:
    void openRequested();
    void removeRequested();
    /// The current row is to come one place nearer to the top of the list, or to its bottom.
    void stepRequested(int rows);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum class Command;

    bool IsOnTick(const QPoint& place) const;
    static Command FindCommand(const QKeyEvent& event);
};

} // namespace LumetraEditor
