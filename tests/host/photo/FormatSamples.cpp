// SPDX-License-Identifier: GPL-2.0-or-later
#include "FormatSamples.h"

#include "photo/colour/ColorConversion.h"

#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include <libheif/heif.h>
#include <webp/encode.h>
#include <webp/mux.h>

namespace LumetraTest {
namespace {

WebPData Describe(const QByteArray& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
            static_cast<std::size_t>(bytes.size())};
}

void SetChunk(WebPMux* mux, const char* kind, const QByteArray& bytes)
{
    if (bytes.isEmpty())
        return;
    const WebPData data = Describe(bytes);
    EXPECT_EQ(WebPMuxSetChunk(mux, kind, &data, 1), WEBP_MUX_OK);
}

void ExpectOk(const heif_error& error)
{
    ASSERT_EQ(error.code, heif_error_Ok) << error.message;
}

heif_error Append(heif_context*, const void* data, std::size_t size, void* target)
{
    const auto* const bytes = static_cast<const std::uint8_t*>(data);
    auto* const content = static_cast<Bytes*>(target);
    content->insert(content->end(), bytes, bytes + size);
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

heif_image* MakeHeifImage(const Image& image)
{
    heif_image* picture = nullptr;
    ExpectOk(heif_image_create(image.GetWidth(), image.GetHeight(), heif_colorspace_RGB,
                               heif_chroma_interleaved_RGB, &picture));
    ExpectOk(heif_image_add_plane(picture, heif_channel_interleaved, image.GetWidth(),
                                  image.GetHeight(), 8));
    int stride = 0;
    std::uint8_t* const plane = heif_image_get_plane(picture, heif_channel_interleaved, &stride);
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x)
            std::copy_n(image.Row(y) + 4 * x, 3, plane + y * stride + 3 * x);
    return picture;
}

/// Writes a little-endian TIFF file with one directory.
class TiffBuilder
{
public:
    void Add(std::uint16_t tag, std::uint16_t type, std::uint32_t count, const QByteArray& value)
    {
        m_entries.push_back({tag, type, count, value});
    }
    void AddShort(std::uint16_t tag, std::uint16_t value)
    {
        Add(tag, 3, 1, Little<quint16>(value));
    }
    void AddLong(std::uint16_t tag, std::uint32_t value) { Add(tag, 4, 1, Little<quint32>(value)); }
    void AddText(std::uint16_t tag, const char* text)
    {
        const QByteArray bytes(text, static_cast<int>(std::string(text).size()) + 1);
        Add(tag, 2, static_cast<std::uint32_t>(bytes.size()), bytes);
    }
    void AddFractions(std::uint16_t tag, std::uint16_t type, const std::vector<double>& values)
    {
        QByteArray bytes;
        for (const double value : values)
            bytes += Little<qint32>(static_cast<qint32>(value * 10000)) + Little<qint32>(10000);
        Add(tag, type, static_cast<std::uint32_t>(values.size()), bytes);
    }

    /// `strip` is where tag 273 leads.
    QByteArray Build(const QByteArray& strip);

    template <class Value>
    static QByteArray Little(Value value)
    {
        QByteArray bytes(int(sizeof value), '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    }

private:
    struct Entry
    {
        std::uint16_t tag;
        std::uint16_t type;
        std::uint32_t count;
        QByteArray value;
    };

    std::vector<Entry> m_entries;
};

QByteArray TiffBuilder::Build(const QByteArray& strip)
{
    constexpr std::uint16_t stripOffsets = 273;
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry& a, const Entry& b) { return a.tag < b.tag; });
    const auto count = static_cast<quint16>(m_entries.size());
    QByteArray directory = Little<quint16>(count);
    QByteArray values = strip;
    const quint32 valuesAt = 8 + 2 + 12u * count + 4;
    for (const Entry& entry : m_entries) {
        QByteArray field = entry.value;
        if (entry.tag == stripOffsets)
            field = Little<quint32>(valuesAt);
        if (field.size() > 4) {
            const QByteArray value = field;
            field = Little<quint32>(valuesAt + static_cast<quint32>(values.size()));
            values += value + QByteArray(value.size() % 2, '\0');
        }
        directory += Little(entry.tag) + Little(entry.type) + Little(entry.count) +
                     field.leftJustified(4, '\0');
    }
    return QByteArray("II*\0", 4) + Little<quint32>(8) + directory + Little<quint32>(0) + values;
}

QByteArray MakeSensorData(int width, int height, const double (&light)[3])
{
    QByteArray data;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int colour = x % 2 + y % 2; // red, green over green, blue
            data += TiffBuilder::Little(static_cast<quint16>(light[colour] * 65535));
        }
    return data;
}

} // namespace

QByteArray GetSrgb()
{
    return LumetraHost::ColorConversion::GetSrgbProfile();
}

