// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "histogram/Histogram.h"

#include <QWidget>

namespace LumetraEditor {

/// Draws how often each value of red, green and blue occurs in the picture.
class HistogramWidget : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramWidget(QWidget* parent = nullptr);

    void SetHistogram(const Histogram& histogram);

    QSize sizeHint() const override { return {304, 96}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Translate();

    Histogram m_histogram;
};

} // namespace LumetraEditor
