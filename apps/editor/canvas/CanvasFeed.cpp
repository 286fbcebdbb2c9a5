// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/CanvasFeed.h"

#include "canvas/ClippingMarks.h"
#include "session/Editor.h"
#include "workspace/WorkspaceController.h"

namespace LumetraEditor {
namespace {

using LumetraHost::LiveView;
using LumetraHost::ViewFrame;

/// Converts to the format of the window's own memory, so that painting only copies.
QImage ForScreen(const QImage& image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

CanvasFeed::CanvasFeed(Editor& editor, PhotoCanvas& canvas, QObject* parent)
    : QObject(parent), m_editor(editor), m_canvas(canvas),
      m_view(editor.GetHost().GetDrawer(), this)
{
    m_view.SetDisplay(editor.GetDisplay());
    connect(&editor, &Editor::photoChanged, this, &CanvasFeed::TakePhoto);
    connect(&editor, &Editor::shownOnTopChanged, this,
            [this] { m_view.SetShownOnTop(m_editor.GetShownOnTop()); });
    connect(&canvas, &PhotoCanvas::viewChanged, this, &CanvasFeed::RequestView);
    connect(&editor, &Editor::displayChanged, this,
            [this] { m_view.SetDisplay(m_editor.GetDisplay()); });
    connect(&canvas, &PhotoCanvas::originalNeeded, this, [this](bool isNeeded) {
        m_view.SetNeedsOriginal(isNeeded);
        ShowOriginal();
    });
    connect(&canvas, &PhotoCanvas::clippingChanged, this, [this] { ShowFrame(m_view.GetFrame()); });
    connect(&m_view, &LiveView::frameReady, this, &CanvasFeed::ShowFrame);
    connect(&m_view, &LiveView::renderingFailed, &editor, &Editor::messageGiven);
}

void CanvasFeed::TakePhoto()
{
    const auto& image = m_editor.GetPhoto().image;
    m_canvas.SetPhotoSize({image.GetWidth(), image.GetHeight()});
}

void CanvasFeed::RequestView()
{
    const QRect part = m_canvas.GetView().GetVisiblePart();
    if (!part.isEmpty())
        m_view.SetView({QRectF(part), m_canvas.GetView().GetScreenSize(part)});
}

void CanvasFeed::ShowFrame(const ViewFrame& frame)
{
    const QRect photo(QPoint(0, 0), m_canvas.GetView().GetPhotoSize());
    if (frame.picture.IsNull() || !photo.contains(frame.part))
        return;
    m_canvas.SetFrame(PhotoCanvas::Layer::Edited,
                      {ForScreen(frame.ToQImage()), frame.part, DrawClipping(frame.picture)});
    ShowOriginal();
}

/// The marks are those of the photo's own values, whatever the monitor makes of them.
QImage CanvasFeed::DrawClipping(const LumetraHost::Image& picture) const
{
    return m_canvas.IsClippingShown() ? ClippingMarks::Draw(picture) : QImage();
}

void CanvasFeed::ShowOriginal()
{
    const ViewFrame& frame = m_view.GetFrame();
    if (!m_canvas.NeedsOriginal() || frame.picture.IsNull())
        return;
    const QImage original = ViewFrame::WrapImage(m_view.GetShownOriginal(), frame.isOpaque);
    if (original.isNull())
        return; // a frame with the original is on its way
    m_canvas.SetFrame(PhotoCanvas::Layer::Original,
                      {ForScreen(original), frame.part, DrawClipping(m_view.GetOriginal())});
}

} // namespace LumetraEditor
