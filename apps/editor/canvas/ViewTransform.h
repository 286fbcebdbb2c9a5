// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

namespace LumetraEditor {

/// The place of the photo on the canvas. Three kinds of coordinates: photo pixels, view coordinates
/// (the widget's own), device pixels. The zoom is device pixels per photo pixel: 1 is 100 %.
///
/// A photo is either fitted, which never enlarges it, or zoomed: between the fitting zoom and
/// MaximumZoom. A photo smaller than the view is centred, a larger one covers it.
class ViewTransform
{
public:
    static constexpr double MaximumZoom = 16;
    /// Space around a fitted photo, in view coordinates.
    static constexpr int Margin = 16;

    /// Begins with a photo of that size, fitted; an empty size: no photo.
    void SetPhotoSize(const QSize& size);
    /// Sets the widget's size; a zoomed photo keeps its centre.
    void SetViewSize(const QSize& size, double devicePixelRatio);

    void Fit();
    /// Zooms; the photo's point under `anchor` (view coordinates) stays there where the limits
    /// allow it.
    void SetZoom(double zoom, const QPointF& anchor);
    /// The zoom to which one press of a button or key leads; GetZoom() at the end of the steps.
    /// Outwards the last step is the fitting zoom.
    double GetNextStep(bool isInwards) const;
    /// Moves the photo by `delta` in view coordinates.
    void Pan(const QPointF& delta);

    bool HasPhoto() const { return !m_photoSize.isEmpty(); }
    bool IsFitted() const { return m_isFitted; }
    double GetZoom() const { return m_zoom; }
    double GetFittingZoom() const;
    const QSize& GetPhotoSize() const { return m_photoSize; }
    QPointF GetViewCentre() const;

    QPointF ToPhoto(const QPointF& view) const;
    QPointF ToView(const QPointF& photo) const;
    QRectF ToView(const QRectF& photo) const;
    /// The photo pixels that are at least partly in view; empty without a photo.
    QRect GetVisiblePart() const;
    /// The device pixels that this part of the photo takes.
    QSize GetScreenSize(const QRect& part) const;

private:
    double GetViewScale() const { return m_zoom / m_devicePixelRatio; }
    void Limit();

    QSize m_photoSize;
    QSize m_viewSize;
    double m_devicePixelRatio = 1;
    bool m_isFitted = true;
    double m_zoom = 1;
    QPointF m_centre; ///< the photo's point in the middle of the view
};

} // namespace LumetraEditor
