// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/formats/WebpEncoder.h"

#include "image/DepthConversion.h"
#include "photo/metadata/MetadataWriter.h"
#include "storage/FailWith.h"

#include <algorithm>
#include <new>

#include <webp/encode.h>
#include <webp/mux.h>

namespace LumetraHost {
namespace {

/// Between 0, the fastest, and 9, the smallest files.
constexpr int LosslessEffort = 3;

/// The picture in the codec's hands.
struct Picture : WebPPicture
{
    explicit Picture(const std::string& name)
    {
        if (!WebPPictureInit(this))
            FailWith(name + ": cannot be encoded as WebP: the codec is of another version");
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    ~Picture() { WebPPictureFree(this); }
};

/// The encoded pixels in the codec's memory.
struct Pixels : WebPMemoryWriter
{
    Pixels() { WebPMemoryWriterInit(this); }
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;
    ~Pixels() { WebPMemoryWriterClear(this); }
};

WebPConfig MakeConfig(const EncodingOptions& options, const std::string& name)
{
    WebPConfig config;
    bool isSound = WebPConfigInit(&config) != 0;
    config.quality = static_cast<float>(options.quality);
    if (options.isLossless) {
        isSound = isSound && WebPConfigLosslessPreset(&config, LosslessEffort) != 0;
        config.exact = 1; // keeps the colours of pixels that cannot be seen
    }
    if (!isSound || !WebPValidateConfig(&config))
        FailWith(name + ": cannot be encoded as WebP: the codec takes no such options");
    return config;
}

std::uint32_t Pack(const std::uint8_t* rgba)
{
    return std::uint32_t(rgba[3]) << 24 | std::uint32_t(rgba[0]) << 16 |
           std::uint32_t(rgba[1]) << 8 | std::uint32_t(rgba[2]);
}

int AskWhetherItGoesOn(int percent, const WebPPicture* picture)
{
    const auto& goesOn = *static_cast<const GoesOn*>(picture->user_data);
    return !goesOn || goesOn(percent) ? 1 : 0;
}

class Encoding : public RowEncoder
{
public:
    Encoding(const PictureForm& form, const EncodingOptions& options, const PhotoMetadata& metadata,
             const std::string& name, const GoesOn& goesOn);

    void Write(const Image& rows, int first, int count) override;
    Bytes Finish() override;

private:
    void AddRow(const std::uint8_t* rgba);
    [[noreturn]] void FailToEncode() const;
    Bytes Assemble(const Pixels& pixels) const;

