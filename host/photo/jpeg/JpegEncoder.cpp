// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/jpeg/JpegEncoder.h"

#include "photo/file/RowWriter.h"
#include "photo/metadata/JpegMetadata.h"

#include "storage/FailWith.h"

#include <csetjmp>
#include <cstdio>
#include <new>

#include <jpeglib.h>

#include <jerror.h>

namespace LumetraHost {
namespace {

/// A photo seldom takes more than this many bytes per pixel. Memory that is not written to costs
/// nothing, while growing would copy.
constexpr std::size_t UsualBytesPerPixel = 1;

/// 255 segments, each of which begins with 14 bytes that say so.
constexpr int LargestProfile = 255 * (JpegSegment::LargestContent - 14);

struct ErrorState
{
    jpeg_error_mgr manager; // first, so that the library's pointer leads here
    std::jmp_buf jump;
    char text[JMSG_LENGTH_MAX];
    bool isOutOfMemory;
};

[[noreturn]] void Leave(j_common_ptr info)
{
    auto* const state = reinterpret_cast<ErrorState*>(info->err);
    info->err->format_message(info, state->text);
    state->isOutOfMemory = info->err->msg_code == JERR_OUT_OF_MEMORY;
    std::longjmp(state->jump, 1);
}

/// Memory into which the library writes the file, a buffer at a time.
struct Destination
{
    jpeg_destination_mgr manager; // first, as above
    Bytes* target;
    JOCTET buffer[1 << 16];
};

void Empty(j_compress_ptr info, std::size_t count)
{
    auto* const destination = reinterpret_cast<Destination*>(info->dest);
    auto* const error = reinterpret_cast<ErrorState*>(info->err);
    try {
        destination->target->insert(destination->target->end(), destination->buffer,
                                    destination->buffer + count);
    } catch (const std::bad_alloc&) {
        error->isOutOfMemory = true; // no exception may cross the C library
    }
    if (error->isOutOfMemory)
        std::longjmp(error->jump, 1);
    destination->manager.next_output_byte = destination->buffer;
    destination->manager.free_in_buffer = sizeof destination->buffer;
}

void OnBegin(j_compress_ptr info)
{
    Empty(info, 0);
}

boolean OnFull(j_compress_ptr info)
{
    Empty(info, sizeof Destination::buffer);
    return TRUE;
}

void OnEnd(j_compress_ptr info)
{
    Empty(info, sizeof Destination::buffer - info->dest->free_in_buffer);
}

ChromaSampling Settle(const EncodingOptions& options)
{
    if (options.sampling != ChromaSampling::Automatic)
        return options.sampling;
    return options.quality >= JpegEncoder::FullColorQuality ? ChromaSampling::Full
                                                            : ChromaSampling::Quarter;
}

/// One compression. The C library leaves by longjmp, so every call into it stands in a step that
/// holds nothing to be destroyed.
class Compression : public RowEncoder
{
public:
    Compression(const PictureForm& form, const std::string& name);
    ~Compression() override { jpeg_destroy_compress(&m_info); }

    void Begin(const EncodingOptions& options, const PhotoMetadata& metadata, Warnings& warnings);

    void Write(const Image& rows, int first, int count) override;
    Bytes Finish() override;

private:
    template <class Step>
    void Guard(const Step& step);

    void Configure(const EncodingOptions& options);
    void WriteSegments(const std::vector<JpegSegment>& segments);
    void WriteProfile(const QByteArray& profile, Warnings& warnings);

