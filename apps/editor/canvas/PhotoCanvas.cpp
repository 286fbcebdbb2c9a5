// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/PhotoCanvas.h"

#include "canvas/CanvasMarks.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace LumetraEditor {
namespace {

constexpr double WheelStep = 1.2; // one notch
constexpr double KeyPan = 64;     // view coordinates
constexpr int PlaceGap = 2;       // between photos side by side
constexpr double SplitKeyStep = 0.02;
constexpr double SplitReach = 8; // to both sides of the line, view coordinates
constexpr int AngleOfNotch = 120;

/// True where single pixels are looked for and come out in one size: smoothing would blur them.
bool ShowsSinglePixels(double zoom)
{
    constexpr double small = 0.01;
    return zoom >= 3 || (zoom > 2 - small && std::abs(zoom - std::round(zoom)) < small);
}

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
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Photo"));
    ArrangePlaces();
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

void PhotoCanvas::SetSplit(bool split)
{
    if (split)
        SetSideBySide(false);
    ChangeNeeds(m_isSplit, split);
}

void PhotoCanvas::SetSideBySide(bool sideBySide)
{
    if (sideBySide)
        SetSplit(false);
    if (m_isSideBySide == sideBySide)
        return;
    ChangeNeeds(m_isSideBySide, sideBySide);
    ArrangePlaces();
    AnnounceView();
}

void PhotoCanvas::SetClippingShown(bool isShown)
{
    if (std::exchange(m_isClippingShown, isShown) == isShown)
        return;
    update();
    emit clippingChanged();
}

void PhotoCanvas::SetBackground(const QColor& colour)
{
    m_background = colour;
    update();
}

QColor PhotoCanvas::GetBackground() const
{
    return m_background.isValid() ? m_background : palette().color(QPalette::Window);
}

// The places of the photo

QRect PhotoCanvas::GetFirstPlace() const
{
    return m_isSideBySide ? QRect(0, 0, std::max(1, (width() - PlaceGap) / 2), height()) : rect();
}

QRect PhotoCanvas::GetSecondPlace() const
{
    const QRect first = GetFirstPlace();
    return m_isSideBySide ? first.translated(width() - first.width(), 0) : first;
}

void PhotoCanvas::ArrangePlaces()
{
    m_view.SetViewSize(GetFirstPlace().size(), devicePixelRatioF());
}

QPointF PhotoCanvas::ToPlace(const QPointF& position) const
{
    const QRect second = GetSecondPlace();
    return position.x() < second.left() ? position : position - second.topLeft();
}

void PhotoCanvas::SetSplitPosition(double position)
{
    m_splitPosition = std::clamp(position, 0.0, 1.0);
    update();
}

void PhotoCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ArrangePlaces();
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
        ZoomAt(m_view.GetZoom() * std::pow(WheelStep, notches), ToPlace(event->position()));
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
        ZoomAt(1, ToPlace(event->localPos()));
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
    case Qt::Key_2:
    case Qt::Key_4:
        SetZoom(key - Qt::Key_0);
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

/// Paints the image over its part of the photo. Where pixels of the screen are whole numbers of the
/// photo's, or the other way round, nothing is blurred.
void PhotoCanvas::DrawImage(QPainter& painter, const QImage& image, const QRect& part) const
{
    QRectF target = m_view.ToView(QRectF(part));
    const double ratio = devicePixelRatioF();
    const QSizeF screen = target.size() * ratio;
    const QPointF corner = target.topLeft() * ratio;
    const QPointF onPixels = QPointF(std::round(corner.x()), std::round(corner.y())) / ratio;
    if (std::abs(screen.width() - image.width()) < 1 &&
        std::abs(screen.height() - image.height()) < 1) {
        QImage sharp = image;
        sharp.setDevicePixelRatio(ratio);
        painter.drawImage(onPixels, sharp);
        return;
    }
    const bool hasAllPixels = image.width() >= part.width();
    const bool showsPixels = hasAllPixels && ShowsSinglePixels(m_view.GetZoom());
    if (showsPixels)
        target.moveTopLeft(onPixels);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !showsPixels);
    painter.drawImage(target, image);
}

void PhotoCanvas::DrawFrame(QPainter& painter, const CanvasFrame& frame) const
{
    if (frame.image.isNull())
        return;
    DrawImage(painter, frame.image, frame.part);
    if (m_isClippingShown && !frame.clipping.isNull())
        DrawImage(painter, frame.clipping, frame.part);
}

void PhotoCanvas::DrawLayer(QPainter& painter, const LayerFrames& frames) const
{
    if (!frames.sharp.part.contains(m_view.GetVisiblePart()))
        DrawFrame(painter, frames.whole);
    DrawFrame(painter, frames.sharp);
}

/// Paints a layer into its place, and nothing beside it.
void PhotoCanvas::DrawPlace(QPainter& painter, const QRect& place, const LayerFrames& frames) const
{
    const double ratio = devicePixelRatioF();
    painter.save();
    painter.setClipRect(place);
    painter.translate(std::round(place.left() * ratio) / ratio, 0); // onto a pixel of the screen
    DrawLayer(painter, frames);
    painter.restore();
}

void PhotoCanvas::DrawSplit(QPainter& painter) const
{
    const double line = std::round(GetSplitX());
    painter.save();
    painter.setClipRect(QRectF(0, 0, line, height()));
    painter.fillRect(rect(), GetBackground());
    DrawLayer(painter, m_original);
    painter.restore();
    CanvasMarks::DrawSplitLine(painter, line, height());
}

void PhotoCanvas::DrawTags(QPainter& painter) const
{
    if (NeedsOriginal())
        CanvasMarks::DrawTag(painter, tr("Original"), GetFirstPlace(), Qt::AlignLeft);
    if ((m_isSplit || m_isSideBySide) && !m_isComparing)
        CanvasMarks::DrawTag(painter, tr("Edited"), GetSecondPlace(), Qt::AlignRight);
}

void PhotoCanvas::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), GetBackground());
    if (!m_view.HasPhoto())
        return;
    const bool hasOriginal = !m_original.sharp.image.isNull();
    const LayerFrames& shown = m_isComparing && hasOriginal ? m_original : m_edited;
    if (m_isSideBySide)
        DrawPlace(painter, GetFirstPlace(), m_original);
    DrawPlace(painter, GetSecondPlace(), shown);
    if (m_isSplit && !m_isComparing)
        DrawSplit(painter);
    DrawTags(painter);
    if (hasFocus() && m_showsFocus) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace LumetraEditor
