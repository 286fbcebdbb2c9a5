// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/grid/PresetPageModel.h"
#include "panel/grid/ThumbnailSize.h"

#include <QListView>

namespace LumetraPlugin {

class PresetDelegate;

/// The grid of one page: as many columns as fit, and as high as its rows, so that the panel scrolls
/// and not the page. Reports the user's actions; changes nothing itself.
class PresetGrid : public QListView
{
    Q_OBJECT

public:
    /// Takes ownership of the page's presets.
    explicit PresetGrid(std::unique_ptr<PresetPageModel> presets, QWidget* parent = nullptr);
    ~PresetGrid() override;

    PresetPageModel& GetPresets() { return *m_presets; }
    void SetThumbnailSize(ThumbnailSize size);
    /// The number of columns in a grid of this width.
    static int CountColumns(int width, ThumbnailSize size);
    /// The size of a cell in a grid of this width.
    static QSize MakeCell(int width, ThumbnailSize size, const QFontMetrics& metrics);
    /// Makes a preset of the preset model the current one, and shows it.
    void SetCurrentPreset(const QModelIndex& preset);
    /// The current row of the preset model; invalid when none.
    QModelIndex GetCurrentPreset() const;

signals:
    // Indexes in signals are those of the preset model.
    void chosen(const QModelIndex& preset);
    void starClicked(const QModelIndex& preset);
    void pointed(const QModelIndex& preset); ///< the mouse is on it; invalid: on none any more
    /// The mouse, pressed on it, is moved away: the preset is dragged to somewhere else.
    void dragged(const QModelIndex& preset);
    void menuRequested(const QModelIndex& preset, const QPoint& globalPosition);
    /// The arrow keys have moved to this preset.
    void stepped(const QModelIndex& preset);
    /// The arrow key has been released.
    void stepsEnded();
    /// An arrow key was pressed on the first (`isForward` false) or the last preset.
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
    PresetDelegate* m_delegate;
    ThumbnailSize m_size = ThumbnailSize::Medium;
    QPersistentModelIndex m_current; // of the preset model, so that it survives resets of the page
    QPersistentModelIndex m_pointed;
    QPersistentModelIndex m_pressed; // a row of the page
    QPoint m_pressedAt;
};

} // namespace LumetraPlugin
