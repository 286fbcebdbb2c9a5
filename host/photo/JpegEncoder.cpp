// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/JpegEncoder.h"

#include "photo/RowWriter.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace LumetraHost {
namespace {

struct ErrorState
{
    jpeg_error_mgr manager; // first, so that the library's pointer leads here
    std::jmp_buf jump;
    char text[JMSG_LENGTH_MAX];
};

[[noreturn]] void Leave(j_common_ptr info)
{
    auto* const state = reinterpret_cast<ErrorState*>(info->err);
    info->err->format_message(info, state->text);
    std::longjmp(state->jump, 1);
}

/// One compression. The C library leaves by longjmp, so every call into it stands in a step that
/// holds nothing to be destroyed.
class Compression
{
public:
    Compression(const Image& image, const std::string& name);
    Compression(const Compression&) = delete;
    Compression& operator=(const Compression&) = delete;
    ~Compression();

    Bytes Run(int quality, const QByteArray& iccProfile);

private:
    template <class Step>
    void Guard(const Step& step);

    void Configure(int quality);
    void WriteProfile(const QByteArray& iccProfile);
    void WriteRows();

    const Image& m_image;
    const std::string& m_name;
    const bool m_direct;
    Bytes m_row;
    jpeg_compress_struct m_info{};
    ErrorState m_error{};
    unsigned char* m_target = nullptr;
    unsigned long m_targetSize = 0;
};

Compression::Compression(const Image& image, const std::string& name)
    : m_image(image), m_name(name),
      m_direct(image.GetDepth() == Image::Depth::Bits8 && IsOpaque(image)),
      m_row(m_direct ? 0 : 3 * static_cast<std::size_t>(image.GetWidth()))
{
    m_info.err = jpeg_std_error(&m_error.manager);
    m_error.manager.error_exit = Leave;
}

Compression::~Compression()
{
    jpeg_destroy_compress(&m_info);
    std::free(m_target);
}

template <class Step>
void Compression::Guard(const Step& step)
{
    if (setjmp(m_error.jump) != 0)
        throw Zorvik::Exception(m_name + ": cannot be encoded as JPEG: " + m_error.text,
                                BOOST_CURRENT_FUNCTION, "photo/JpegEncoder", __LINE__);
    step();
}

void Compression::Configure(int quality)
{
    Guard([this, quality] {
        jpeg_create_compress(&m_info);
        jpeg_mem_dest(&m_info, &m_target, &m_targetSize);
        m_info.image_width = static_cast<JDIMENSION>(m_image.GetWidth());
        m_info.image_height = static_cast<JDIMENSION>(m_image.GetHeight());
        m_info.input_components = m_direct ? 4 : 3;
        m_info.in_color_space = m_direct ? JCS_EXT_RGBX : JCS_EXT_RGB;
        jpeg_set_defaults(&m_info);
        jpeg_set_quality(&m_info, quality, TRUE);
        m_info.optimize_coding = TRUE;
        const int sampling = quality >= JpegEncoder::FullColorQuality ? 1 : 2;
        m_info.comp_info[0].h_samp_factor = sampling;
        m_info.comp_info[0].v_samp_factor = sampling;
    });
}

void Compression::WriteProfile(const QByteArray& iccProfile)
{
    if (iccProfile.isEmpty())
        return;
    Guard([this, &iccProfile] {
        jpeg_write_icc_profile(&m_info, reinterpret_cast<const JOCTET*>(iccProfile.constData()),
                               static_cast<unsigned int>(iccProfile.size()));
    });
}

void Compression::WriteRows()
{
    Guard([this] {
        while (m_info.next_scanline < m_info.image_height) {
            const int y = static_cast<int>(m_info.next_scanline);
            auto* row = const_cast<JSAMPROW>(m_image.Row(y)); // only read
            if (!m_direct) {
                row = m_row.data();
                FlattenRow8(m_image, y, row);
            }
            jpeg_write_scanlines(&m_info, &row, 1);
        }
        jpeg_finish_compress(&m_info);
    });
}

Bytes Compression::Run(int quality, const QByteArray& iccProfile)
{
    Configure(quality);
    Guard([this] { jpeg_start_compress(&m_info, TRUE); });
    WriteProfile(iccProfile);
    WriteRows();
    return Bytes(m_target, m_target + m_targetSize);
}

} // namespace

Bytes JpegEncoder::Encode(const Image& image, int quality, const QByteArray& iccProfile,
                          const std::string& name)
{
    return Compression(image, name).Run(quality, iccProfile);
}

} // namespace LumetraHost
