// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/PresetPageModel.h"

#include <QListView>

namespace LumetraPlugin {

/// The grid of one page: as many columns as fit, as high as it needs to be, so that the panel
/// scrolls and not the page. Tells what the user does with presets; changes nothing itself.
class PresetGrid : public QListView
{
    Q_OBJECT

public:
    /// The page's presets, owned by the grid.
    explicit PresetGrid(std::unique_ptr<PresetPageModel> presets, QWidget* parent = nullptr);
    ~PresetGrid() override;

    PresetPageModel& GetPresets() { return *m_presets; }
    /// Gives the keyboard's place to a preset of the preset model, and shows it.
    void SetCurrentPreset(const QModelIndex& preset);
    /// Of the preset model; invalid when none.
    QModelIndex GetCurrentPreset() const;

signals:
    // All with an index of the preset model.
    void chosen(const QModelIndex& preset);
    void starClicked(const QModelIndex& preset);
    void pointed(const QModelIndex& preset); ///< the mouse is on it; invalid: on none any more
    void menuRequested(const QModelIndex& preset, const QPoint& globalPosition);
    /// The arrow keys have come to this preset.
    void stepped(const QModelIndex& preset);
    /// The arrow key has been let go.
    void stepsEnded();
    /// An arrow key wants to go past the first (`isForward` false) or the last preset.
    void steppedOut(bool isForward);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Arrange();
    void KeepCurrent();
    void Step(QKeyEvent* event);
    void Point(const QModelIndex& row);
    bool IsOnStar(const QModelIndex& row, const QPoint& position) const;

    std::unique_ptr<PresetPageModel> m_presets;
    QPersistentModelIndex m_current; // of the preset model: survives what resets the page
    QPersistentModelIndex m_pointed;
    QPersistentModelIndex m_pressed; // a row of the page
};

} // namespace LumetraPlugin
