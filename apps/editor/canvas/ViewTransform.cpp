// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/ViewTransform.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace LumetraEditor {
namespace {

/// Shares in which a pixel of the photo is a whole number of the screen's, and some between them.
constexpr double ZoomSteps[] = {0.05, 0.0625, 0.0833, 0.125, 0.1667, 0.25, 0.3333, 0.5, 0.6667,
                                1,    1.5,    2,      3,     4,      6,    8,      12,  16};
constexpr double SameZoom = 0.001; // relative

/// A centre coordinate that leaves no gap beside a photo which is larger than the view.
double LimitCentre(double centre, double photoLength, double viewLength)
{
    if (photoLength <= viewLength)
        return photoLength / 2;
    return std::clamp(centre, viewLength / 2, photoLength - viewLength / 2);
}

} // namespace

void ViewTransform::SetPhotoSize(const QSize& size)
{
    m_photoSize = size;
    Fit();
}

void ViewTransform::SetViewSize(const QSize& size, double devicePixelRatio)
{
    m_viewSize = size;
    m_devicePixelRatio = devicePixelRatio;
    if (m_isFitted || m_zoom <= GetFittingZoom())
        Fit();
    else
        Limit();
}

double ViewTransform::GetFittingZoom() const
{
    if (!HasPhoto())
        return 1;
    const double width = std::max(1, m_viewSize.width() - 2 * Margin) * m_devicePixelRatio;
    const double height = std::max(1, m_viewSize.height() - 2 * Margin) * m_devicePixelRatio;
    return std::min({1.0, width / m_photoSize.width(), height / m_photoSize.height()});
}

void ViewTransform::Fit()
{
    m_isFitted = true;
    m_zoom = GetFittingZoom();
    m_centre = QPointF(m_photoSize.width() / 2.0, m_photoSize.height() / 2.0);
}

void ViewTransform::SetZoom(double zoom, const QPointF& anchor)
{
    if (!HasPhoto())
        return;
    const double fitting = GetFittingZoom();
    // A photo that fits at 100 % can be at 100 % without being fitted.
    if (zoom < fitting || (zoom <= fitting && fitting < 1)) {
        Fit();
        return;
    }
    const QPointF kept = ToPhoto(anchor);
    m_isFitted = false;
    m_zoom = std::min(zoom, MaximumZoom);
    m_centre = kept - (anchor - GetViewCentre()) / GetViewScale();
    Limit();
}

double ViewTransform::GetNextStep(bool isInwards) const
{
    if (isInwards) {
        const auto* const next =
            std::upper_bound(std::begin(ZoomSteps), std::end(ZoomSteps), m_zoom * (1 + SameZoom));
        return next == std::end(ZoomSteps) ? m_zoom : *next;
    }
    const auto* const next =
        std::lower_bound(std::begin(ZoomSteps), std::end(ZoomSteps), m_zoom * (1 - SameZoom));
    return std::max(GetFittingZoom(), next == std::begin(ZoomSteps) ? 0 : *std::prev(next));
}

void ViewTransform::Pan(const QPointF& delta)
{
    m_centre -= delta / GetViewScale();
    Limit();
}

void ViewTransform::Limit()
{
    const double scale = GetViewScale();
    m_centre = {LimitCentre(m_centre.x(), m_photoSize.width(), m_viewSize.width() / scale),
                LimitCentre(m_centre.y(), m_photoSize.height(), m_viewSize.height() / scale)};
}

QPointF ViewTransform::GetViewCentre() const
{
    return {m_viewSize.width() / 2.0, m_viewSize.height() / 2.0};
}

QPointF ViewTransform::ToPhoto(const QPointF& view) const
{
    return m_centre + (view - GetViewCentre()) / GetViewScale();
}

QPointF ViewTransform::ToView(const QPointF& photo) const
{
    return GetViewCentre() + (photo - m_centre) * GetViewScale();
}

QRectF ViewTransform::ToView(const QRectF& photo) const
{
    return {ToView(photo.topLeft()), ToView(photo.bottomRight())};
}

QRect ViewTransform::GetVisiblePart() const
{
    if (!HasPhoto() || m_viewSize.isEmpty())
        return {};
    const QRectF seen(ToPhoto(QPointF(0, 0)),
                      ToPhoto(QPointF(m_viewSize.width(), m_viewSize.height())));
    return seen.toAlignedRect() & QRect(QPoint(0, 0), m_photoSize);
}

QSize ViewTransform::GetScreenSize(const QRect& part) const
{
    const auto length = [this](int pixels) {
        return std::max(1, static_cast<int>(std::lround(pixels * m_zoom)));
    };
    return {length(part.width()), length(part.height())};
}

} // namespace LumetraEditor
