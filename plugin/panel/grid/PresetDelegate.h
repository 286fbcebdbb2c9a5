// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/grid/ThumbnailSize.h"

#include <QStyledItemDelegate>

namespace LumetraPlugin {

/// Paints one preset of a grid: picture, name, and marks for applied, favourite, popular and
/// downloadable. All colours come from the palette.
class PresetDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Sets the size in which pictures are asked for, in logical pixels, see ThumbnailShape.
    void SetPictureSize(const QSize& size) { m_pictureSize = size; }

    /// The height of a cell of this width, in logical pixels.
    static int GetCellHeight(int width, const QFontMetrics& metrics);
    /// The rectangle of the picture inside a cell.
    static QRect GetPictureRect(const QRect& cell);
    /// The rectangle of the favourite's star inside a cell; a click there toggles it.
    static QRect GetStarRect(const QRect& cell);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// The size of a cell in the view's grid, which is used as a whole.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void PaintPicture(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const;
    static void PaintFrame(QPainter& painter, const QRect& place,
                           const QStyleOptionViewItem& option, bool isApplied);
    static void PaintMarks(QPainter& painter, const QRect& cell, const QStyleOptionViewItem& option,
                           const QModelIndex& index);
    static void PaintName(QPainter& painter, const QRect& cell, const QStyleOptionViewItem& option,
                          const QModelIndex& index);

    QSize m_pictureSize = ThumbnailShape::Of(ThumbnailSize::Medium).picture;
};

} // namespace LumetraPlugin
