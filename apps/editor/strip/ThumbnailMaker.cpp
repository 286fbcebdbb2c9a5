// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/ThumbnailMaker.h"

#include "drawer/view/DisplayTransform.h"
#include "drawer/view/ViewFrame.h"
#include "edits/EditSearch.h"
#include "engine/run/Renderer.h"
#include "engine/run/WholePicture.h"
#include "image/Resize.h"
#include "photo/EmbeddedPreview.h"
#include "photo/PhotoReader.h"

#include <algorithm>
#include <exception>
#include <optional>

namespace LumetraEditor {
namespace {

using LumetraHost::CancelToken;
using LumetraHost::EditLayer;
using LumetraHost::EmbeddedPreview;
using LumetraHost::Image;
using LumetraHost::PictureArea;
using LumetraHost::RenderOptions;

/// A small picture of the whole photo, and the photo's own size.
struct SmallPhoto
{
    Image picture;
    QSize photo;
};

/// The layers that show on the photo, lowest first.
std::vector<EditLayer> FindLayers(const QString& path)
{
    const auto identity = LumetraHost::PhotoIdentity::Of(path);
    const LumetraHost::EditSearch search(path, identity);
    std::vector<EditLayer> shown;
    if (search.GetFound())
        for (const EditLayer& layer : search.GetFound()->edit.state.layers)
            if (layer.isOn && !layer.settings->Effects().empty())
                shown.push_back(layer);
    return shown;
}

Image Shrink(const Image& picture, const QSize& size)
{
    const QSize whole(picture.GetWidth(), picture.GetHeight());
    if (whole.width() <= size.width() && whole.height() <= size.height())
        return picture;
    const QSize fitted = whole.scaled(size, Qt::KeepAspectRatio).expandedTo({1, 1});
    return LumetraHost::Resize(picture, {0, 0, whole.width(), whole.height()}, fitted.width(),
                               fitted.height(), LumetraHost::ResizeQuality::Fine);
}

/// Reads a picture that is at least as large as the place for it, where the photo is.
SmallPhoto ReadSmall(const ThumbnailRequest& request)
{
    const int longest = std::max(request.size.width(), request.size.height());
    if (const auto preview = EmbeddedPreview::Read(request.path, longest))
        return {Shrink(preview->image, request.size), {preview->photoWidth, preview->photoHeight}};
    const Image image = LumetraHost::PhotoReader::ReadReduced(request.path, longest).image;
    return {Shrink(image, request.size), {image.GetWidth(), image.GetHeight()}};
}

PictureArea MakeArea(const SmallPhoto& small)
{
    auto area = PictureArea::Whole(small.photo.width(), small.photo.height());
    area.scaleX = area.pictureWidth / small.picture.GetWidth();
    area.scaleY = area.pictureHeight / small.picture.GetHeight();
    return area;
}

/// Draws on one core, so that what the user looks at keeps the others.
Image DrawLayers(const SmallPhoto& small, const std::vector<EditLayer>& layers,
                 const CancelToken& cancel)
{
    const LumetraHost::Renderer renderer;
    RenderOptions options;
    options.threads = 1;
    options.area = MakeArea(small);
    options.cancel = &cancel;
    auto whole = LumetraHost::WholePicture::OfPhoto(small.picture);
    Image picture = small.picture;
    for (const EditLayer& layer : layers) {
        options.facts = whole;
        picture = renderer.Render(picture, *layer.settings, options);
        if (picture.IsNull())
            break;
        whole = whole->With(layer.settings->Effects(), layer.settings->GetBlendAmount());
    }
    return picture;
}

QImage ToScreen(const Image& picture, const LumetraHost::DisplayTransform* display)
{
    const Image shown = display ? display->Apply(picture) : LumetraHost::Renderer().ToSrgb(picture);
    const bool isOpaque = picture.IsNull() || picture.IsOpaque();
    return LumetraHost::ViewFrame::WrapImage(shown, isOpaque)
        .convertToFormat(isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
}

} // namespace

Thumbnail ThumbnailMaker::Make(const ThumbnailRequest& request, const CancelToken& cancel)
{
    Thumbnail thumbnail{request.path, request.version, {}, {}, false, {}};
    try {
        const SmallPhoto small = ReadSmall(request);
        const auto layers = FindLayers(request.path);
        thumbnail.isEdited = !layers.empty();
        for (const EditLayer& layer : layers)
            if (!layer.record.preset.empty())
                thumbnail.looks.push_back(
                    {layer.module,
                     QString::fromStdString(layer.settings->Package().GetPresetName()),
                     QString::fromStdString(layer.record.preset)});
        if (!cancel.IsCancelled())
            thumbnail.picture = ToScreen(DrawLayers(small, layers, cancel), request.display.get());
    } catch (const std::exception& problem) {
        thumbnail.picture = {};
        thumbnail.problem = QString::fromUtf8(problem.what());
    }
    return thumbnail;
}

} // namespace LumetraEditor
