// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/CanvasMarks.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

namespace LumetraEditor {

void CanvasMarks::DrawSplitLine(QPainter& painter, double x, int height)
{
    painter.fillRect(QRectF(x - 1.5, 0, 3, height), QColor(0, 0, 0, 90));
    painter.fillRect(QRectF(x - 0.5, 0, 1, height), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    painter.setBrush(Qt::white);
    const QPointF middle(x, height / 2.0);
    painter.drawEllipse(middle, 12, 12);
    painter.setPen(
        QPen(QColor(0x30, 0x33, 0x3a), 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const double side : {-1.0, 1.0}) {
        const QPointF arrow[] = {middle + QPointF(side * 3.5, -3.5), middle + QPointF(side * 7, 0),
                                 middle + QPointF(side * 3.5, 3.5)};
        painter.drawPolyline(arrow, 3);
    }
}

void CanvasMarks::DrawTag(QPainter& painter, const QString& text, const QRect& place,
                          Qt::AlignmentFlag side)
{
    const QSize textSize = painter.fontMetrics().size(Qt::TextSingleLine, text);
    const QRect box =
        QStyle::alignedRect(painter.layoutDirection(), side | Qt::AlignTop, textSize + QSize(16, 8),
                            place.adjusted(16, 16, -16, -16));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(Qt::white);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace LumetraEditor
