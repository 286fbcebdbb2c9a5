// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/Decoders.h"

#include "photo/file/PhotoLimits.h"

#include "storage/FailWith.h"

#include <QtEndian>

#include <csetjmp>
#include <cstring>
#include <string>
#include <vector>

#include <png.h>

namespace LumetraHost {
namespace {

constexpr std::size_t HeaderEnd = 33; // signature and the first chunk
constexpr std::size_t WidthPosition = 16;
constexpr std::size_t HeightPosition = 20;

/// One decoding. The C library leaves by longjmp, so every call into it stands in a step that holds
/// nothing to be destroyed.
class Decoding
{
public:
    Decoding(const Bytes& content, const std::string& name) : m_content(content), m_name(name) {}
    Decoding(const Decoding&) = delete;
    Decoding& operator=(const Decoding&) = delete;
    ~Decoding() { png_destroy_read_struct(&m_png, &m_info, nullptr); }

    DecodedPhoto Run();

private:
    static void OnError(png_structp png, png_const_charp text);
    static void OnWarning(png_structp png, png_const_charp text);
    static void OnRead(png_structp png, png_bytep target, std::size_t size);

    template <class Step>
    void Guard(const Step& step);
    [[noreturn]] void Throw(const std::string& text) const;

    void CheckSize();
    void Create();
    void ReadHeader();
    void ReadRows(Image& pixels);
    QByteArray GetProfile();
    QByteArray GetExif();
    quint32 CountFrames() const;

    const Bytes& m_content;
    const std::string& m_name;
    std::size_t m_position = 0;
    bool m_truncated = false;
    bool m_gray = false;
    png_structp m_png = nullptr;
    png_infop m_info = nullptr;
    std::jmp_buf m_jump;
    char m_text[200] = "";
};

void Decoding::OnError(png_structp png, png_const_charp text)
{
    auto* const self = static_cast<Decoding*>(png_get_error_ptr(png));
    std::strncpy(self->m_text, text, sizeof m_text - 1);
    std::longjmp(self->m_jump, 1);
}

/// Ignores warnings: the library gives them where the pixels do not change.
void Decoding::OnWarning(png_structp, png_const_charp) {}

void Decoding::OnRead(png_structp png, png_bytep target, std::size_t size)
{
    auto* const self = static_cast<Decoding*>(png_get_io_ptr(png));
    if (size > self->m_content.size() - self->m_position) {
        self->m_truncated = true;
        png_error(png, "the file ends too early");
    }
    std::memcpy(target, self->m_content.data() + self->m_position, size);
    self->m_position += size;
}

template <class Step>
void Decoding::Guard(const Step& step)
{
    if (setjmp(m_jump) != 0)
        Throw(m_truncated ? "the file ends before its picture does"
                          : std::string("the PNG data cannot be read: ") + m_text);
    step();
}

void Decoding::Throw(const std::string& text) const
{
    FailWith(m_name + ": " + text);
}

void Decoding::CheckSize()
{
    if (m_content.size() < HeaderEnd)
        Throw("the file ends inside its header: expected at least " + std::to_string(HeaderEnd) +
              " bytes, found " + std::to_string(m_content.size()));
    PhotoLimits::Check(m_name, qFromBigEndian<quint32>(m_content.data() + WidthPosition),
                       qFromBigEndian<quint32>(m_content.data() + HeightPosition));
}

void Decoding::Create()
{
    m_png = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, OnError, OnWarning);
    if (m_png)
        m_info = png_create_info_struct(m_png);
    if (!m_info)
        throw std::bad_alloc();
}

void Decoding::ReadHeader()
{
    Guard([this] {
        png_set_read_fn(m_png, this, OnRead);
        png_read_info(m_png, m_info);
        m_gray = (png_get_color_type(m_png, m_info) & PNG_COLOR_MASK_COLOR) == 0;
        png_set_expand(m_png);
        png_set_gray_to_rgb(m_png);
        png_set_add_alpha(m_png, 0xFFFF, PNG_FILLER_AFTER);
        if (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
            png_set_swap(m_png);
        png_set_interlace_handling(m_png);
        png_read_update_info(m_png, m_info);
    });
}

void Decoding::ReadRows(Image& pixels)
{
    std::vector<png_bytep> rows(static_cast<std::size_t>(pixels.GetHeight()));
    for (int y = 0; y < pixels.GetHeight(); ++y)
        rows[static_cast<std::size_t>(y)] = pixels.Row(y);
    Guard([this, &rows] {
        png_read_image(m_png, rows.data());
        png_read_end(m_png, m_info);
    });
}

QByteArray Decoding::GetProfile()
{
    png_charp title = nullptr;
    int compression = 0;
    png_bytep data = nullptr;
    png_uint_32 size = 0;
    if (!png_get_iCCP(m_png, m_info, &title, &compression, &data, &size))
        return {};
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

QByteArray Decoding::GetExif()
{
    png_bytep data = nullptr;
    png_uint_32 size = 0;
    if (!png_get_eXIf_1(m_png, m_info, &size, &data))
        return {};
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

/// The number of pictures in the chunk that animations have in front of the pixels, which the
/// library does not know.
quint32 Decoding::CountFrames() const
{
    std::size_t position = HeaderEnd;
    while (position + 12 <= m_content.size()) {
        const auto* const chunk = m_content.data() + position;
        const std::size_t size = qFromBigEndian<quint32>(chunk);
        if (std::memcmp(chunk + 4, "acTL", 4) == 0 && size >= 4)
            return qFromBigEndian<quint32>(chunk + 8);
        if (std::memcmp(chunk + 4, "IDAT", 4) == 0)
            break;
        position += 12 + size;
    }
    return 0;
}

DecodedPhoto Decoding::Run()
{
    CheckSize();
    Create();
    ReadHeader();
    DecodedPhoto photo;
    photo.meaning = m_gray ? PixelMeaning::Gray : PixelMeaning::Rgb;
    const bool deep = png_get_bit_depth(m_png, m_info) == 16;
    photo.pixels =
        Image::AllocateUninitialised(static_cast<int>(png_get_image_width(m_png, m_info)),
                                     static_cast<int>(png_get_image_height(m_png, m_info)),
                                     deep ? Image::Depth::Bits16 : Image::Depth::Bits8);
    ReadRows(photo.pixels);
    photo.iccProfile = GetProfile();
    photo.exif = GetExif();
    const quint32 frames = CountFrames();
    if (frames > 1)
        Warn(photo.reductions, "it is an animation of " + std::to_string(frames) +
                                   " frames; only its still picture is read");
    return photo;
}

} // namespace

DecodedPhoto DecodePng(const Bytes& content, const std::string& name)
{
    return Decoding(content, name).Run();
}

} // namespace LumetraHost
