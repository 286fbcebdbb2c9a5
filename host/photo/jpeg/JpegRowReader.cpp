// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/jpeg/JpegRowReader.h"

#include "photo/file/PhotoLimits.h"

#include "storage/FailWith.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

#include <jpeglib.h>

#include <jerror.h>

namespace LumetraHost {
namespace {

/// A progressive file may repeat its scans without end, each costing a pass over the picture.
constexpr int MostScans = 500;
constexpr int RowsPerCall = 16;

struct ErrorState
{
    jpeg_error_mgr manager; // first, so that the library's pointer leads here
    std::jmp_buf jump;
    char text[JMSG_LENGTH_MAX];
    int code;
};

[[noreturn]] void Leave(j_common_ptr info)
{
    auto* const state = reinterpret_cast<ErrorState*>(info->err);
    state->code = info->err->msg_code;
    info->err->format_message(info, state->text);
    std::longjmp(state->jump, 1);
}

bool LosesPixels(int code)
{
    switch (code) {
    case JWRN_ARITH_BAD_CODE:
    case JWRN_BOGUS_PROGRESSION:
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_JPEG_EOF:
    case JWRN_MUST_RESYNC:
    case JWRN_NOT_SEQUENTIAL:
        return true;
    default:
        return false;
    }
}

/// Ends the decoding at warnings of lost pixels, which the library would fill with grey.
void OnMessage(j_common_ptr info, int level)
{
    if (level < 0 && LosesPixels(info->err->msg_code))
        Leave(info);
}

void OnProgress(j_common_ptr info)
{
    if (reinterpret_cast<j_decompress_ptr>(info)->input_scan_number > MostScans) {
        info->err->msg_code = JERR_BAD_PROGRESSION;
        Leave(info);
    }
}

bool MeansTruncated(int code)
{
    return code == JWRN_JPEG_EOF || code == JERR_INPUT_EOF || code == JERR_INPUT_EMPTY;
}

} // namespace

/// The C library leaves by longjmp, so every call into it stands in a step that holds nothing to be
/// destroyed.
class JpegRowReader::Decompression
{
public:
    Decompression(const Bytes& content, const std::string& name);
    Decompression(const Decompression&) = delete;
    Decompression& operator=(const Decompression&) = delete;
    ~Decompression() { jpeg_destroy_decompress(&m_info); }

    void ReadHeader();
    void ChooseScale(int smallestSide);
    void ReadRows(Image& rows, int first, int count);

    const jpeg_decompress_struct& GetInfo() const { return m_info; }
    PixelMeaning GetMeaning() const { return m_meaning; }
    QByteArray ReadProfile();
    bool HasProfileSegment() const;

private:
    template <class Step>
    void Guard(const Step& step);
    [[noreturn]] void Throw() const;
    std::string DescribeEnd() const;
    void ChooseOutput();
    void Start();

