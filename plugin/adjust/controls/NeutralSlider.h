// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Lumetra/ClickSlider.h"

#include <QColor>
#include <QVector>

namespace LumetraAdjust {

/// A horizontal slider whose groove is filled from position 0, which changes nothing, to the
/// handle, in the colours of the palette. The groove may show the colours that it leads to instead.
class NeutralSlider : public Zorvik::Lumetra::ClickSlider
{
    Q_OBJECT

public:
    explicit NeutralSlider(QWidget* parent = nullptr);

    /// The colours of the groove from left to right; none: it is filled.
    void SetGroove(const QVector<QColor>& colours);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double PlaceOf(int position) const;
    void PaintGroove(QPainter& painter) const;
    void PaintHandle(QPainter& painter) const;

    QVector<QColor> m_groove;
};

} // namespace LumetraAdjust
