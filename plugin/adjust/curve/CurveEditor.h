// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/curve/CurvePoints.h"

#include <QColor>
#include <QWidget>

#include <optional>

namespace LumetraAdjust {

/// A tone curve whose points are dragged. A press beside the points adds one; a double-click, or
/// the delete key, removes the selected one. By keyboard, Page Up and Page Down select the next
/// point, arrow keys move it by 1 per cent (with Shift by 5), and Insert adds one behind it.
class CurveEditor : public QWidget
{
    Q_OBJECT

public:
    explicit CurveEditor(QWidget* parent = nullptr);

    /// Shows a curve without a signal. A point that is being dragged stays the selected one.
    void Show(const CurvePoints& points);
    const CurvePoints& GetPoints() const { return m_points; }
    /// The colour of the line; an invalid one is that of the palette's text.
    void SetColour(const QColor& colour);
    /// The name for a screen reader, to which the selected point is added.
    void SetName(const QString& name);

    /// The selected point, from 0.
    int GetSelected() const { return m_selected; }
    void Select(int position);
    /// Moves the selected point as a user does, and ends the step.
    void MoveSelected(const QPointF& to);
    void RemoveSelected();

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return width; }

signals:
    void selectionChanged();
    /// The user moves, adds or removes a point.
    void moved();
    /// The user has released the pointer, or finished a step by keyboard.
    void finished();

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
    QRectF Square() const;
    QPointF ToPlace(const QPointF& point) const;
    QPointF ToPoint(const QPointF& place) const;
    std::optional<int> FindPoint(const QPointF& place) const;
    void MoveTo(const QPointF& point);
    void AddBehindSelected();
    bool Step(int key, bool isLarge);
    void EndStep();
    void Speak();
    void PaintGrid(QPainter& painter) const;
    void PaintCurve(QPainter& painter) const;
    void PaintPoints(QPainter& painter) const;

    CurvePoints m_points;
    QColor m_colour;
    QString m_name;
    int m_selected = 0;
    bool m_isDragging = false;
    bool m_isStepOpen = false; ///< a change has been told, and its end has not
};

} // namespace LumetraAdjust
