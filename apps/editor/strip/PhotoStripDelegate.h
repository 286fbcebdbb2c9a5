// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace LumetraEditor {

/// Paints one photo of the strip: its thumbnail with marks for an edit and for a file that cannot
/// be read, its name, and frames for the current photo, the selection and the keyboard's place. All
/// colours come from the palette.
class PhotoStripDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The size of a cell in a strip of this height, in logical pixels.
    static QSize GetCellSize(int height, const QFontMetrics& metrics);
    /// The rectangle inside a cell that the thumbnail has to fit into.
    static QRect GetPictureRect(const QRect& cell, const QFontMetrics& metrics);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// The size of a cell in the view's grid, which is used as a whole.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    static void PaintGround(QPainter& painter, const QStyleOptionViewItem& option, bool isCurrent);
    static QRect PaintPicture(QPainter& painter, const QRect& place, const QModelIndex& index);
    static void PaintMarks(QPainter& painter, const QRect& picture, const QModelIndex& index);
    static void PaintName(QPainter& painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index);
};

} // namespace LumetraEditor
