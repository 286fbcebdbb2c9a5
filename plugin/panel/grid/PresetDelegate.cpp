// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/PresetDelegate.h"

#include "core/PresetModel.h"
#include "panel/appearance/PanelIcons.h"
#include "panel/grid/PresetPageModel.h"

#include <QApplication>
#include <QListView>
#include <QPainter>
#include <QPainterPath>

namespace LumetraPlugin {
namespace {

constexpr int Margin = 4; // on every side, so that cells are 8 apart
constexpr int Radius = 4;
constexpr int NameGap = 4;
constexpr int MarkSize = 16;
constexpr int BadgeSize = 24;
constexpr int PlaceholderSize = 32;
constexpr double DisabledOpacity = 0.4; // of marks, which are light on dark in every palette

QRect InnerRect(const QRect& cell)
{
    return cell.adjusted(Margin, Margin, -Margin, -Margin);
}

/// The largest part of the picture's middle that has the place's shape.
QRectF CentrePart(const QSize& picture, const QSize& place)
{
    const QSizeF part = QSizeF(place).scaled(picture, Qt::KeepAspectRatio);
    return {QPointF((picture.width() - part.width()) / 2, (picture.height() - part.height()) / 2),
            part};
}

/// Paints a place without a picture. Colours of the list's own palette would do no good: a style
/// sheet sets them all to that of the background.
void PaintPlaceholder(QPainter& painter, const QRect& place)
{
    painter.fillRect(place, QApplication::palette().color(QPalette::Button));
    const QColor faint = QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    QRect middle(0, 0, PlaceholderSize, PlaceholderSize);
    middle.moveCenter(place.center());
    painter.drawPixmap(middle.topLeft(),
                       PanelIcons::GetPixmap(QStringLiteral("photo"), PlaceholderSize, faint,
                                             painter.device()->devicePixelRatioF()));
}

QPalette::ColorGroup GroupOf(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
}

/// The place of a picture that is smaller than was asked for: smaller by the same factor.
QRectF CentrePlace(const QSize& picture, const QSize& asked, const QRect& place)
{
    const double scale =
        std::min(double(place.width()) / asked.width(), double(place.height()) / asked.height());
    QRectF target(QPointF(), QSizeF(picture) * scale);
    target.moveCenter(QRectF(place).center());
    return target;
}

/// Paints a mark on a dark disc, which can be seen on any picture.
void PaintBadge(QPainter& painter, const QRect& place, const QString& icon, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawEllipse(place.adjusted(2, 2, -2, -2));
    const int offset = (BadgeSize - MarkSize) / 2;
    painter.drawPixmap(
        place.topLeft() + QPoint(offset, offset),
        PanelIcons::GetPixmap(icon, MarkSize, color, painter.device()->devicePixelRatioF()));
}

} // namespace

int PresetDelegate::GetCellHeight(int width, const QFontMetrics& metrics)
{
    const int pictureHeight = (width - 2 * Margin) * 2 / 3;
    return pictureHeight + NameGap + metrics.height() + 2 * Margin;
}

QRect PresetDelegate::GetPictureRect(const QRect& cell)
{
    const QRect inner = InnerRect(cell);
    return {inner.topLeft(), QSize(inner.width(), inner.width() * 2 / 3)};
}

QRect PresetDelegate::GetStarRect(const QRect& cell)
{
    const QRect picture = GetPictureRect(cell);
    return {picture.right() + 1 - BadgeSize, picture.top(), BadgeSize, BadgeSize};
}

void PresetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect picture = GetPictureRect(option.rect);
    PaintPicture(*painter, picture, option, index);
    PaintFrame(*painter, picture, option, index.data(PresetModel::AppliedRole).toBool());
    PaintMarks(*painter, option.rect, option, index);
    PaintName(*painter, option.rect, option, index);
    painter->restore();
}

QSize PresetDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* const view = qobject_cast<const QListView*>(option.widget);
    return view ? view->gridSize() : QStyledItemDelegate::sizeHint(option, index);
}

