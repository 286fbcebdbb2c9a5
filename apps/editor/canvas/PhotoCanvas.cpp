// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/PhotoCanvas.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace LumetraEditor {
namespace {

constexpr double WheelStep = 1.2;  // one notch
constexpr double ButtonStep = 1.5; // one press of + or -
constexpr double KeyPan = 64;      // view coordinates
constexpr double SplitKeyStep = 0.02;
constexpr double SplitReach = 8; // to both sides of the line, view coordinates
constexpr int AngleOfNotch = 120;

bool IsCompareKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Backslash;
}

} // namespace

PhotoCanvas::PhotoCanvas(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("photoCanvas"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(320, 240);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Photo"));
    m_view.SetViewSize(size(), devicePixelRatioF());
}

QSize PhotoCanvas::sizeHint() const
{
    return {800, 600};
}

void PhotoCanvas::SetPhotoSize(const QSize& size)
{
    m_edited = {};
    m_original = {};
    m_drag = Drag::None;
    m_view.SetPhotoSize(size);
    AnnounceView();
}

void PhotoCanvas::SetFrame(Layer layer, const CanvasFrame& frame)
{
    LayerFrames& frames = layer == Layer::Edited ? m_edited : m_original;
    frames.sharp = frame;
    if (frame.part.size() == m_view.GetPhotoSize())
        frames.whole = frame;
    update();
}

void PhotoCanvas::AnnounceView()
{
    update();
    emit zoomChanged(m_view.GetZoom());
    emit viewChanged();
}

void PhotoCanvas::Fit()
{
    m_view.Fit();
    AnnounceView();
}

void PhotoCanvas::ZoomIn()
{
    SetZoom(m_view.GetZoom() * ButtonStep);
}

void PhotoCanvas::ZoomOut()
{
    SetZoom(m_view.GetZoom() / ButtonStep);
}

void PhotoCanvas::ZoomAt(double zoom, const QPointF& anchor)
{
    if (!m_view.HasPhoto())
        return;
    m_view.SetZoom(zoom, anchor);
    AnnounceView();
}

bool PhotoCanvas::PanBy(const QPointF& delta)
{
    const QPointF before = m_view.ToPhoto({0, 0});
    m_view.Pan(delta);
    if (m_view.ToPhoto({0, 0}) == before)
        return false;
    update();
    emit viewChanged();
    return true;
}

void PhotoCanvas::ChangeNeeds(bool& flag, bool value)
{
    if (flag == value)
        return;
    const bool before = NeedsOriginal();
    flag = value;
    update();
    if (NeedsOriginal() != before)
        emit originalNeeded(!before);
}

void PhotoCanvas::SetComparing(bool compare)
{
    if (m_isComparing == compare)
        return;
    ChangeNeeds(m_isComparing, compare);
}

void PhotoCanvas::SetSplitPosition(double position)
{
    m_splitPosition = std::clamp(position, 0.0, 1.0);
    update();
}

void PhotoCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_view.SetViewSize(size(), devicePixelRatioF());
    AnnounceView();
}

void PhotoCanvas::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setAccessibleName(tr("Photo"));
}

// Pointer

void PhotoCanvas::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / static_cast<double>(AngleOfNotch);
    if (notches != 0)
        ZoomAt(m_view.GetZoom() * std::pow(WheelStep, notches), event->position());
    event->accept();
}

bool PhotoCanvas::IsAtSplitLine(const QPointF& position) const
{
    return m_isSplit && m_view.HasPhoto() && std::abs(position.x() - GetSplitX()) <= SplitReach;
}

void PhotoCanvas::UpdateCursor(const QPointF& position)
{
    if (m_drag == Drag::Split || (m_drag == Drag::None && IsAtSplitLine(position)))
        setCursor(Qt::SplitHCursor);
    else if (m_drag == Drag::Pan)
        setCursor(Qt::ClosedHandCursor);
    else if (m_view.HasPhoto() && !m_view.IsFitted())
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

void PhotoCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton)
        return;
    m_drag = IsAtSplitLine(event->localPos()) ? Drag::Split : Drag::Pan;
    m_dragPosition = event->localPos();
    UpdateCursor(event->localPos());
}

void PhotoCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag == Drag::Pan)
        PanBy(event->localPos() - m_dragPosition);
    else if (m_drag == Drag::Split)
        SetSplitPosition(event->localPos().x() / std::max(1, width()));
    m_dragPosition = event->localPos();
    UpdateCursor(event->localPos());
}

void PhotoCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    m_drag = Drag::None;
    UpdateCursor(event->localPos());
}

void PhotoCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || IsAtSplitLine(event->localPos()))
        return;
    if (m_view.IsFitted())
        ZoomAt(1, event->localPos());
    else
        Fit();
}

// Keys

bool PhotoCanvas::PanByKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return PanBy({KeyPan, 0});
    case Qt::Key_Right:
        return PanBy({-KeyPan, 0});
    case Qt::Key_Up:
        return PanBy({0, KeyPan});
    case Qt::Key_Down:
        return PanBy({0, -KeyPan});
    default:
        return false;
    }
}