    const Bytes& m_content;
    const std::string m_name;
    jpeg_decompress_struct m_info{};
    ErrorState m_error{};
    jpeg_progress_mgr m_progress{};
    PixelMeaning m_meaning = PixelMeaning::Rgb;
    bool m_isStarted = false;
};

JpegRowReader::Decompression::Decompression(const Bytes& content, const std::string& name)
    : m_content(content), m_name(name)
{
    m_info.err = jpeg_std_error(&m_error.manager);
    m_error.manager.error_exit = Leave;
    m_error.manager.emit_message = OnMessage;
    m_progress.progress_monitor = OnProgress;
}

template <class Step>
void JpegRowReader::Decompression::Guard(const Step& step)
{
    if (setjmp(m_error.jump) != 0)
        Throw();
    step();
}

void JpegRowReader::Decompression::Throw() const
{
    // The library has limits of its own, and says them in its own words.
    if (m_error.code == JERR_IMAGE_TOO_BIG || m_error.code == JERR_EMPTY_IMAGE)
        PhotoLimits::Check(m_name, m_info.image_width, m_info.image_height);
    if (m_error.code == JERR_OUT_OF_MEMORY)
        throw std::bad_alloc();
    const std::string text = MeansTruncated(m_error.code)
                                 ? "the file ends before its picture does: " + DescribeEnd()
                                 : std::string("the JPEG data cannot be read: ") + m_error.text;
    FailWith(m_name + ": " + text);
}

/// Describes data missing at the end of the file. The scans of progressive files hold all rows
/// each, and are read before the first row comes out.
std::string JpegRowReader::Decompression::DescribeEnd() const
{
    if (m_info.image_height == 0 || m_info.input_scan_number == 0)
        return "expected a JPEG header";
    if (m_info.output_scanline == m_info.output_height && m_isStarted)
        return "all " + std::to_string(m_info.output_height) +
               " rows are there, but the end marker is missing";
    if (!m_isStarted)
        return "expected the end marker, found the end in scan " +
               std::to_string(m_info.input_scan_number);
    return "expected " + std::to_string(m_info.output_height) + " rows, found " +
           std::to_string(m_info.output_scanline);
}

void JpegRowReader::Decompression::ReadHeader()
{
    Guard([this] {
        jpeg_create_decompress(&m_info);
        m_info.progress = &m_progress;
        jpeg_mem_src(&m_info, m_content.data(), static_cast<unsigned long>(m_content.size()));
        jpeg_save_markers(&m_info, JPEG_APP0 + 2, 0xFFFF);
        jpeg_read_header(&m_info, TRUE);
    });
    PhotoLimits::Check(m_name, m_info.image_width, m_info.image_height);
    ChooseOutput();
    Guard([this] { jpeg_calc_output_dimensions(&m_info); });
}

void JpegRowReader::Decompression::ChooseOutput()
{
    const J_COLOR_SPACE stored = m_info.jpeg_color_space;
    const bool isCmyk = stored == JCS_CMYK || stored == JCS_YCCK;
    m_info.out_color_space = isCmyk ? JCS_CMYK : JCS_EXT_RGBA;
    if (isCmyk)
        m_meaning = m_info.saw_Adobe_marker ? PixelMeaning::CmykInverted : PixelMeaning::Cmyk;
    else
        m_meaning = stored == JCS_GRAYSCALE ? PixelMeaning::Gray : PixelMeaning::Rgb;
}

/// Chooses a power of two, which is quick, among the eighths that the library knows.
void JpegRowReader::Decompression::ChooseScale(int smallestSide)
{
    const auto side = std::max(m_info.image_width, m_info.image_height);
    m_info.scale_denom = 8;
    m_info.scale_num = 8;
    for (const unsigned eighths : {4u, 2u, 1u})
        if (side * eighths / 8 >= static_cast<unsigned>(smallestSide))
            m_info.scale_num = eighths;
    Guard([this] { jpeg_calc_output_dimensions(&m_info); });
}

QByteArray JpegRowReader::Decompression::ReadProfile()
{
    JOCTET* data = nullptr;
    unsigned int size = 0;
    Guard([&, this] { jpeg_read_icc_profile(&m_info, &data, &size); });
    const QByteArray profile(reinterpret_cast<const char*>(data), static_cast<int>(size));
    std::free(data);
    return profile;
}

bool JpegRowReader::Decompression::HasProfileSegment() const
{
    const std::string_view prefix("ICC_PROFILE\0", 12);
    for (const auto* marker = m_info.marker_list; marker; marker = marker->next) {
        const std::string_view content(reinterpret_cast<const char*>(marker->data),
                                       marker->data_length);
        if (marker->marker == JPEG_APP0 + 2 && content.substr(0, prefix.size()) == prefix)
            return true;
    }
    return false;
}

void JpegRowReader::Decompression::Start()
{
    if (m_isStarted)
        return;
    Guard([this] { jpeg_start_decompress(&m_info); });
    m_isStarted = true;
}

void JpegRowReader::Decompression::ReadRows(Image& rows, int first, int count)
{
    Start();
    Guard([&, this] {
        const JDIMENSION end = m_info.output_scanline + static_cast<JDIMENSION>(count);
        int target = first;
        while (m_info.output_scanline < end) {
            JSAMPROW pointers[RowsPerCall];
            const int wanted =
                std::min(RowsPerCall, static_cast<int>(end - m_info.output_scanline));
            for (int row = 0; row < wanted; ++row)
                pointers[row] = rows.Row(target + row);
            target += static_cast<int>(
                jpeg_read_scanlines(&m_info, pointers, static_cast<JDIMENSION>(wanted)));
        }
        if (m_info.output_scanline == m_info.output_height)
            jpeg_finish_decompress(&m_info);
    });
}

JpegRowReader::JpegRowReader(const Bytes& content, const std::string& name)
    : m_decompression(std::make_unique<Decompression>(content, name))
{
    m_decompression->ReadHeader();
}

JpegRowReader::~JpegRowReader() = default;

void JpegRowReader::ScaleDown(int smallestSide)
{
    m_decompression->ChooseScale(smallestSide);
}

int JpegRowReader::GetWidth() const
{
    return static_cast<int>(m_decompression->GetInfo().output_width);
}

int JpegRowReader::GetHeight() const
{
    return static_cast<int>(m_decompression->GetInfo().output_height);
}

PixelMeaning JpegRowReader::GetMeaning() const
{
    return m_decompression->GetMeaning();
}

QByteArray JpegRowReader::GetProfile() const
{
    return m_decompression->ReadProfile();
}

bool JpegRowReader::IsProfileDamaged() const
{
    return m_decompression->HasProfileSegment() && m_decompression->ReadProfile().isEmpty();
}

void JpegRowReader::Read(Image& rows, int first, int count)
{
    m_decompression->ReadRows(rows, first, count);
}

} // namespace LumetraHost
