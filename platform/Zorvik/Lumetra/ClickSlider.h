// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QBasicTimer>
#include <QSlider>

namespace Zorvik::Lumetra {

/// A slider whose handle comes to where the groove is pressed and can be dragged on from there.
/// Wheel and key steps have no release, so their end is told by wheelFinished().
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
    /// Once after a series of wheel or key steps: the delay has passed, or pointer or focus left.
    void wheelFinished();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QRect HandleRect() const;
    int ValueAt(int pixel) const;
    void Drag(const QPoint& position);
    void ExtendGesture(int valueBefore);
    void EndGesture();

    QBasicTimer m_gestureEnd;
    int m_gestureEndDelay = 300;
    int m_grabOffset = 0; // pixels from the handle's begin to where it was grabbed
    bool m_isDragging = false;
};

} // namespace Zorvik::Lumetra
