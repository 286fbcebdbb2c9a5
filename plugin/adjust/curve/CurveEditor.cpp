// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/curve/CurveEditor.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace LumetraAdjust {
namespace {

constexpr int Margin = 8; // room for the points at the ends
constexpr int SmallestSide = 160;
constexpr int UsualSide = 240;
constexpr double Radius = 5;
constexpr double Reach = 11;                   // pixels around a point that belong to it
constexpr double SmallStep = 1, LargeStep = 5; // per cent
constexpr int Quarters = 4;

bool IsOwnKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Insert:
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return true;
    default:
        return false;
    }
}

} // namespace

CurveEditor::CurveEditor(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(SmallestSide, SmallestSide);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setCursor(Qt::CrossCursor);
}

QSize CurveEditor::sizeHint() const
{
    return {UsualSide, UsualSide};
}

/// A drag ends where other points come meanwhile, such as those of an undo: it would go on with
/// another point.
void CurveEditor::Show(const CurvePoints& points)
{
    if (points.Get() != m_points.Get())
        m_isDragging = m_isStepOpen = false;
    m_points = points;
    m_selected = std::clamp(m_selected, 0, m_points.Count() - 1);
    Speak();
    update();
    emit selectionChanged();
}

void CurveEditor::SetColour(const QColor& colour)
{
    m_colour = colour;
    update();
}

void CurveEditor::SetName(const QString& name)
{
    m_name = name;
    Speak();
}

/// Tells a screen reader which point is selected and where it is.
void CurveEditor::Speak()
{
    const QPointF point = m_points.Get()[static_cast<std::size_t>(m_selected)];
    setAccessibleName(m_name);
    setAccessibleDescription(tr("Point %1 of %2: %3 % becomes %4 %")
                                 .arg(m_selected + 1)
                                 .arg(m_points.Count())
                                 .arg(std::lround(point.x()))
                                 .arg(std::lround(point.y())));
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

void CurveEditor::Select(int position)
{
    m_selected = std::clamp(position, 0, m_points.Count() - 1);
    Speak();
    update();
    emit selectionChanged();
}

void CurveEditor::MoveTo(const QPointF& point)
{
    m_points.Move(m_selected, point);
    m_isStepOpen = true;
    Speak();
    update();
    emit selectionChanged();
    emit moved();
}

void CurveEditor::EndStep()
{
    m_isDragging = false;
    if (std::exchange(m_isStepOpen, false))
        emit finished();
}

void CurveEditor::MoveSelected(const QPointF& to)
{
    MoveTo(to);
    EndStep();
}

void CurveEditor::RemoveSelected()
{
    if (!m_points.Remove(m_selected))
        return;
    m_isStepOpen = true;
    Select(m_selected);
    emit moved();
    EndStep();
}

// Geometry

QRectF CurveEditor::Square() const
{
    const double side = std::min(width(), height()) - 2.0 * Margin;
    return {(width() - side) / 2, (height() - side) / 2, side, side};
}

QPointF CurveEditor::ToPlace(const QPointF& point) const
{
    const QRectF square = Square();
    return {square.left() + point.x() / 100 * square.width(),
            square.bottom() - point.y() / 100 * square.height()};
}

QPointF CurveEditor::ToPoint(const QPointF& place) const
{
    const QRectF square = Square();
    const auto toPercent = [](double share) { return std::round(share * 1000) / 10; };
    return {toPercent((place.x() - square.left()) / square.width()),
            toPercent((square.bottom() - place.y()) / square.height())};
}

/// The nearest point in reach.
std::optional<int> CurveEditor::FindPoint(const QPointF& place) const
{
    std::optional<int> nearest;
    double least = Reach;
    for (int i = 0; i < m_points.Count(); ++i) {
        const QPointF to = ToPlace(m_points.Get()[static_cast<std::size_t>(i)]) - place;
        const double distance = std::hypot(to.x(), to.y());
        if (distance <= least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

// Pointer

void CurveEditor::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    EndStep();
    if (const auto point = FindPoint(event->localPos())) {
        Select(*point);
        m_isDragging = true;
        return;
    }
    const auto added = m_points.Add(ToPoint(event->localPos()));
    if (!added)
        return;
    Select(*added);
    m_isDragging = true;
    m_isStepOpen = true;
    emit moved();
}

void CurveEditor::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isDragging)
        MoveTo(ToPoint(event->localPos()));
}

void CurveEditor::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        EndStep();
}

void CurveEditor::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && FindPoint(event->localPos()) == m_selected)
        RemoveSelected();
}

// Keys

