// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/Decoders.h"

#include "photo/file/PhotoLimits.h"

#include "storage/FailWith.h"

#include <memory>

#include <webp/decode.h>
#include <webp/demux.h>

namespace LumetraHost {
namespace {

void CheckHeader(const Bytes& content, const std::string& name)
{
    WebPBitstreamFeatures features;
    const VP8StatusCode status = WebPGetFeatures(content.data(), content.size(), &features);
    if (status == VP8_STATUS_NOT_ENOUGH_DATA)
        FailWith(name + ": the file ends before its picture does: expected a WebP header");
    if (status != VP8_STATUS_OK)
        FailWith(name + ": the WebP data cannot be read: the header is damaged");
    PhotoLimits::Check(name, static_cast<std::uint64_t>(features.width),
                       static_cast<std::uint64_t>(features.height));
    if (features.has_animation)
        FailWith(name + ": expected a still picture, found a WebP animation");
}

using Demuxer = std::unique_ptr<WebPDemuxer, void (*)(WebPDemuxer*)>;

QByteArray GetChunk(const WebPDemuxer* demuxer, const char* kind)
{
    WebPChunkIterator chunk;
    if (!demuxer || !WebPDemuxGetChunk(demuxer, kind, 1, &chunk))
        return {};
    const QByteArray bytes(reinterpret_cast<const char*>(chunk.chunk.bytes),
                           static_cast<int>(chunk.chunk.size));
    WebPDemuxReleaseChunkIterator(&chunk);
    return bytes;
}

/// Takes off the prefix that such a block has in JPEG files; some programs write it here too.
QByteArray WithoutJpegPrefix(const QByteArray& exif)
{
    const QByteArray prefix("Exif\0\0", 6);
    return exif.startsWith(prefix) ? exif.mid(prefix.size()) : exif;
}

Image ReadPixels(const Bytes& content, const std::string& name)
{
    int width = 0;
    int height = 0;
    WebPGetInfo(content.data(), content.size(), &width, &height);
    Image pixels = Image::AllocateUninitialised(width, height, Image::Depth::Bits8);
    if (!WebPDecodeRGBAInto(content.data(), content.size(), pixels.Row(0), pixels.GetByteCount(),
                            static_cast<int>(pixels.GetStride())))
        FailWith(name + ": the WebP data cannot be read; the file may be truncated");
    return pixels;
}

} // namespace

DecodedPhoto DecodeWebp(const Bytes& content, const std::string& name)
{
    CheckHeader(content, name);
    const WebPData data{content.data(), content.size()};
    const Demuxer demuxer(WebPDemux(&data), WebPDemuxDelete);
    DecodedPhoto photo;
    photo.pixels = ReadPixels(content, name);
    photo.iccProfile = GetChunk(demuxer.get(), "ICCP");
    photo.exif = WithoutJpegPrefix(GetChunk(demuxer.get(), "EXIF"));
    photo.xmp = GetChunk(demuxer.get(), "XMP ");
    photo.hasOwnMetadata = true;
    return photo;
}

} // namespace LumetraHost
