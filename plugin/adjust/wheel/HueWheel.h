// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

namespace LumetraAdjust {

/// A circle of hues: the angle is the hue, the distance from the centre the saturation. The pointer
/// drags the mark; a double-click asks for a reset. By keyboard, left and right turn the hue and up
/// and down change the saturation, by 1 or with Shift by 10.
class HueWheel : public QWidget
{
    Q_OBJECT

public:
    explicit HueWheel(QWidget* parent = nullptr);

    /// Shows values without a signal: degrees from 0 to 360, and per cent.
    void Show(double hue, double saturation);
    double GetHue() const { return m_hue; }
    double GetSaturation() const { return m_saturation; }
    /// The name for a screen reader, to which the values are added.
    void SetName(const QString& name);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return width; }

signals:
    void moved(double hue, double saturation);
    void finished();
    void resetRequested();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QRectF Circle() const;
    QPointF MarkPlace() const;
    void MoveTo(double hue, double saturation);
    void MoveMark(const QPointF& place);
    void EndStep();
    void Speak();
    const QImage& GetPicture();

    double m_hue = 0;
    double m_saturation = 0;
    QString m_name;
    QImage m_picture; ///< the colours, for the size at hand
    bool m_isDragging = false;
    bool m_isStepOpen = false; ///< a change has been told, and its end has not
};

} // namespace LumetraAdjust
