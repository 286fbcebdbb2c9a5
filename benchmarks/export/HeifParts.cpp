// SPDX-License-Identifier: GPL-2.0-or-later
#include "HeifParts.h"

#include "common/Pictures.h"
#include "common/Timing.h"
#include "photo/PhotoReader.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include <libheif/heif.h>

namespace LumetraBench {
namespace {

using namespace LumetraHost;

constexpr int Rounds = 5;

template <auto Destroy>
struct Deleter
{
    template <class Handle>
    void operator()(Handle* handle) const
    {
        Destroy(handle);
    }
};

using Context = std::unique_ptr<heif_context, Deleter<heif_context_free>>;
using Encoder = std::unique_ptr<heif_encoder, Deleter<heif_encoder_release>>;
using Handle = std::unique_ptr<heif_image_handle, Deleter<heif_image_handle_release>>;
using Picture = std::unique_ptr<heif_image, Deleter<heif_image_release>>;

void Check(const heif_error& error)
{
    if (error.code != heif_error_Ok)
        throw std::runtime_error(std::string("libheif: ") + error.message);
}

Picture MakePicture(const Image& photo)
{
    heif_image* image = nullptr;
    Check(heif_image_create(photo.GetWidth(), photo.GetHeight(), heif_colorspace_RGB,
                            heif_chroma_interleaved_RGBA, &image));
    Picture picture(image);
    Check(heif_image_add_plane(image, heif_channel_interleaved, photo.GetWidth(), photo.GetHeight(),
                               8));
    int stride = 0;
    std::uint8_t* const plane = heif_image_get_plane(image, heif_channel_interleaved, &stride);
    for (int y = 0; y < photo.GetHeight(); ++y)
        std::memcpy(plane + std::ptrdiff_t{y} * stride, photo.Row(y),
                    static_cast<std::size_t>(photo.GetWidth()) * photo.GetBytesPerPixel());
    return picture;
}

heif_error Append(heif_context*, const void* data, std::size_t size, void* content)
{
    const auto* const bytes = static_cast<const std::uint8_t*>(data);
    auto& target = *static_cast<Bytes*>(content);
    target.insert(target.end(), bytes, bytes + size);
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

/// Empty where libheif cannot encode.
Bytes MakeHeic(const Image& photo)
{
    const Context context(heif_context_alloc());
    heif_encoder* found = nullptr;
    if (heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &found).code !=
        heif_error_Ok)
        return {};
    const Encoder encoder(found);
    heif_encoder_set_lossy_quality(found, 85);
    heif_encoder_set_parameter_string(found, "preset", "ultrafast");
    Check(heif_context_encode_image(context.get(), MakePicture(photo).get(), found, nullptr,
                                    nullptr));
    heif_writer writer{1, Append};
    Bytes content;
    Check(heif_context_write(context.get(), &writer, &content));
    return content;
}

void DecodeWithLibheif(const Bytes& content)
{
    const Context context(heif_context_alloc());
    Check(heif_context_read_from_memory_without_copy(context.get(), content.data(), content.size(),
                                                     nullptr));
    heif_image_handle* handle = nullptr;
    Check(heif_context_get_primary_image_handle(context.get(), &handle));
    const Handle owner(handle);
    heif_image* image = nullptr;
    Check(heif_decode_image(handle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA,
                            nullptr));
    const Picture picture(image);
}

double Measure(const std::function<void()>& step)
{
    const double begin = GetMilliseconds(CLOCK_MONOTONIC);
    step();
    return GetMilliseconds(CLOCK_MONOTONIC) - begin;
}

} // namespace

QJsonObject MeasureHeifParts(bool isQuick)
{
    const int width = isQuick ? 600 : 4896;
    const Image photo = MakePhoto(width, width * 2 / 3, Image::Depth::Bits8);
    const Bytes content = MakeHeic(photo);
    if (content.empty())
        return {};
    double libheif = 1e9;
    double ours = 1e9;
    for (int round = 0; round < (isQuick ? 1 : Rounds); ++round) {
        libheif = std::min(libheif, Measure([&] { DecodeWithLibheif(content); }));
        ours = std::min(ours, Measure([&] { PhotoReader::Decode(content, "heic"); }));
    }
    return {{QStringLiteral("megapixels"), 1e-6 * photo.GetWidth() * photo.GetHeight()},
            {QStringLiteral("libheifMs"), libheif},
            {QStringLiteral("readMs"), ours},
            {QStringLiteral("ratio"), ours / libheif}};
}

void PrintHeifParts(const QJsonObject& parts)
{
    if (parts.isEmpty()) {
        std::printf("HEIC: libheif cannot encode here\n");
        return;
    }
    const auto get = [&parts](const char* key) { return parts[QLatin1String(key)].toDouble(); };
    std::printf("HEIC of %.1f megapixels: read %.1f ms, libheif alone %.1f ms, ratio %.2f, wanted "
                "at most 1.2: %s\n",
                get("megapixels"), get("readMs"), get("libheifMs"), get("ratio"),
                get("ratio") <= 1.2 ? "met" : "NOT met");
}

} // namespace LumetraBench