    const PhotoMetadata m_metadata;
    const std::string m_name;
    const WebPConfig m_config;
    GoesOn m_goesOn;
    std::unique_ptr<Picture> m_picture;
    Image m_narrow; ///< one row, where rows have 16 bits
    int m_rows = 0;
};

Encoding::Encoding(const PictureForm& form, const EncodingOptions& options,
                   const PhotoMetadata& metadata, const std::string& name, const GoesOn& goesOn)
    : m_metadata(metadata), m_name(name), m_config(MakeConfig(options, name)), m_goesOn(goesOn),
      m_picture(std::make_unique<Picture>(name))
{
    m_picture->width = form.width;
    m_picture->height = form.height;
    m_picture->use_argb = 1;
    m_picture->progress_hook = AskWhetherItGoesOn;
    m_picture->user_data = &m_goesOn;
    if (!WebPPictureAlloc(m_picture.get()))
        throw std::bad_alloc();
    if (form.depth == Image::Depth::Bits16)
        m_narrow = Image::AllocateUninitialised(form.width, 1, Image::Depth::Bits8);
}

void Encoding::AddRow(const std::uint8_t* rgba)
{
    std::uint32_t* const target =
        m_picture->argb + static_cast<std::ptrdiff_t>(m_picture->argb_stride) * m_rows++;
    for (int x = 0; x < m_picture->width; ++x)
        target[x] = Pack(rgba + Image::Channels * x);
}

void Encoding::Write(const Image& rows, int first, int count)
{
    for (int y = first; y < first + count; ++y) {
        if (!m_narrow.IsNull())
            CopyRows(rows, y, m_narrow, 0, 1);
        AddRow(m_narrow.IsNull() ? rows.Row(y) : m_narrow.Row(0));
    }
}

void Encoding::FailToEncode() const
{
    const WebPEncodingError error = m_picture->error_code;
    if (error == VP8_ENC_ERROR_OUT_OF_MEMORY || error == VP8_ENC_ERROR_BITSTREAM_OUT_OF_MEMORY)
        throw std::bad_alloc();
    const bool isTooLarge = error == VP8_ENC_ERROR_PARTITION0_OVERFLOW ||
                            error == VP8_ENC_ERROR_PARTITION_OVERFLOW ||
                            error == VP8_ENC_ERROR_FILE_TOO_BIG;
    FailWith(m_name + ": " +
             (isTooLarge
                  ? "the picture is too large for WebP at this quality"
                  : "cannot be encoded as WebP: error " + std::to_string(error) + " of the codec"));
}

Bytes Encoding::Finish()
{
    Pixels pixels;
    m_picture->writer = WebPMemoryWrite;
    m_picture->custom_ptr = &pixels;
    const bool isEncoded = WebPEncode(&m_config, m_picture.get()) != 0;
    if (!isEncoded && m_picture->error_code == VP8_ENC_ERROR_USER_ABORT)
        return {};
    if (!isEncoded)
        FailToEncode();
    m_picture.reset();
    return Assemble(pixels);
}

/// The file with the blocks around its pixels.
Bytes Encoding::Assemble(const Pixels& pixels) const
{
    const WebPData content{pixels.mem, pixels.size};
    const std::unique_ptr<WebPMux, void (*)(WebPMux*)> mux(WebPMuxCreate(&content, 0),
                                                           WebPMuxDelete);
    const std::pair<const char*, const QByteArray*> blocks[] = {
        {"ICCP", &m_metadata.iccProfile}, {"EXIF", &m_metadata.exif}, {"XMP ", &m_metadata.xmp}};
    bool isSound = mux != nullptr;
    for (const auto& [kind, block] : blocks) {
        const WebPData data{reinterpret_cast<const std::uint8_t*>(block->constData()),
                            static_cast<std::size_t>(block->size())};
        if (!block->isEmpty())
            isSound = isSound && WebPMuxSetChunk(mux.get(), kind, &data, 0) == WEBP_MUX_OK;
    }
    WebPData file{nullptr, 0};
    if (!isSound || WebPMuxAssemble(mux.get(), &file) != WEBP_MUX_OK)
        FailWith(m_name + ": the metadata cannot be put into the WebP file");
    const std::unique_ptr<WebPData, void (*)(WebPData*)> cleared(&file, WebPDataClear);
    return Bytes(file.bytes, file.bytes + file.size);
}

} // namespace

std::unique_ptr<RowEncoder> WebpEncoder::Start(const PictureForm& form,
                                               const EncodingOptions& options,
                                               const PhotoMetadata& metadata,
                                               const std::string& name, Warnings& warnings,
                                               const GoesOn& goesOn)
{
    if (std::max(form.width, form.height) > LargestSide)
        FailWith(name + ": expected at most " + std::to_string(LargestSide) +
                 " pixels along a side, which is all that WebP holds, found " +
                 std::to_string(form.width) + " x " + std::to_string(form.height));
    if (!metadata.iptc.isEmpty())
        Warn(warnings, "WebP holds no IPTC data; they are left out");
    PhotoMetadata joined = metadata;
    joined.xmp = MetadataWriter::JoinXmp(metadata, warnings);
    return std::make_unique<Encoding>(form, options, joined, name, goesOn);
}

} // namespace LumetraHost
