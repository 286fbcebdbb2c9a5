// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canvas/ViewTransform.h"

#include <QColor>
#include <QImage>
#include <QWidget>

namespace LumetraEditor {

/// A rendered picture of a part of the photo.
struct CanvasFrame
{
    QImage image; ///< RGB32, or premultiplied ARGB32
    QRect part;   ///< in photo pixels
    /// Marks over the image, of the same size; null when there are none.
    QImage clipping = {};
};

/// Shows the photo: fitted, zoomed and panned by pointer and keys, beside its original where that
/// is asked for. It renders nothing: viewChanged() tells which part is in view, and frames come in.
/// The last frames are shown until a sharp one has come.
class PhotoCanvas : public QWidget
{
    Q_OBJECT

public:
    /// Edited: with the open edit. Original: the photo as its file has it.
    enum class Layer
    {
        Edited,
        Original
    };

    explicit PhotoCanvas(QWidget* parent = nullptr);

    /// Begins with a new photo, fitted, without a picture yet; an empty size: none.
    void SetPhotoSize(const QSize& size);
    void SetFrame(Layer layer, const CanvasFrame& frame);
    /// The layer's picture of the part in view; null when none has come yet.
    const CanvasFrame& GetFrame(Layer layer) const { return LayerOf(layer).sharp; }

    const ViewTransform& GetView() const { return m_view; }
    void Fit();
    /// Sets the device pixels per photo pixel; the middle of the canvas stays.
    void SetZoom(double zoom) { ZoomAt(zoom, m_view.GetViewCentre()); }
    /// The next of the zoom steps, see ViewTransform::GetNextStep().
    void ZoomIn() { SetZoom(m_view.GetNextStep(true)); }
    void ZoomOut() { SetZoom(m_view.GetNextStep(false)); }

    /// Shows the original in place of the edit.
    void SetComparing(bool compare);
    bool IsComparing() const { return m_isComparing; }
    /// Shows the original left of a line that can be moved; ends the view side by side.
    void SetSplit(bool split);
    bool IsSplit() const { return m_isSplit; }
    /// Shows the original and the edit beside each other, each in half of the canvas and both at
    /// the same place and zoom; ends the split view.
    void SetSideBySide(bool sideBySide);
    bool IsSideBySide() const { return m_isSideBySide; }
    /// Moves the line to `position`, 0 to 1 of the canvas' width.
    void SetSplitPosition(double position);
    bool NeedsOriginal() const { return m_isComparing || m_isSplit || m_isSideBySide; }

    /// Asks for frames with marks where the picture is clipped, and shows these.
    void SetClippingShown(bool isShown);
    bool IsClippingShown() const { return m_isClippingShown; }
    /// Sets the colour around the photo; an invalid one is that of the theme.
    void SetBackground(const QColor& colour);

    QSize sizeHint() const override;

signals:
    /// The view needs a frame: of another part, another size in pixels, or another photo.
    void viewChanged();
    void zoomChanged(double zoom);
    /// NeedsOriginal() has changed.
    void originalNeeded(bool needed);
    /// IsClippingShown() has changed.
    void clippingChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct LayerFrames
    {
        CanvasFrame sharp; ///< the part that was in view
        CanvasFrame whole; ///< the last one of the whole photo
    };
    enum class Drag
    {
        None,
        Pan,
        Split
    };

    const LayerFrames& LayerOf(Layer layer) const
    {
        return layer == Layer::Edited ? m_edited : m_original;
    }
    void ZoomAt(double zoom, const QPointF& anchor);
    bool PanBy(const QPointF& delta);
    bool PanByKey(int key);
    bool HandleViewKey(int key);
    double GetSplitX() const { return m_splitPosition * width(); }
    bool IsAtSplitLine(const QPointF& position) const;
    void UpdateCursor(const QPointF& position);
    void ChangeNeeds(bool& flag, bool value);
    void AnnounceView();
    /// The places of the photo on the canvas: one, or two side by side, of one size.
    QRect GetFirstPlace() const;
    QRect GetSecondPlace() const;
    void ArrangePlaces();
    /// A position on the canvas as one in the view, whichever place of the photo it is in.
    QPointF ToPlace(const QPointF& position) const;

    void DrawLayer(QPainter& painter, const LayerFrames& frames) const;
    void DrawFrame(QPainter& painter, const CanvasFrame& frame) const;
    void DrawImage(QPainter& painter, const QImage& image, const QRect& part) const;
    void DrawPlace(QPainter& painter, const QRect& place, const LayerFrames& frames) const;
    void DrawSplit(QPainter& painter) const;
    void DrawTags(QPainter& painter) const;
    QColor GetBackground() const;

    ViewTransform m_view;
    LayerFrames m_edited;
    LayerFrames m_original;
    bool m_showsFocus = false; ///< true: the focus came by the keyboard
    bool m_isComparing = false;
    bool m_isSplit = false;
    bool m_isSideBySide = false;
    bool m_isClippingShown = false;
    QColor m_background; ///< invalid: that of the theme
    double m_splitPosition = 0.5;
    Drag m_drag = Drag::None;
    QPointF m_dragPosition;
};

} // namespace LumetraEditor
