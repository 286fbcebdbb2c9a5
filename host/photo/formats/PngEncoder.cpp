// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/formats/PngEncoder.h"

#include "photo/file/RowWriter.h"

#include "Zorvik/Exception.h"
#include "storage/FailWith.h"

#include <QtGlobal>

#include <csetjmp>
#include <cstring>
#include <new>

#include <png.h>
#include <zlib.h>

namespace LumetraHost {
namespace {

/// Photographs hold no repeated strings worth the search: looking for runs alone made files 10 %
/// smaller than level 3 of the usual strategy, in a third of its time.
constexpr int CompressionStrategy = Z_RLE;

/// One encoding. The C library leaves by longjmp, so every call into it stands in a step that holds
/// nothing to be destroyed.
class Encoding : public RowEncoder
{
public:
    Encoding(const PictureForm& form, const std::string& name);
    ~Encoding() override { png_destroy_write_struct(&m_png, &m_info); }

    void Begin(const QByteArray& iccProfile);

    void Write(const Image& rows, int first, int count) override;
    Bytes Finish() override;

private:
    static void OnError(png_structp png, png_const_charp text);
    static void OnWarning(png_structp png, png_const_charp text);
    static void OnWrite(png_structp png, png_bytep source, std::size_t size);
    static void OnFlush(png_structp png);

    template <class Step>
    void Guard(const Step& step);

    void Create();
    void WriteHeader();
    void WriteProfile(const QByteArray& profile);

    const PictureForm m_form;
    const std::string m_name;
    Bytes m_row;
    Bytes m_target;
    bool m_outOfMemory = false;
    png_structp m_png = nullptr;
    png_infop m_info = nullptr;
    std::jmp_buf m_jump;
    char m_text[200] = "";
};

Encoding::Encoding(const PictureForm& form, const std::string& name)
    : m_form(form), m_name(name),
      m_row(form.isOpaque ? 3 * (form.depth == Image::Depth::Bits16 ? 2u : 1u) *
                                static_cast<std::size_t>(form.width)
                          : 0)
{
}

void Encoding::OnError(png_structp png, png_const_charp text)
{
    auto* const self = static_cast<Encoding*>(png_get_error_ptr(png));
    std::strncpy(self->m_text, text, sizeof m_text - 1);
    std::longjmp(self->m_jump, 1);
}

/// Fails when the library leaves metadata out: the photo is then not the one that was asked for.
void Encoding::OnWarning(png_structp png, png_const_charp text)
{
    OnError(png, text);
}

void Encoding::OnWrite(png_structp png, png_bytep source, std::size_t size)
{
    auto* const self = static_cast<Encoding*>(png_get_io_ptr(png));
    try {
        self->m_target.insert(self->m_target.end(), source, source + size);
        return;
    } catch (const std::bad_alloc&) {
        self->m_outOfMemory = true; // no exception may cross the C library
    }
    png_error(png, "out of memory");
}

void Encoding::OnFlush(png_structp) {}

template <class Step>
void Encoding::Guard(const Step& step)
{
    if (setjmp(m_jump) != 0) {
        if (m_outOfMemory)
            throw std::bad_alloc();
        FailWith(m_name + ": cannot be encoded as PNG: " + m_text);
    }
    step();
}

void Encoding::Create()
{
    m_png = png_create_write_struct(PNG_LIBPNG_VER_STRING, this, OnError, OnWarning);
    if (m_png)
        m_info = png_create_info_struct(m_png);
    if (!m_info)
        throw std::bad_alloc();
}

void Encoding::WriteHeader()
{
    Guard([this] {
        png_set_write_fn(m_png, this, OnWrite, OnFlush);
        png_set_IHDR(m_png, m_info, static_cast<png_uint_32>(m_form.width),
                     static_cast<png_uint_32>(m_form.height),
                     m_form.depth == Image::Depth::Bits16 ? 16 : 8,
                     m_form.isOpaque ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_set_compression_strategy(m_png, CompressionStrategy);
        png_set_filter(m_png, PNG_FILTER_TYPE_BASE, PNG_FILTER_PAETH);
    });
}

void Encoding::WriteProfile(const QByteArray& profile)
{
    if (profile.isEmpty())
        return;
    Guard([this, &profile] {
        png_set_iCCP(m_png, m_info, "ICC profile", PNG_COMPRESSION_TYPE_BASE,
                     reinterpret_cast<png_const_bytep>(profile.constData()),
                     static_cast<png_uint_32>(profile.size()));
    });
}

void Encoding::Begin(const QByteArray& iccProfile)
{
    Create();
    WriteHeader();
    WriteProfile(iccProfile);
    Guard([this] {
        png_write_info(m_png, m_info);
        if (Q_BYTE_ORDER == Q_LITTLE_ENDIAN && m_form.depth == Image::Depth::Bits16)
            png_set_swap(m_png);
    });
}

void Encoding::Write(const Image& rows, int first, int count)
{
    Guard([&, this] {
        for (int y = first; y < first + count; ++y) {
            if (m_form.isOpaque)
                CopyRowWithoutAlpha(rows, y, m_row.data());
            png_write_row(m_png, m_form.isOpaque ? m_row.data() : rows.Row(y));
        }
    });
}

Bytes Encoding::Finish()
{
    Guard([this] { png_write_end(m_png, m_info); });
    return std::move(m_target);
}

} // namespace

bool PngEncoder::HoldsProfile(const QByteArray& iccProfile)
{
    try {
        Encoding({1, 1}, "trial").Begin(iccProfile);
        return true;
    } catch (const Zorvik::Exception&) {
        return false;
    }
}

std::unique_ptr<RowEncoder> PngEncoder::Start(const PictureForm& form, const QByteArray& iccProfile,
                                              const std::string& name, Warnings& warnings)
{
    auto encoding = std::make_unique<Encoding>(form, name);
    try {
        encoding->Begin(iccProfile);
        return encoding;
    } catch (const Zorvik::Exception&) {
        if (iccProfile.isEmpty())
            throw;
    }
    encoding = std::make_unique<Encoding>(form, name); // one that threw is of no use any more
    encoding->Begin({});
    Warn(warnings, "PNG does not take this colour profile; it is left out");
    return encoding;
}

} // namespace LumetraHost