bool PhotoCanvas::HandleViewKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        ZoomIn();
        return true;
    case Qt::Key_Minus:
        ZoomOut();
        return true;
    case Qt::Key_0:
        Fit();
        return true;
    case Qt::Key_1:
        SetZoom(1);
        return true;
    default:
        return PanByKey(key);
    }
}

void PhotoCanvas::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = event->modifiers() == Qt::NoModifier ||
                         event->modifiers() == Qt::KeypadModifier ||
                         event->modifiers() == Qt::ShiftModifier;
    if (IsCompareKey(event->key())) {
        if (!event->isAutoRepeat())
            SetComparing(m_view.HasPhoto());
    } else if (event->modifiers() == Qt::AltModifier && m_isSplit &&
               (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)) {
        SetSplitPosition(m_splitPosition +
                         (event->key() == Qt::Key_Left ? -SplitKeyStep : SplitKeyStep));
    } else if (!isPlain || !HandleViewKey(event->key())) {
        QWidget::keyPressEvent(event);
    }
}

void PhotoCanvas::keyReleaseEvent(QKeyEvent* event)
{
    if (!IsCompareKey(event->key()))
        QWidget::keyReleaseEvent(event);
    else if (!event->isAutoRepeat())
        SetComparing(false);
}

void PhotoCanvas::focusInEvent(QFocusEvent* event)
{
    m_showsFocus =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QWidget::focusInEvent(event);
}

void PhotoCanvas::focusOutEvent(QFocusEvent* event)
{
    // The key's release will not come here any more.
    SetComparing(false);
    QWidget::focusOutEvent(event);
}

// Painting

void PhotoCanvas::DrawFrame(QPainter& painter, const CanvasFrame& frame) const
{
    if (frame.image.isNull())
        return;
    const QRectF target = m_view.ToView(QRectF(frame.part));
    const double ratio = devicePixelRatioF();
    const QSizeF screen = target.size() * ratio;
    if (std::abs(screen.width() - frame.image.width()) < 1 &&
        std::abs(screen.height() - frame.image.height()) < 1) {
        // Pixels match one to one: nothing is scaled, nothing blurred.
        QImage image = frame.image;
        image.setDevicePixelRatio(ratio);
        const QPointF corner = target.topLeft() * ratio;
        painter.drawImage(QPointF(std::round(corner.x()), std::round(corner.y())) / ratio, image);
        return;
    }
    // At a high zoom one looks for single pixels, so they are not smoothed.
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          screen.width() / frame.image.width() < 3);
    painter.drawImage(target, frame.image);
}

void PhotoCanvas::DrawLayer(QPainter& painter, const LayerFrames& frames) const
{
    if (!frames.sharp.part.contains(m_view.GetVisiblePart()))
        DrawFrame(painter, frames.whole);
    DrawFrame(painter, frames.sharp);
}

void PhotoCanvas::DrawSplitLine(QPainter& painter) const
{
    const double x = std::round(GetSplitX());
    painter.fillRect(QRectF(x - 1.5, 0, 3, height()), QColor(0, 0, 0, 90));
    painter.fillRect(QRectF(x - 0.5, 0, 1, height()), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    painter.setBrush(Qt::white);
    const QPointF middle(x, height() / 2.0);
    painter.drawEllipse(middle, 12, 12);
    painter.setPen(
        QPen(QColor(0x30, 0x33, 0x3a), 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const double side : {-1.0, 1.0}) {
        const QPointF arrow[] = {middle + QPointF(side * 3.5, -3.5), middle + QPointF(side * 7, 0),
                                 middle + QPointF(side * 3.5, 3.5)};
        painter.drawPolyline(arrow, 3);
    }
}

void PhotoCanvas::DrawTag(QPainter& painter, const QString& text, Qt::Alignment side) const
{
    const QSize textSize = fontMetrics().size(Qt::TextSingleLine, text);
    const QRect box =
        QStyle::alignedRect(layoutDirection(), side | Qt::AlignTop, textSize + QSize(16, 8),
                            rect().adjusted(16, 16, -16, -16));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(Qt::white);
    painter.drawText(box, Qt::AlignCenter, text);
}

void PhotoCanvas::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    if (!m_view.HasPhoto())
        return;
    const bool hasOriginal = !m_original.sharp.image.isNull();
    DrawLayer(painter, m_isComparing && hasOriginal ? m_original : m_edited);
    if (m_isSplit && !m_isComparing) {
        painter.save();
        painter.setClipRect(QRectF(0, 0, std::round(GetSplitX()), height()));
        painter.fillRect(rect(), palette().color(QPalette::Window));
        DrawLayer(painter, m_original);
        painter.restore();
        DrawSplitLine(painter);
        DrawTag(painter, tr("Edited"), Qt::AlignRight);
    }
    if (NeedsOriginal())
        DrawTag(painter, tr("Original"), Qt::AlignLeft);
    if (hasFocus() && m_showsFocus) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace LumetraEditor
