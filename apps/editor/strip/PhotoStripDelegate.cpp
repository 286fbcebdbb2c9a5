// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/PhotoStripDelegate.h"

#include "appearance/Icons.h"
#include "strip/PhotoStripModel.h"

#include <QApplication>
#include <QListView>
#include <QPainter>

#include <algorithm>

namespace LumetraEditor {
namespace {

constexpr int Gap = 2; // around a cell's ground, so that grounds are 4 apart
constexpr int Padding = 4;
constexpr int Radius = 4;
constexpr int BadgeSize = 18;
constexpr int MarkSize = 14;
constexpr int SmallestPicture = 24;

QRect GetGround(const QRect& cell)
{
    return cell.adjusted(Gap, Gap, -Gap, -Gap);
}

/// Paints a mark on a dark disc, which can be seen on any picture.
void PaintBadge(QPainter& painter, const QPoint& corner, const QString& icon)
{
    const QRect place(corner, QSize(BadgeSize, BadgeSize));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 170));
    painter.drawEllipse(place);
    const int offset = (BadgeSize - MarkSize) / 2;
    // The lines of the dark palette's icons are light.
    MakeIcon(icon, LumetraHost::PaletteKind::Dark)
        .paint(&painter, QRect(corner + QPoint(offset, offset), QSize(MarkSize, MarkSize)));
}

} // namespace

QSize PhotoStripDelegate::GetCellSize(int height, const QFontMetrics& metrics)
{
    const int around = 2 * (Gap + Padding);
    const int picture = std::max(SmallestPicture, height - around - metrics.height());
    return {picture * 3 / 2 + around, picture + metrics.height() + around};
}

QRect PhotoStripDelegate::GetPictureRect(const QRect& cell, const QFontMetrics& metrics)
{
    return GetGround(cell).adjusted(Padding, Padding, -Padding, -Padding - metrics.height());
}

void PhotoStripDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    PaintGround(*painter, option, index.data(PhotoStripModel::CurrentRole).toBool());
    const QRect picture =
        PaintPicture(*painter, GetPictureRect(option.rect, option.fontMetrics), index);
    PaintMarks(*painter, picture, index);
    PaintName(*painter, option, index);
    painter->restore();
}

QSize PhotoStripDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    const auto* const view = qobject_cast<const QListView*>(option.widget);
    return view ? view->gridSize() : QStyledItemDelegate::sizeHint(option, index);
}

/// The selection has a tinted ground; the current photo has a frame besides.
void PhotoStripDelegate::PaintGround(QPainter& painter, const QStyleOptionViewItem& option,
                                     bool isCurrent)
{
    const QRectF ground(GetGround(option.rect));
    const QColor accent = QApplication::palette().color(QPalette::Highlight);
    if (option.state.testFlag(QStyle::State_Selected)) {
        QColor tint = accent;
        tint.setAlpha(90);
        painter.setPen(Qt::NoPen);
        painter.setBrush(tint);
        painter.drawRoundedRect(ground, Radius, Radius);
    } else if (option.state.testFlag(QStyle::State_MouseOver)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QApplication::palette().color(QPalette::Midlight));
        painter.drawRoundedRect(ground, Radius, Radius);
    }
    painter.setBrush(Qt::NoBrush);
    if (isCurrent) {
        painter.setPen(QPen(accent, 2));
        painter.drawRoundedRect(ground.adjusted(1, 1, -1, -1), Radius, Radius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setPen(QPen(QApplication::palette().color(QPalette::Text), 1));
        painter.drawRoundedRect(ground.adjusted(-0.5, -0.5, 0.5, 0.5), Radius + 1, Radius + 1);
    }
}

/// Returns the rectangle that the picture, or what stands for it, takes.
QRect PhotoStripDelegate::PaintPicture(QPainter& painter, const QRect& place,
                                       const QModelIndex& index)
{
    const auto picture = index.data(Qt::DecorationRole).value<QImage>();
    if (picture.isNull()) {
        painter.fillRect(place, QApplication::palette().color(QPalette::Button));
        return place;
    }
    // Photos smaller than their place are not enlarged; a picture for a smaller place is.
    QRect fitted(QPoint(), picture.size().scaled(place.size(), Qt::KeepAspectRatio));
    fitted.moveCenter(place.center());
    painter.drawImage(fitted, picture);
    return fitted;
}

void PhotoStripDelegate::PaintMarks(QPainter& painter, const QRect& picture,
                                    const QModelIndex& index)
{
    if (!index.data(PhotoStripModel::ProblemRole).toString().isEmpty()) {
        const QPoint half(BadgeSize / 2, BadgeSize / 2);
        PaintBadge(painter, picture.center() - half, QStringLiteral("unreadable"));
    }
    if (index.data(PhotoStripModel::EditedRole).toBool())
        PaintBadge(painter, picture.bottomRight() - QPoint(BadgeSize + 1, BadgeSize + 1),
                   QStringLiteral("edited"));
}

void PhotoStripDelegate::PaintName(QPainter& painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index)
{
    const QRect ground = GetGround(option.rect);
    const int height = option.fontMetrics.height();
    const QRect place(ground.left() + Padding, ground.bottom() + 1 - height - Padding / 2,
                      ground.width() - 2 * Padding, height);
    painter.setFont(option.font);
    painter.setPen(QApplication::palette().color(QPalette::Text));
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine,
                     option.fontMetrics.elidedText(index.data(Qt::DisplayRole).toString(),
                                                   Qt::ElideMiddle, place.width()));
}

} // namespace LumetraEditor