Bytes MakeWebp(const Image& opaque, const QByteArray& exif, const QByteArray& xmp,
               const QByteArray& profile)
{
    std::uint8_t* encoded = nullptr;
    const std::size_t size =
        WebPEncodeLosslessRGBA(opaque.Row(0), opaque.GetWidth(), opaque.GetHeight(),
                               static_cast<int>(opaque.GetStride()), &encoded);
    const WebPData picture{encoded, size};
    WebPMux* const mux = WebPMuxCreate(&picture, 1);
    SetChunk(mux, "EXIF", exif);
    SetChunk(mux, "XMP ", xmp);
    SetChunk(mux, "ICCP", profile);
    WebPData assembled{nullptr, 0};
    EXPECT_EQ(WebPMuxAssemble(mux, &assembled), WEBP_MUX_OK);
    const Bytes content(assembled.bytes, assembled.bytes + assembled.size);
    WebPDataClear(&assembled);
    WebPMuxDelete(mux);
    WebPFree(encoded);
    return content;
}

Bytes MakeWebpHeader(int width, int height)
{
    const std::string head("RIFF\x16\0\0\0WEBPVP8X\x0A\0\0\0\0\0\0\0", 24);
    Bytes content(head.begin(), head.end());
    for (const int side : {width - 1, height - 1})
        for (int shift = 0; shift < 24; shift += 8)
            content.push_back(static_cast<std::uint8_t>(side >> shift));
    return content;
}

Bytes MakeHeif(const Image& opaque, int orientation, const QByteArray& exif)
{
    heif_context* const context = heif_context_alloc();
    heif_encoder* encoder = nullptr;
    ExpectOk(heif_context_get_encoder_for_format(context, heif_compression_HEVC, &encoder));
    heif_encoder_set_lossy_quality(encoder, 100);
    heif_image* const picture = MakeHeifImage(opaque);
    heif_encoding_options* const options = heif_encoding_options_alloc();
    options->image_orientation = static_cast<heif_orientation>(orientation);
    heif_image_handle* handle = nullptr;
    ExpectOk(heif_context_encode_image(context, picture, encoder, options, &handle));
    if (!exif.isEmpty())
        ExpectOk(heif_context_add_exif_metadata(context, handle, exif.constData(), exif.size()));
    Bytes content;
    heif_writer writer{1, Append};
    ExpectOk(heif_context_write(context, &writer, &content));
    heif_image_handle_release(handle);
    heif_encoding_options_free(options);
    heif_image_release(picture);
    heif_encoder_release(encoder);
    heif_context_free(context);
    return content;
}

void SetHeifSize(Bytes& heif, std::uint32_t width, std::uint32_t height)
{
    const std::string box = "ispe";
    for (auto found = std::search(heif.begin(), heif.end(), box.begin(), box.end());
         found != heif.end(); found = std::search(found + 1, heif.end(), box.begin(), box.end())) {
        qToBigEndian(width, &*found + 8);
        qToBigEndian(height, &*found + 12);
    }
}

Bytes MakeDng(int width, int height, const double (&light)[3], int orientation)
{
    const QByteArray data = MakeSensorData(width, height, light);
    TiffBuilder builder;
    builder.AddLong(254, 0);
    builder.AddLong(256, static_cast<std::uint32_t>(width));
    builder.AddLong(257, static_cast<std::uint32_t>(height));
    builder.AddShort(258, 16);
    builder.AddShort(259, 1);
    builder.AddShort(262, 32803); // colour filter array
    builder.AddText(271, "Lumetra Works");
    builder.AddText(272, "Model 7");
    builder.AddLong(273, 0);
    builder.AddShort(274, static_cast<std::uint16_t>(orientation));
    builder.AddShort(277, 1);
    builder.AddLong(278, static_cast<std::uint32_t>(height));
    builder.AddLong(279, static_cast<std::uint32_t>(data.size()));
    builder.Add(33421, 3, 2, QByteArray("\2\0\2\0", 4));
    builder.Add(33422, 1, 4, QByteArray("\0\1\1\2", 4));
    builder.Add(50706, 1, 4, QByteArray("\1\4\0\0", 4)); // DNG 1.4
    builder.AddText(50708, "Lumetra Works Model 7");
    builder.AddLong(50717, 65535); // white
    builder.AddFractions(
        50721, 10, {3.2406, -1.5372, -0.4986, -0.9689, 1.8758, 0.0415, 0.0557, -0.2040, 1.0570});
    builder.AddFractions(50728, 5, {1, 1, 1}); // neutral as shot
    builder.AddShort(50778, 21);               // D65
    return ToBytes(builder.Build(data));
}

void SetDngSize(Bytes& dng, std::uint32_t width, std::uint32_t height)
{
    const int count = qFromLittleEndian<quint16>(dng.data() + 8);
    for (int i = 0; i < count; ++i) {
        std::uint8_t* const entry = dng.data() + 10 + 12 * i;
        const auto tag = qFromLittleEndian<quint16>(entry);
        if (tag == 256 || tag == 257)
            qToLittleEndian<quint32>(tag == 256 ? width : height, entry + 8);
    }
}

} // namespace LumetraTest
