// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/TipPlace.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace LumetraEditor {
namespace {

constexpr int Gap = 4; // between tip and area

QRect GetGlobalRect(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

/// True for events by which the user does something else than waiting for a tip.
bool IsUse(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseMove ||
           type == QEvent::KeyPress || type == QEvent::Wheel;
}

/// A start from which `length` lies inside of [first, last], if it can.
int KeepInside(int start, int length, int first, int last)
{
    return std::max(first, std::min(start, last + 1 - length));
}

} // namespace

TipPlace::TipPlace(QObject* parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

void TipPlace::Keep(QWidget& area, Qt::Edge edge)
{
    m_areas.push_back({&area, edge});
}

/// The area of the widget that the tip was asked for. A tip that a widget shows by itself, as a
/// slider does while it is moved, belongs to the area that it covers.
const TipPlace::Area* TipPlace::FindArea(const QWidget& tip) const
{
    const auto isMeant = [&](const Area& area) {
        if (m_asked)
            return area.widget == m_asked || area.widget->isAncestorOf(m_asked);
        return area.widget->isVisible() && GetGlobalRect(*area.widget).intersects(tip.geometry());
    };
    const auto found = std::find_if(m_areas.begin(), m_areas.end(), isMeant);
    return found == m_areas.end() ? nullptr : &*found;
}

void TipPlace::Move(QWidget& tip) const
{
    const Area* const area = FindArea(tip);
    if (!area)
        return;
    const QRect around = GetGlobalRect(*area->widget);
    const QRect screen = area->widget->screen()->geometry();
    QPoint place = tip.pos();
    if (area->edge == Qt::LeftEdge)
        place.setX(around.left() - Gap - tip.width());
    else
        place.setY(around.top() - Gap - tip.height());
    place.setX(KeepInside(place.x(), tip.width(), screen.left(), screen.right()));
    place.setY(KeepInside(place.y(), tip.height(), screen.top(), screen.bottom()));
    if (place != tip.pos())
        tip.move(place);
}

bool TipPlace::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (IsUse(type))
        m_asked = nullptr;
    if (type == QEvent::ToolTip)
        m_asked = qobject_cast<QWidget*>(watched);
    if (type != QEvent::Show && type != QEvent::Move && type != QEvent::Resize)
        return false;
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget && widget->windowType() == Qt::ToolTip)
        Move(*widget);
    return false;
}

} // namespace LumetraEditor
