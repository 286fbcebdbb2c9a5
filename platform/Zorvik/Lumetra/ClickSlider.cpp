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
    m_gestureEndDelay = qMax(0, milliseconds);
}

/// Returns the rectangle of `control`, a QStyle::SubControl of the slider.
QRect ClickSlider::ControlRect(int control) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option,
                                   static_cast<QStyle::SubControl>(control), this);
}

/// Returns the value with which the handle's centre comes nearest to `position`.
int ClickSlider::ValueAt(const QPoint& position) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove = ControlRect(QStyle::SC_SliderGroove);
    const QRect handle = ControlRect(QStyle::SC_SliderHandle);
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const int length = isHorizontal ? handle.width() : handle.height();
    const int span = (isHorizontal ? groove.width() : groove.height()) - length;
    const int pixel = isHorizontal ? position.x() - groove.x() : position.y() - groove.y();
    return QStyle::sliderValueFromPosition(minimum(), maximum(), pixel - length / 2, span,
                                           option.upsideDown);
}

void ClickSlider::mousePressEvent(QMouseEvent* event)
{
    EndGesture();
    const bool isLeftAlone = event->buttons() == Qt::LeftButton;
    const bool isOnHandle = ControlRect(QStyle::SC_SliderHandle).contains(event->pos());
    if (isLeftAlone && !isOnHandle && minimum() < maximum())
        PressHandleAt(event);
    else
        QSlider::mousePressEvent(event);
}

/// Brings the handle to the pointer as part of the drag, then lets QSlider grab it by its centre.
void ClickSlider::PressHandleAt(QMouseEvent* event)
{
    setSliderDown(true);
    setSliderPosition(ValueAt(event->pos()));
    const QPoint centre = ControlRect(QStyle::SC_SliderHandle).center();
    QMouseEvent onHandle(event->type(), centre, mapTo(window(), centre), mapToGlobal(centre),
                         event->button(), event->buttons(), event->modifiers());
    QSlider::mousePressEvent(&onHandle);
    event->accept();
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

// Gestures end here and not in the handlers of the single events, because a derived class may
// override such a handler without passing the event on.
bool ClickSlider::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Leave:
    case QEvent::FocusOut:
        EndGesture();
        break;
    case QEvent::Hide:
        EndGesture();
        EndDrag();
        break;
    case QEvent::EnabledChange:
        if (!isEnabled()) {
            EndGesture();
            EndDrag();
        }
        break;
    default:
        break;
    }
    return QSlider::event(event);
}

void ClickSlider::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_gestureEnd.timerId())
        EndGesture();
    else
        QSlider::timerEvent(event);
}

/// Does nothing during a drag, since a step then belongs to the drag.
void ClickSlider::ExtendGesture(int valueBefore)
{
    if (isSliderDown())
        return;
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

/// Ends a drag as if the button were released. Without a release QSlider would keep the handle
/// pressed.
void ClickSlider::EndDrag()
{
    if (!isSliderDown())
        return;
    const QPoint centre = ControlRect(QStyle::SC_SliderHandle).center();
    QMouseEvent release(QEvent::MouseButtonRelease, centre, mapTo(window(), centre),
                        mapToGlobal(centre), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QSlider::mouseReleaseEvent(&release);
    setSliderDown(false); // A handle that the program put down ignores the release above.
}

} // namespace Zorvik::Lumetra
