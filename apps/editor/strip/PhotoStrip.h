// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "strip/PhotoStripModel.h"

#include <QListView>

namespace LumetraEditor {

/// The row of thumbnails below the photo, with its selection. A click or an arrow key asks for a
/// photo; with Ctrl and Shift they select several. The current photo is always selected. Opens
/// nothing itself.
class PhotoStrip : public QListView
{
    Q_OBJECT

public:
    /// `photos` is kept by reference and outlives the strip.
    explicit PhotoStrip(PhotoStripModel& photos, QWidget* parent = nullptr);

    /// Shows the current photo of the model: brings it into sight, and makes it the only one that
    /// is selected, unless it is selected already.
    void ShowCurrent();
    void SelectOnlyCurrent();
    /// The selected photos, the current one first, the others in the order of the row.
    QStringList GetSelectedPhotos() const;
    int CountSelected() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The user asks for this photo.
    void chosen(const QString& path);
    void selectionMoved();
    void menuRequested(const QPoint& globalPosition);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void updateGeometries() override;

protected slots:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void ArrangeCells();
    void FollowVisibleRows();
    void KeepCurrentSelected();
    void SelectTo(int row);
    int FindRowOfKey(int key) const;
    QModelIndex FindCurrent() const;

    PhotoStripModel& m_photos;
    bool m_isChoosing = false; ///< a click is being taken: what it selects is not final
};

} // namespace LumetraEditor