/// Keeps keys that move a point from commands of the window.
bool CurveEditor::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (IsOwnKey(key->key()) && !(key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)))
            event->accept();
    }
    return QWidget::event(event);
}

/// Adds a point half-way to the next one, or to the one before the last.
void CurveEditor::AddBehindSelected()
{
    const int first = std::min(m_selected, m_points.Count() - 2);
    const auto& points = m_points.Get();
    const double x = (points[static_cast<std::size_t>(first)].x() +
                      points[static_cast<std::size_t>(first) + 1].x()) /
                     2;
    const auto added = m_points.Add({x, m_points.GetHeight(x)});
    if (!added)
        return;
    m_isStepOpen = true;
    Select(*added);
    emit moved();
    EndStep();
}

bool CurveEditor::Step(int key, bool isLarge)
{
    const double step = isLarge ? LargeStep : SmallStep;
    const QPointF point = m_points.Get()[static_cast<std::size_t>(m_selected)];
    switch (key) {
    case Qt::Key_Left:
        MoveTo(point - QPointF(step, 0));
        return true;
    case Qt::Key_Right:
        MoveTo(point + QPointF(step, 0));
        return true;
    case Qt::Key_Up:
        MoveTo(point + QPointF(0, step));
        return true;
    case Qt::Key_Down:
        MoveTo(point - QPointF(0, step));
        return true;
    default:
        return false;
    }
}

void CurveEditor::keyPressEvent(QKeyEvent* event)
{
    if (Step(event->key(), event->modifiers() & Qt::ShiftModifier))
        return;
    switch (event->key()) {
    case Qt::Key_PageUp:
        return Select(m_selected + 1);
    case Qt::Key_PageDown:
        return Select(m_selected - 1);
    case Qt::Key_Home:
        return Select(0);
    case Qt::Key_End:
        return Select(m_points.Count() - 1);
    case Qt::Key_Insert:
        return AddBehindSelected();
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return RemoveSelected();
    default:
        QWidget::keyPressEvent(event);
    }
}

/// A key that is held makes one step.
void CurveEditor::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat() && IsOwnKey(event->key()))
        EndStep();
    else
        QWidget::keyReleaseEvent(event);
}

void CurveEditor::focusOutEvent(QFocusEvent* event)
{
    EndStep();
    QWidget::focusOutEvent(event);
    update();
}

void CurveEditor::hideEvent(QHideEvent* event)
{
    EndStep();
    QWidget::hideEvent(event);
}

void CurveEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        EndStep();
}

// Painting

void CurveEditor::PaintGrid(QPainter& painter) const
{
    const QRectF square = Square();
    painter.fillRect(square, palette().brush(QPalette::Base));
    QColor line = palette().color(QPalette::Mid);
    line.setAlphaF(0.35);
    painter.setPen(line);
    for (int i = 1; i < Quarters; ++i) {
        const double x = square.left() + square.width() * i / Quarters;
        const double y = square.top() + square.height() * i / Quarters;
        painter.drawLine(QPointF(x, square.top()), QPointF(x, square.bottom()));
        painter.drawLine(QPointF(square.left(), y), QPointF(square.right(), y));
    }
    painter.drawLine(square.bottomLeft(), square.topRight());
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(square);
}

void CurveEditor::PaintCurve(QPainter& painter) const
{
    const QRectF square = Square();
    QPainterPath path;
    const int steps = std::max(1, static_cast<int>(square.width()));
    for (int i = 0; i <= steps; ++i) {
        const double x = 100.0 * i / steps;
        const QPointF place = ToPlace({x, std::clamp(m_points.GetHeight(x), 0.0, 100.0)});
        if (i == 0)
            path.moveTo(place);
        else
            path.lineTo(place);
    }
    const QColor colour = m_colour.isValid() ? m_colour : palette().color(QPalette::Text);
    painter.setPen(QPen(isEnabled() ? colour : palette().color(QPalette::Mid), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

void CurveEditor::PaintPoints(QPainter& painter) const
{
    if (!isEnabled())
        return;
    for (int i = 0; i < m_points.Count(); ++i) {
        const bool isSelected = i == m_selected;
        painter.setPen(QPen(palette().color(isSelected ? QPalette::Highlight : QPalette::Text),
                            isSelected ? 2 : 1));
        painter.setBrush(
            palette().brush(isSelected && hasFocus() ? QPalette::Highlight : QPalette::Base));
        painter.drawEllipse(ToPlace(m_points.Get()[static_cast<std::size_t>(i)]), Radius, Radius);
    }
}

void CurveEditor::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGrid(painter);
    PaintCurve(painter);
    PaintPoints(painter);
}

} // namespace LumetraAdjust
