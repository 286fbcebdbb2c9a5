// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace LumetraPlugin {

/// Paints one preset of a grid: picture, name, and marks for applied, favourite, popular and
/// downloadable. All colours come from the palette.
class PresetDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// What a picture is asked for in, logical pixels: the largest cell of the grid. A smaller one,
    /// of a preset that wants the whole photo seen or no pixel enlarged, stands in the middle.
    static constexpr QSize PictureSize{168, 112};

    using QStyledItemDelegate::QStyledItemDelegate;

    /// The height of a cell of this width, in logical pixels.
    static int GetCellHeight(int width, const QFontMetrics& metrics);
    /// Where the picture is inside a cell.
    static QRect GetPictureRect(const QRect& cell);
    /// Where the favourite's star is inside a cell; a click there toggles it.
    static QRect GetStarRect(const QRect& cell);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// The view's grid: a cell is used as a whole.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    static void PaintPicture(QPainter& painter, const QRect& place,
                             const QStyleOptionViewItem& option, const QModelIndex& index);
    static void PaintFrame(QPainter& painter, const QRect& place,
                           const QStyleOptionViewItem& option, bool isApplied);
    static void PaintMarks(QPainter& painter, const QRect& cell, const QStyleOptionViewItem& option,
                           const QModelIndex& index);
    static void PaintName(QPainter& painter, const QRect& cell, const QStyleOptionViewItem& option,
                          const QModelIndex& index);
};

} // namespace LumetraPlugin
