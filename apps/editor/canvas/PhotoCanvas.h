// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canvas/ViewTransform.h"

#include <QImage>
#include <QWidget>

namespace LumetraEditor {

/// A rendered picture of a part of the photo.
struct CanvasFrame
{
    QImage image; ///< RGB32, or premultiplied ARGB32
    QRect part;   ///< in photo pixels
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
    void ZoomIn();
    void ZoomOut();

    /// Shows the original in place of the edit.
    void SetComparing(bool compare);
    bool IsComparing() const { return m_isComparing; }
    /// Shows the original left of a line that can be moved.
    void SetSplit(bool split) { ChangeNeeds(m_isSplit, split); }
    bool IsSplit() const { return m_isSplit; }
    /// Moves the line to `position`, 0 to 1 of the canvas' width.
    void SetSplitPosition(double position);
    bool NeedsOriginal() const { return m_isComparing || m_isSplit; }

    QSize sizeHint() const override;

signals:
    /// The view needs a frame: of another part, another size in pixels, or another photo.
    void viewChanged();
    void zoomChanged(double zoom);
    /// NeedsOriginal() has changed.
    void originalNeeded(bool needed);

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

    void DrawLayer(QPainter& painter, const LayerFrames& frames) const;
    void DrawFrame(QPainter& painter, const CanvasFrame& frame) const;
    void DrawSplitLine(QPainter& painter) const;
    void DrawTag(QPainter& painter, const QString& text, Qt::Alignment side) const;

    ViewTransform m_view;
    LayerFrames m_edited;
    LayerFrames m_original;
    bool m_showsFocus = false; ///< true: the focus came by the keyboard
    bool m_isComparing = false;
    bool m_isSplit = false;
    double m_splitPosition = 0.5;
    Drag m_drag = Drag::None;
    QPointF m_dragPosition;
};

} // namespace LumetraEditor
