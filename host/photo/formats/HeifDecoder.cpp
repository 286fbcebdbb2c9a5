// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/Decoders.h"

#include "photo/colour/ColorConversion.h"
#include "photo/file/PhotoLimits.h"
#include "threads/RowBands.h"

#include "storage/FailWith.h"

#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <libheif/heif.h>

namespace LumetraHost {
namespace {

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
using Handle = std::unique_ptr<heif_image_handle, Deleter<heif_image_handle_release>>;
using Picture = std::unique_ptr<heif_image, Deleter<heif_image_release>>;

class Decoding
{
public:
    explicit Decoding(const std::string& name) : m_name(name), m_context(heif_context_alloc()) {}

    DecodedPhoto Run(const Bytes& content);

private:
    void Check(const heif_error& error) const;
    Image ReadPixels() const;
    QByteArray ReadProfile() const;
    QByteArray ReadBlock(const char* type, const char* contentType) const;

    const std::string& m_name;
    Context m_context;
    Handle m_handle;
};

void Decoding::Check(const heif_error& error) const
{
    if (error.code == heif_error_Ok)
        return;
    if (error.code == heif_error_Memory_allocation_error)
        throw std::bad_alloc();
    std::string text = ": the HEIF data cannot be read: ";
    if (error.code == heif_error_Unsupported_filetype ||
        error.code == heif_error_Unsupported_feature)
        text = ": expected a HEIC or AVIF picture that this system can decode: ";
    FailWith(m_name + text + error.message);
}

/// Spreads values of `bits` over all 16, repeating the upper bits below.
void WidenRow(std::uint16_t* row, int values, int bits)
{
    for (int i = 0; i < values; ++i) {
        const unsigned value = row[i];
        row[i] = static_cast<std::uint16_t>(value << (16 - bits) | value >> (2 * bits - 16));
    }
}

Image Decoding::ReadPixels() const
{
    const int bits = heif_image_handle_get_luma_bits_per_pixel(m_handle.get());
    const bool isDeep = bits > 8;
    heif_image* decoded = nullptr;
    Check(heif_decode_image(m_handle.get(), &decoded, heif_colorspace_RGB,
                            !isDeep                           ? heif_chroma_interleaved_RGBA
                            : Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? heif_chroma_interleaved_RRGGBBAA_LE
                                                              : heif_chroma_interleaved_RRGGBBAA_BE,
                            nullptr));
    const Picture picture(decoded);
    const int width = heif_image_get_width(decoded, heif_channel_interleaved);
    const int height = heif_image_get_height(decoded, heif_channel_interleaved);
    PhotoLimits::Check(m_name, static_cast<std::uint64_t>(width),
                       static_cast<std::uint64_t>(height));
    int stride = 0;
    const std::uint8_t* const plane =
        heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    Image pixels = Image::AllocateUninitialised(
        width, height, isDeep ? Image::Depth::Bits16 : Image::Depth::Bits8);
    ForEachBand(ThreadPool::GetShared(), height, 0, nullptr, [&](int first, int end) {
        for (int y = first; y < end; ++y) {
            std::memcpy(pixels.Row(y), plane + std::ptrdiff_t{y} * stride,
                        static_cast<std::size_t>(width) * pixels.GetBytesPerPixel());
            if (isDeep)
                WidenRow(pixels.Row16(y), width * Image::Channels, bits);
        }
    });
    return pixels;
}

QByteArray Decoding::ReadProfile() const
{
    const std::size_t size = heif_image_handle_get_raw_color_profile_size(m_handle.get());
    if (size > 0) {
        QByteArray profile(static_cast<int>(size), '\0');
        Check(heif_image_handle_get_raw_color_profile(m_handle.get(), profile.data()));
        return profile;
    }
    heif_color_profile_nclx* named = nullptr;
    if (heif_image_handle_get_nclx_color_profile(m_handle.get(), &named).code != heif_error_Ok)
        return {};
    const bool isDisplayP3 = named->color_primaries == heif_color_primaries_SMPTE_EG_432_1;
    heif_nclx_color_profile_free(named);
    return isDisplayP3 ? ColorConversion::GetDisplayP3Profile() : QByteArray();
}

/// The first metadata block of that type; `contentType` null: any.
QByteArray Decoding::ReadBlock(const char* type, const char* contentType) const
{
    const int count = heif_image_handle_get_number_of_metadata_blocks(m_handle.get(), type);
    std::vector<heif_item_id> ids(static_cast<std::size_t>(count));
    heif_image_handle_get_list_of_metadata_block_IDs(m_handle.get(), type, ids.data(), count);
    for (const heif_item_id id : ids) {
        const char* const found = heif_image_handle_get_metadata_content_type(m_handle.get(), id);
        if (contentType && (!found || std::strcmp(found, contentType) != 0))
            continue;
        QByteArray block(static_cast<int>(heif_image_handle_get_metadata_size(m_handle.get(), id)),
                         '\0');
        Check(heif_image_handle_get_metadata(m_handle.get(), id, block.data()));
        return block;
    }
    return {};
}

/// The part after the prefix: the block begins with the distance from there to the TIFF structure.
QByteArray GetTiffPart(const QByteArray& exif)
{
    constexpr int offsetSize = 4;
    if (exif.size() < offsetSize)
        return {};
    const auto* const bytes = reinterpret_cast<const unsigned char*>(exif.constData());
    const std::uint32_t offset = std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
                                 std::uint32_t{bytes[2]} << 8 | bytes[3];
    if (offset >= static_cast<std::uint32_t>(exif.size() - offsetSize))
        return {};
    return exif.mid(offsetSize + static_cast<int>(offset));
}

DecodedPhoto Decoding::Run(const Bytes& content)
{
    Check(heif_context_read_from_memory_without_copy(m_context.get(), content.data(),
                                                     content.size(), nullptr));
    heif_image_handle* handle = nullptr;
    Check(heif_context_get_primary_image_handle(m_context.get(), &handle));
    m_handle.reset(handle);
    PhotoLimits::Check(m_name, static_cast<std::uint64_t>(heif_image_handle_get_width(handle)),
                       static_cast<std::uint64_t>(heif_image_handle_get_height(handle)));
    DecodedPhoto photo;
    photo.pixels = ReadPixels();
    photo.iccProfile = ReadProfile();
    photo.exif = GetTiffPart(ReadBlock("Exif", nullptr));
    photo.xmp = ReadBlock("mime", "application/rdf+xml");
    photo.hasOwnMetadata = true;
    photo.isUpright = true;
    const int count = heif_context_get_number_of_top_level_images(m_context.get());
    if (count > 1)
        Warn(photo.reductions,
             "it has " + std::to_string(count) + " pictures; only the main one is read");
    return photo;
}

} // namespace

DecodedPhoto DecodeHeif(const Bytes& content, const std::string& name)
{
    return Decoding(name).Run(content);
}

} // namespace LumetraHost
