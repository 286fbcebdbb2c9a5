// SPDX-License-Identifier: MIT
#include "Zorvik/Lumetra/ClickSlider.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTimerEvent>

namespace Zorvik::Lumetra {

ClickSlider::ClickSlider(QWidget* parent) : QSlider(parent) {}

void ClickSlider::setMinimum(int minimum)
{
    QAbstractSlider::setMinimum(minimum);
}

void ClickSlider::setValue(int value)
{
    QAbstractSlider::setValue(value);
}

void ClickSlider::setGestureEndDelay(int milliseconds)
{
    m_gestureEndDelay = milliseconds;
}

QRect ClickSlider::HandleRect() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

/// The value at which the handle begins at `pixel`, along the slider's orientation.
int ClickSlider::ValueAt(int pixel) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle = HandleRect();
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const int begin = isHorizontal ? groove.x() : groove.y();
    const int span =
        isHorizontal ? groove.width() - handle.width() : groove.height() - handle.height();
    return QStyle::sliderValueFromPosition(minimum(), maximum(), pixel - begin, span,
                                           option.upsideDown);
}

void ClickSlider::Drag(const QPoint& position)
{
    const int pixel = orientation() == Qt::Horizontal ? position.x() : position.y();
    setSliderPosition(ValueAt(pixel - m_grabOffset));
}

void ClickSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || minimum() == maximum()) {
        event->ignore();
        return;
    }
    event->accept();
    EndGesture();

    const QRect handle = HandleRect();
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const QPoint inside = event->pos() - handle.topLeft();
    const bool isOnHandle = handle.contains(event->pos());
    const QPoint grab = isOnHandle ? inside : QPoint(handle.width() / 2, handle.height() / 2);
    m_grabOffset = isHorizontal ? grab.x() : grab.y();

    m_isDragging = true;
    setSliderDown(true);
    if (!isOnHandle)
        Drag(event->pos());
}

void ClickSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_isDragging) {
        event->ignore();
        return;
    }
    event->accept();
    Drag(event->pos());
}

void ClickSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_isDragging || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    m_isDragging = false;
    setSliderDown(false);
}

void ClickSlider::wheelEvent(QWheelEvent* event)
{
    const int before = value();
    QSlider::wheelEvent(event);
    ExtendGesture(before);
}

void ClickSlider::keyPressEvent(QKeyEvent* event)
{
    const int before = value();
    QSlider::keyPressEvent(event);
    ExtendGesture(before);
}

void ClickSlider::leaveEvent(QEvent* event)
{
    EndGesture();
    QSlider::leaveEvent(event);
}

void ClickSlider::focusOutEvent(QFocusEvent* event)
{
    EndGesture();
    QSlider::focusOutEvent(event);
}

void ClickSlider::hideEvent(QHideEvent* event)
{
    EndGesture();
    QSlider::hideEvent(event);
}

void ClickSlider::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_gestureEnd.timerId())
        EndGesture();
    else
        QSlider::timerEvent(event);
}

void ClickSlider::ExtendGesture(int valueBefore)
{
    if (value() != valueBefore || m_gestureEnd.isActive())
        m_gestureEnd.start(m_gestureEndDelay, this);
}

void ClickSlider::EndGesture()
{
    if (!m_gestureEnd.isActive())
        return;
    m_gestureEnd.stop();
    emit wheelFinished();
}

} // namespace Zorvik::Lumetra
