// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/NeutralSlider.h"

#include <QLinearGradient>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>

namespace LumetraAdjust {
namespace {

constexpr double GrooveHeight = 4;
constexpr double HandleSize = 12;
constexpr double HalfTick = 4;
constexpr int Height = 22;
constexpr int ShortestWidth = 60;

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

} // namespace

NeutralSlider::NeutralSlider(QWidget* parent) : ClickSlider(parent)
{
    setOrientation(Qt::Horizontal);
    setPageStep(10);
    setMinimumWidth(ShortestWidth);
}

void NeutralSlider::SetGroove(const QVector<QColor>& colours)
{
    m_groove = colours;
    update();
}

QSize NeutralSlider::sizeHint() const
{
    return {2 * ShortestWidth, Height};
}

/// Where the handle's centre is for a position, by the style's own measures, so that clicks meet
/// what is painted.
double NeutralSlider::PlaceOf(int position) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.sliderPosition = position;
    const QRectF handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    return handle.center().x();
}

void NeutralSlider::PaintGroove(QPainter& painter) const
{
    const double middle = height() / 2.0;
    const double left = PlaceOf(minimum()) - HandleSize / 2,
                 right = PlaceOf(maximum()) + HandleSize / 2;
    const QRectF groove(left, middle - GrooveHeight / 2, right - left, GrooveHeight);
    QLinearGradient colours(groove.topLeft(), groove.topRight());
    for (int i = 0; i < m_groove.size(); ++i)
        colours.setColorAt(m_groove.size() > 1 ? double(i) / (m_groove.size() - 1) : 0,
                           m_groove[i]);
    const bool isColoured = !m_groove.isEmpty() && isEnabled();
    painter.setPen(Qt::NoPen);
    painter.setBrush(isColoured ? QBrush(colours) : palette().brush(QPalette::Midlight));
    painter.drawRoundedRect(groove, GrooveHeight / 2, GrooveHeight / 2);
    const double neutral = PlaceOf(std::clamp(0, minimum(), maximum()));
    painter.setBrush(palette().brush(QPalette::Mid));
    if (minimum() < 0 && maximum() > 0)
        painter.drawRect(QRectF(neutral - 0.5, middle - HalfTick, 1, 2 * HalfTick));
    if (isColoured || !isEnabled())
        return;
    const double place = PlaceOf(sliderPosition());
    painter.setBrush(palette().brush(QPalette::Highlight));
    painter.drawRoundedRect(
        QRectF(std::min(place, neutral), groove.top(), std::abs(place - neutral), GrooveHeight),
        GrooveHeight / 2, GrooveHeight / 2);
}

void NeutralSlider::PaintHandle(QPainter& painter) const
{
    const QPointF centre(PlaceOf(sliderPosition()), height() / 2.0);
    const auto role = IsDark(palette()) ? QPalette::ButtonText : QPalette::Base;
    const bool isMarked = isEnabled() && (hasFocus() || underMouse());
    painter.setBrush(isSliderDown() ? palette().brush(QPalette::Highlight)
                                    : palette().brush(isEnabled() ? role : QPalette::Midlight));
    painter.setPen(
        QPen(palette().color(isMarked ? QPalette::Highlight : QPalette::Mid), hasFocus() ? 2 : 1));
    const double radius = (HandleSize - (hasFocus() ? 1 : 0)) / 2;
    painter.drawEllipse(centre, radius, radius);
}

void NeutralSlider::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGroove(painter);
    PaintHandle(painter);
}

} // namespace LumetraAdjust
