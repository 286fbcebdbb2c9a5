// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QBasicTimer>
#include <QSlider>

namespace Zorvik::Lumetra {

/// The handle of this slider comes to where the groove is pressed with the left button, and can be
/// dragged on from there. Every drag ends with sliderReleased(), even if the slider is disabled or
/// hidden in the middle of it. Wheel and key steps have no release, so wheelFinished() tells of
/// their end.
class ZORVIKPLATFORM_EXPORT ClickSlider : public QSlider
{
    Q_OBJECT

public:
    /// Makes a vertical slider, as QSlider does; `parent` owns it.
    explicit ClickSlider(QWidget* parent = nullptr);

    /// These two forward to QAbstractSlider and begin no gesture: a value set by the program ends
    /// with no wheelFinished().
    void setMinimum(int minimum);
    void setValue(int value);

    /// Sets how long after the last wheel or key step a gesture counts as ended. It starts as
    /// 300 ms; a negative delay counts as 0.
    void setGestureEndDelay(int milliseconds);

signals:
    /// Comes once after a series of wheel or key steps that changed the value: when the delay has
    /// passed, when pointer or focus leave, or when the slider is pressed, disabled or hidden.
    void wheelFinished();

protected:
    /// These handlers find the beginnings and ends of drags and gestures. A derived class that
    /// overrides one of them should pass the event on.
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QRect ControlRect(int control) const;
    int ValueAt(const QPoint& position) const;
    void PressHandleAt(QMouseEvent* event);
    void ExtendGesture(int valueBefore);
    void EndGesture();
    void EndDrag();

    QBasicTimer m_gestureEnd;
    int m_gestureEndDelay = 300;
};

} // namespace Zorvik::Lumetra
