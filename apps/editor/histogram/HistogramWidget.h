// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "histogram/Histogram.h"

#include <QWidget>

class QPainter;

namespace LumetraEditor {

/// Draws how often each value of red, green and blue occurs in the picture. Its upper corners are
/// lit while shadows, at the left, or highlights are clipped.
class HistogramWidget : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramWidget(QWidget* parent = nullptr);

    void SetHistogram(const Histogram& histogram);

    QSize sizeHint() const override { return {304, 80}; }

signals:
    /// A corner was clicked: the user wants to see where the photo is clipped.
    void clippingClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Translate();
    /// Says in words which ends are clipped.
    void DescribeClipping();
    void DrawBars(QPainter& painter) const;
    void DrawCorners(QPainter& painter) const;

    Histogram m_histogram;
};

} // namespace LumetraEditor
