// SPDX-License-Identifier: GPL-2.0-or-later
#include "histogram/HistogramWidget.h"

#include "canvas/ClippingMarks.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace LumetraEditor {
namespace {

constexpr int CornerSize = 16;

/// An outline of square roots, so that small amounts show. The tallest inner value has full height,
/// since clipped ends would flatten the rest.
QPainterPath OutlineOf(const Histogram::Counts& counts, std::uint32_t tallest, const QRectF& area)
{
    QPainterPath path(area.bottomLeft());
    for (int value = 0; value < Histogram::Values; ++value) {
        const double share = std::sqrt(static_cast<double>(counts[value]) / tallest);
        path.lineTo(area.left() + area.width() * value / (Histogram::Values - 1),
                    area.bottom() - area.height() * std::min(1.0, share));
    }
    path.lineTo(area.bottomRight());
    return path;
}

/// The place of a corner that is lit, with room around it for the pointer.
QRect CornerOf(const QRect& widget, bool isRight)
{
    QRect corner(0, 0, CornerSize, CornerSize);
    if (isRight)
        corner.moveRight(widget.right());
    return corner;
}

} // namespace

HistogramWidget::HistogramWidget(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("histogram"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    Translate();
}

void HistogramWidget::SetHistogram(const Histogram& histogram)
{
    m_histogram = histogram;
    DescribeClipping();
    update();
}

void HistogramWidget::Translate()
{
    setAccessibleName(tr("Histogram"));
    setToolTip(tr("Shadows at the left, highlights at the right.\nA lit corner says that they are "
                  "clipped; click it to see where."));
    DescribeClipping();
}

void HistogramWidget::DescribeClipping()
{
    QStringList clipped;
    if (m_histogram.HasClippedShadows())
        clipped.append(tr("Shadows are clipped"));
    if (m_histogram.HasClippedHighlights())
        clipped.append(tr("Highlights are clipped"));
    setAccessibleDescription(clipped.join(QStringLiteral(", ")));
}

void HistogramWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Translate();
}

void HistogramWidget::mousePressEvent(QMouseEvent* event)
{
    for (const bool isRight : {false, true})
        if (event->button() == Qt::LeftButton && CornerOf(rect(), isRight).contains(event->pos()))
            emit clippingClicked();
}

void HistogramWidget::DrawBars(QPainter& painter) const
{
    const std::uint32_t tallest = m_histogram.GetTallestInner();
    if (tallest == 0)
        return;
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    painter.setCompositionMode(isDark ? QPainter::CompositionMode_Screen
                                      : QPainter::CompositionMode_Multiply);
    const QRectF area = QRectF(rect()).adjusted(8, 8, -8, -8);
    const QColor dark[] = {0x8c3f45, 0x347a48, 0x3a5c9e};
    const QColor light[] = {0xf4bdbf, 0xbfe6c9, 0xbfd1f5};
    for (int channel = 0; channel < Histogram::Channels; ++channel) {
        painter.setBrush(isDark ? dark[channel] : light[channel]);
        painter.drawPath(OutlineOf(m_histogram.channels[channel], tallest, area));
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

/// Draws triangles in the corners, which are filled where that end is clipped.
void HistogramWidget::DrawCorners(QPainter& painter) const
{
    const QColor faint = palette().color(QPalette::Disabled, QPalette::Text);
    for (const bool isRight : {false, true}) {
        const bool isLit =
            isRight ? m_histogram.HasClippedHighlights() : m_histogram.HasClippedShadows();
        const QRectF place = QRectF(CornerOf(rect(), isRight)).adjusted(3.5, 3.5, -3.5, -3.5);
        QPolygonF corner;
        corner << place.topLeft() << place.topRight()
               << (isRight ? place.bottomRight() : place.bottomLeft());
        const QColor& lit = isRight ? ClippingMarks::Highlights : ClippingMarks::Shadows;
        painter.setPen(QPen(isLit ? lit : faint, 1));
        painter.setBrush(isLit ? QBrush(lit) : QBrush(Qt::NoBrush));
        painter.drawPolygon(corner);
    }
}

void HistogramWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(rect(), 4, 4);
    DrawBars(painter);
    DrawCorners(painter);
}

} // namespace LumetraEditor