void PresetDelegate::PaintPicture(QPainter& painter, const QRect& place,
                                  const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    QPainterPath shape;
    shape.addRoundedRect(place, Radius, Radius);
    painter.save();
    painter.setClipPath(shape);
    const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
    const QSize asked = m_pictureSize * (option.widget ? option.widget->devicePixelRatioF()
                                                       : painter.device()->devicePixelRatioF());
    if (picture.isNull()) {
        PaintPlaceholder(painter, place);
    } else if (picture.width() >= asked.width() && picture.height() >= asked.height()) {
        painter.drawPixmap(place, picture, CentrePart(picture.size(), place.size()).toRect());
    } else {
        painter.fillRect(place, option.palette.color(GroupOf(option), QPalette::Button));
        painter.drawPixmap(CentrePlace(picture.size(), asked, place), picture, picture.rect());
    }
    if (!option.state.testFlag(QStyle::State_Enabled))
        painter.fillRect(place, QColor(128, 128, 128, 120));
    painter.restore();
}

void PresetDelegate::PaintFrame(QPainter& painter, const QRect& place,
                                const QStyleOptionViewItem& option, bool isApplied)
{
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor accent = isEnabled ? option.palette.color(QPalette::Active, QPalette::Highlight)
                                    : option.palette.color(QPalette::Disabled, QPalette::Text);
    const bool isCurrent = option.state.testFlag(QStyle::State_HasFocus);
    const bool isUnderMouse = option.state.testFlag(QStyle::State_MouseOver);
    painter.setBrush(Qt::NoBrush);
    if (isApplied) {
        painter.setPen(QPen(accent, 3));
        painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    } else if (isUnderMouse) {
        QColor faint = accent;
        faint.setAlpha(160);
        painter.setPen(QPen(faint, 2));
        painter.drawRoundedRect(QRectF(place).adjusted(1, 1, -1, -1), Radius, Radius);
    }
    if (isCurrent) {
        painter.setPen(QPen(option.palette.color(QPalette::Text), 1));
        painter.drawRoundedRect(QRectF(place).adjusted(-2.5, -2.5, 2.5, 2.5), Radius + 2,
                                Radius + 2);
    }
}

void PresetDelegate::PaintMarks(QPainter& painter, const QRect& cell,
                                const QStyleOptionViewItem& option, const QModelIndex& index)
{
    painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : DisabledOpacity);
    const bool isFavourite = index.data(PresetModel::FavouriteRole).toBool();
    if (isFavourite || option.state.testFlag(QStyle::State_MouseOver))
        PaintBadge(painter, GetStarRect(cell),
                   isFavourite ? QStringLiteral("star-filled") : QStringLiteral("star"),
                   isFavourite ? QColor(255, 205, 70) : QColor(Qt::white));
    const QRect picture = GetPictureRect(cell);
    if (index.data(PresetModel::PopularRole).toBool())
        PaintBadge(painter, {picture.topLeft(), QSize(BadgeSize, BadgeSize)},
                   QStringLiteral("popular"), QColor(255, 150, 90));
    const QRect bottom(picture.right() + 1 - BadgeSize, picture.bottom() + 1 - BadgeSize, BadgeSize,
                       BadgeSize);
    if (index.data(PresetModel::DownloadableRole).toBool())
        PaintBadge(painter, bottom, QStringLiteral("download"), Qt::white);
    else if (!index.data(PresetPageModel::ProblemRole).toString().isEmpty())
        PaintBadge(painter, bottom, QStringLiteral("clear"), QColor(255, 150, 90));
    else if (index.data(PresetModel::AppliedRole).toBool())
        PaintBadge(painter, bottom, QStringLiteral("check"), Qt::white);
    painter.setOpacity(1);
}

void PresetDelegate::PaintName(QPainter& painter, const QRect& cell,
                               const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QFont font = option.font;
    font.setBold(index.data(PresetModel::AppliedRole).toBool());
    const QRect picture = GetPictureRect(cell);
    const QRect place(picture.left(), picture.bottom() + 1 + NameGap, picture.width(),
                      option.fontMetrics.height());
    painter.setFont(font);
    painter.setPen(option.palette.color(GroupOf(option), QPalette::Text));
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter,
                     QFontMetrics(font).elidedText(index.data(Qt::DisplayRole).toString(),
                                                   Qt::ElideRight, place.width()));
}

} // namespace LumetraPlugin
