// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QBasicTimer>
#include <QSlider>

namespace Zorvik::Lumetra {

/// A slider whose handle comes to where the groove is pressed with the left button, and can be
/// dragged on from there. A drag ends like any other, with sliderReleased(), also where the slider
/// is disabled or hidden meanwhile. Wheel and key steps have no release, so their end is told by
/// wheelFinished().
class ZORVIKPLATFORM_EXPORT ClickSlider : public QSlider
{
    Q_OBJECT

public:
    explicit ClickSlider(QWidget* parent = nullptr);

    void setMinimum(int minimum);
    void setValue(int value);

    /// How long after the last wheel or key step a gesture counts as ended; starts as 300 ms.
    void setGestureEndDelay(int milliseconds);

signals:
    /// Once after a series of wheel or key steps: the delay has passed, or pointer or focus left,
    /// or the slider was pressed, disabled or hidden.
    void wheelFinished();

protected:
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
