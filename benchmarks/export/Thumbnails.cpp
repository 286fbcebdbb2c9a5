// SPDX-License-Identifier: GPL-2.0-or-later
#include "Thumbnails.h"

#include "common/OcioEffects.h"
#include "engine/run/Renderer.h"
#include "image/Resize.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include <algorithm>
#include <functional>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Quindle::EffectsSettings;

/// Every so many looks one is compared.
constexpr std::size_t ComparedStep = 20;

Image Scale(const Image& photo)
{
    const double scale = double(ThumbnailSide) / std::max(photo.GetWidth(), photo.GetHeight());
    return Resize(photo, {0, 0, photo.GetWidth(), photo.GetHeight()}, int(photo.GetWidth() * scale),
                  int(photo.GetHeight() * scale), ResizeQuality::Fine);
}

Image ReadSmall(const QString& path)
{
    return Scale(PhotoReader::ReadReduced(path, ThumbnailSide).image);
}

void StoreBelowEachOther(const std::vector<Image>& pictures, const QString& path)
{
    const int height = pictures.front().GetHeight();
    Photo sheet;
    sheet.image = Image::Allocate(pictures.front().GetWidth(), height * int(pictures.size()),
                                  Image::Depth::Bits8);
    for (int y = 0; y < sheet.image.GetHeight(); ++y) {
        const std::uint8_t* const row = pictures[std::size_t(y / height)].Row(y % height);
        std::copy(row, row + Image::Channels * sheet.image.GetWidth(), sheet.image.Row(y));
    }
    PhotoWriter::Write(path, sheet);
}

void DrawLooks(const QStringList& files, const Looks& looks,
               const std::function<Image(const EffectsSettings&)>& draw)
{
    if (files.size() < 2) {
        ThreadPool::GetShared().ForEach(int(looks.size()), 0,
                                        [&](int i) { draw(looks[std::size_t(i)]); });
        return;
    }
    std::vector<Image> pictures;
    for (std::size_t i = 0; i < looks.size(); i += ComparedStep)
        pictures.push_back(draw(looks[i]));
    StoreBelowEachOther(pictures, files[1]);
}

Image DrawWithOcio(const Image& source, const EffectsSettings& look)
{
    Image target =
        Image::AllocateUninitialised(source.GetWidth(), source.GetHeight(), source.GetDepth());
    OcioEffects(look.Effects(), source.GetDepth()).Draw(source, target);
    return target;
}

} // namespace

void MakeThumbnails(const QStringList& files, const Looks& looks)
{
    const Image small = ReadSmall(files[0]);
    ThreadPool alone(0);
    const Renderer renderer(alone);
    DrawLooks(files, looks,
              [&](const EffectsSettings& look) { return renderer.Render(small, look); });
}

void MakeOcioThumbnails(const QStringList& files, const Looks& looks)
{
    const Image small = ReadSmall(files[0]);
    DrawLooks(files, looks, [&](const EffectsSettings& look) { return DrawWithOcio(small, look); });
}

void MakeWholeOcioThumbnails(const QStringList& files, const Looks& looks)
{
    const Image photo = PhotoReader::Read(files[0]).image;
    DrawLooks(files, looks,
              [&](const EffectsSettings& look) { return Scale(DrawWithOcio(photo, look)); });
}

} // namespace LumetraBench
