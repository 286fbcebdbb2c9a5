// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/wheel/HueWheel.h"

#include "adjust/controls/HueColours.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace LumetraAdjust {
namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr double Margin = 7; // room for the mark at the rim
constexpr double Radius = 6;
constexpr int SmallestSide = 88;
constexpr int UsualSide = 116;
constexpr double SmallStep = 1, LargeStep = 10;

bool IsOwnKey(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

double Wrap(double degrees)
{
    const double turned = std::fmod(degrees, 360);
    return turned < 0 ? turned + 360 : turned;
}

/// Red points to the right, and hues turn against the clock.
double HueAt(const QPointF& fromCentre)
{
    return Wrap(std::atan2(-fromCentre.y(), fromCentre.x()) * 180 / Pi);
}

} // namespace

HueWheel::HueWheel(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(SmallestSide, SmallestSide);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize HueWheel::sizeHint() const
{
    return {UsualSide, UsualSide};
}

void HueWheel::Show(double hue, double saturation)
{
    m_hue = Wrap(hue);
    m_saturation = std::clamp(saturation, 0.0, 100.0);
    Speak();
    update();
}

void HueWheel::SetName(const QString& name)
{
    m_name = name;
    Speak();
}

void HueWheel::Speak()
{
    setAccessibleName(m_name);
    setAccessibleDescription(
        tr("Hue %1°, saturation %2 %").arg(std::lround(m_hue)).arg(std::lround(m_saturation)));
    setToolTip(QStringLiteral("%1\n%2").arg(m_name, accessibleDescription()));
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

QRectF HueWheel::Circle() const
{
    const double side = std::min(width(), height()) - 2 * Margin;
    return {(width() - side) / 2, (height() - side) / 2, side, side};
}

QPointF HueWheel::MarkPlace() const
{
    const QRectF circle = Circle();
    const double length = m_saturation / 100 * circle.width() / 2;
    const double angle = m_hue * Pi / 180;
    return circle.center() + QPointF(length * std::cos(angle), -length * std::sin(angle));
}

void HueWheel::MoveTo(double hue, double saturation)
{
    Show(std::round(hue), std::round(saturation));
    m_isStepOpen = true;
    emit moved(m_hue, m_saturation);
}

void HueWheel::MoveMark(const QPointF& place)
{
    const QRectF circle = Circle();
    const QPointF offset = place - circle.center();
    const double share = std::hypot(offset.x(), offset.y()) / (circle.width() / 2);
    // In the centre the hue has no direction, and stays.
    MoveTo(share > 0 ? HueAt(offset) : m_hue, std::min(share, 1.0) * 100);
}

void HueWheel::EndStep()
{
    m_isDragging = false;
    if (std::exchange(m_isStepOpen, false))
        emit finished();
}

void HueWheel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    EndStep();
    m_isDragging = true;
    const QPointF toMark = event->localPos() - MarkPlace();
    if (std::hypot(toMark.x(), toMark.y()) > Radius) // a press on the mark leaves it there
        MoveMark(event->localPos());
}

void HueWheel::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isDragging)
        MoveMark(event->localPos());
}

void HueWheel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        EndStep();
}

void HueWheel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit resetRequested();
}

/// Keeps keys that move the mark from commands of the window.
bool HueWheel::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (IsOwnKey(key->key()) && !(key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)))
            event->accept();
    }
    return QWidget::event(event);
}

void HueWheel::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers() & Qt::ShiftModifier ? LargeStep : SmallStep;
    switch (event->key()) {
    case Qt::Key_Left:
        return MoveTo(m_hue + step, m_saturation);
    case Qt::Key_Right:
        return MoveTo(m_hue - step, m_saturation);
    case Qt::Key_Up:
        return MoveTo(m_hue, m_saturation + step);
    case Qt::Key_Down:
        return MoveTo(m_hue, m_saturation - step);
    default:
        QWidget::keyPressEvent(event);
    }
}

/// A key that is held makes one step.
void HueWheel::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat() && IsOwnKey(event->key()))
        EndStep();
    else
        QWidget::keyReleaseEvent(event);
}

void HueWheel::focusOutEvent(QFocusEvent* event)
{
    EndStep();
    QWidget::focusOutEvent(event);
    update();
}

void HueWheel::hideEvent(QHideEvent* event)
{
    EndStep();
    QWidget::hideEvent(event);
}

void HueWheel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        EndStep();
    if (event->type() == QEvent::PaletteChange)
        m_picture = QImage();
}

/// The colours of the circle, muted so that the mark is seen on all of them.
const QImage& HueWheel::GetPicture()
{
    const int side = std::max(1, static_cast<int>(Circle().width() * devicePixelRatioF()));
    if (m_picture.width() == side)
        return m_picture;
    m_picture = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
    m_picture.fill(Qt::transparent);
    const double radius = side / 2.0;
    const QColor centre = palette().color(QPalette::Window).lightness() < 128
                              ? QColor(120, 120, 120)
                              : QColor(235, 235, 235);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const QPointF offset(x + 0.5 - radius, y + 0.5 - radius);
            const double share = std::hypot(offset.x(), offset.y()) / radius;
            if (share > 1)
                continue;
            const QColor rim = ColourOfHue(HueAt(offset), 0.8);
            const auto mix = [share](int from, int to) {
                return static_cast<int>(std::lround(from + (to - from) * share));
            };
            m_picture.setPixel(x, y,
                               qRgb(mix(centre.red(), rim.red()), mix(centre.green(), rim.green()),
                                    mix(centre.blue(), rim.blue())));
        }
    return m_picture;
}

void HueWheel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF circle = Circle();
    painter.setOpacity(isEnabled() ? 1 : 0.35);
    painter.drawImage(circle, GetPicture());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid),
                        hasFocus() ? 2 : 1));
    painter.drawEllipse(circle);
    const QPointF mark = MarkPlace();
    painter.setPen(QPen(QColor(0, 0, 0, 160), 1));
    painter.setBrush(ColourOfHue(m_hue, m_saturation / 100));
    painter.drawEllipse(mark, Radius, Radius);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(mark, Radius - 1, Radius - 1);
}

} // namespace LumetraAdjust
