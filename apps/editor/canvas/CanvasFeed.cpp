// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/CanvasFeed.h"

#include "edit/Editor.h"
#include "engine/Resize.h"
#include "workspace/WorkspaceController.h"

namespace LumetraEditor {
namespace {

QImage ToQImage(const LumetraHost::Image& image)
{
    QImage result(image.GetWidth(), image.GetHeight(), QImage::Format_RGBA8888);
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth() * 4; ++x)
            result.scanLine(y)[x] =
                image.GetDepth() == LumetraHost::Image::Depth::Bits8
                    ? image.Row(y)[x]
                    : static_cast<uchar>((image.Row16(y)[x] * 255U + 32767U) / 65535U);
    return result;
}

} // namespace

CanvasFeed::CanvasFeed(Editor& editor, PhotoCanvas& canvas) : m_editor(editor), m_canvas(canvas)
{
    m_editor.GetHost().GetDrawer().AddObserver(this);
    connect(&editor, &Editor::photoChanged, this, &CanvasFeed::TakePhoto);
    connect(&editor, &Editor::shownOnTopChanged, this, &CanvasFeed::Render);
    connect(&canvas, &PhotoCanvas::viewChanged, this, &CanvasFeed::Render);
    connect(&canvas, &PhotoCanvas::originalNeeded, this, &CanvasFeed::Render);
}

CanvasFeed::~CanvasFeed()
{
    m_editor.GetHost().GetDrawer().RemoveObserver(this);
}

void CanvasFeed::FrameChanged()
{
    Render();
}

void CanvasFeed::TakePhoto()
{
    const auto& image = m_editor.GetPhoto().image;
    m_canvas.SetPhotoSize({image.GetWidth(), image.GetHeight()});
}

void CanvasFeed::Render()
{
    const QRect part = m_canvas.GetView().GetVisiblePart();
    if (part.isEmpty())
        return;
    const QSize size = m_canvas.GetView().GetPictureSize(part);
    auto& drawer = m_editor.GetHost().GetDrawer();
    const auto render = [&](PhotoCanvas::Layer layer, const LumetraHost::Image& image) {
        if (part.right() >= image.GetWidth() || part.bottom() >= image.GetHeight())
            return;
        const LumetraHost::PixelRect area{part.x(), part.y(), part.width(), part.height()};
        m_canvas.SetFrame(layer,
                          {ToQImage(LumetraHost::Resize(image, area, size.width(), size.height(),
                                                        LumetraHost::ResizeQuality::Fine)),
                           part});
    };
    render(PhotoCanvas::Layer::Edited, drawer.Result());
    if (m_canvas.NeedsOriginal())
        render(PhotoCanvas::Layer::Original, drawer.GetPhoto());
    emit frameShown();
}

} // namespace LumetraEditor