    const PictureForm m_form;
    const std::string m_name;
    const bool m_direct;
    Bytes m_row;
    Bytes m_target;
    jpeg_compress_struct m_info{};
    ErrorState m_error{};
    Destination m_destination{};
};

Compression::Compression(const PictureForm& form, const std::string& name)
    : m_form(form), m_name(name), m_direct(form.depth == Image::Depth::Bits8 && form.isOpaque),
      m_row(m_direct ? 0 : 3 * static_cast<std::size_t>(form.width))
{
    m_info.err = jpeg_std_error(&m_error.manager);
    m_error.manager.error_exit = Leave;
    m_destination.manager.init_destination = OnBegin;
    m_destination.manager.empty_output_buffer = OnFull;
    m_destination.manager.term_destination = OnEnd;
    m_destination.target = &m_target;
    m_target.reserve(UsualBytesPerPixel * static_cast<std::size_t>(form.width) *
                     static_cast<std::size_t>(form.height));
}

template <class Step>
void Compression::Guard(const Step& step)
{
    if (setjmp(m_error.jump) != 0) {
        if (m_error.isOutOfMemory)
            throw std::bad_alloc();
        FailWith(m_name + ": cannot be encoded as JPEG: " + m_error.text);
    }
    step();
}

void Compression::Configure(const EncodingOptions& options)
{
    Guard([this, &options] {
        jpeg_create_compress(&m_info);
        m_info.dest = &m_destination.manager;
        m_info.image_width = static_cast<JDIMENSION>(m_form.width);
        m_info.image_height = static_cast<JDIMENSION>(m_form.height);
        m_info.input_components = m_direct ? 4 : 3;
        m_info.in_color_space = m_direct ? JCS_EXT_RGBX : JCS_EXT_RGB;
        jpeg_set_defaults(&m_info);
        jpeg_set_quality(&m_info, options.quality, TRUE);
        const ChromaSampling sampling = Settle(options);
        m_info.comp_info[0].h_samp_factor = sampling == ChromaSampling::Full ? 1 : 2;
        m_info.comp_info[0].v_samp_factor = sampling == ChromaSampling::Quarter ? 2 : 1;
        if (options.isProgressive)
            jpeg_simple_progression(&m_info);
    });
}

void Compression::WriteSegments(const std::vector<JpegSegment>& segments)
{
    Guard([this, &segments] {
        for (const JpegSegment& segment : segments)
            jpeg_write_marker(&m_info, segment.marker,
                              reinterpret_cast<const JOCTET*>(segment.content.constData()),
                              static_cast<unsigned int>(segment.content.size()));
    });
}

void Compression::WriteProfile(const QByteArray& profile, Warnings& warnings)
{
    if (!JpegEncoder::HoldsProfile(profile))
        Warn(warnings, "the colour profile is larger than a JPEG file can hold, which is " +
                           std::to_string(LargestProfile) + " bytes; it is left out");
    if (profile.isEmpty() || !JpegEncoder::HoldsProfile(profile))
        return;
    Guard([this, &profile] {
        jpeg_write_icc_profile(&m_info, reinterpret_cast<const JOCTET*>(profile.constData()),
                               static_cast<unsigned int>(profile.size()));
    });
}

void Compression::Begin(const EncodingOptions& options, const PhotoMetadata& metadata,
                        Warnings& warnings)
{
    if (!m_form.isOpaque)
        Warn(warnings, "JPEG holds no transparency: the picture is laid over white");
    Configure(options);
    Guard([this] { jpeg_start_compress(&m_info, TRUE); });
    WriteSegments(JpegMetadata::Make(metadata, warnings));
    WriteProfile(metadata.iccProfile, warnings);
}

void Compression::Write(const Image& rows, int first, int count)
{
    Guard([&, this] {
        for (int y = first; y < first + count; ++y) {
            auto* row = const_cast<JSAMPROW>(rows.Row(y)); // only read
            if (!m_direct) {
                row = m_row.data();
                FlattenRow8(rows, y, row);
            }
            jpeg_write_scanlines(&m_info, &row, 1);
        }
    });
}

Bytes Compression::Finish()
{
    Guard([this] { jpeg_finish_compress(&m_info); });
    return std::move(m_target);
}

} // namespace

bool JpegEncoder::HoldsProfile(const QByteArray& iccProfile)
{
    return iccProfile.size() <= LargestProfile;
}

std::unique_ptr<RowEncoder> JpegEncoder::Start(const PictureForm& form,
                                               const EncodingOptions& options,
                                               const PhotoMetadata& metadata,
                                               const std::string& name, Warnings& warnings)
{
    auto compression = std::make_unique<Compression>(form, name);
    compression->Begin(options, metadata, warnings);
    return compression;
}

} // namespace LumetraHost
