// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/Decoders.h"

#include "photo/file/PhotoLimits.h"

#include "storage/FailWith.h"

#include <memory>
#include <new>
#include <optional>
#include <string>

#include <libraw/libraw.h>

namespace LumetraHost {
namespace {

class Development
{
public:
    explicit Development(const std::string& name) : m_name(name), m_raw(std::make_unique<LibRaw>())
    {
    }

    DecodedPhoto Run(const Bytes& content, RawSize size);

private:
    static void OnDataError(void* development, const char* file, int offset);

    void Check(int code) const;
    [[noreturn]] void Throw(const std::string& text) const;
    void CheckSize() const;
    void CheckData(DecodedPhoto& photo) const;
    void Configure(RawSize size);
    Image ReadPixels() const;
    int GetOrientation() const;

    const std::string& m_name;
    std::unique_ptr<LibRaw> m_raw; // some 200 kB
    bool m_isTruncated = false;
    std::optional<int> m_damage; // the first damaged byte
};

/// Notes damage, since the library goes on with the data that it has. Before the end of the file it
/// names a place.
void Development::OnDataError(void* development, const char*, int offset)
{
    auto* const self = static_cast<Development*>(development);
    if (offset < 0)
        self->m_isTruncated = true;
    else if (!self->m_damage)
        self->m_damage = offset;
}

void Development::Check(int code) const
{
    if (code == LIBRAW_SUCCESS)
        return;
    if (code == LIBRAW_UNSUFFICIENT_MEMORY)
        throw std::bad_alloc();
    if (code == LIBRAW_IO_ERROR || m_isTruncated)
        Throw("the file ends before its picture does: expected the rest of the raw data");
    if (code == LIBRAW_FILE_UNSUPPORTED)
        Throw("expected the raw file of a camera that is known here; a DNG made of it may help");
    Throw(std::string("the raw file cannot be developed: ") + LibRaw::strerror(code));
}

void Development::Throw(const std::string& text) const
{
    FailWith(m_name + ": " + text);
}

void Development::CheckData(DecodedPhoto& photo) const
{
    if (m_isTruncated)
        Check(LIBRAW_IO_ERROR);
    if (m_damage)
        Warn(photo.warnings, "its raw data are damaged near byte " + std::to_string(*m_damage));
}

void Development::CheckSize() const
{
    const auto& sizes = m_raw->imgdata.sizes;
    PhotoLimits::Check(m_name, sizes.raw_width, sizes.raw_height);
    PhotoLimits::Check(m_name, sizes.width, sizes.height);
}

void Development::Configure(RawSize size)
{
    libraw_output_params_t& parameters = m_raw->imgdata.params;
    parameters.use_camera_wb = 1;
    parameters.output_bps = 16;
    parameters.output_color = 1; // sRGB
    parameters.gamm[0] = 1 / 2.4;
    parameters.gamm[1] = 12.92;
    parameters.no_auto_bright = 1;
    parameters.user_flip = 0; // turning is ours
    parameters.half_size = size == RawSize::Half ? 1 : 0;
}

Image Development::ReadPixels() const
{
    int code = LIBRAW_SUCCESS;
    const std::unique_ptr<libraw_processed_image_t, void (*)(libraw_processed_image_t*)> developed(
        m_raw->dcraw_make_mem_image(&code), LibRaw::dcraw_clear_mem);
    Check(code);
    Image pixels =
        Image::AllocateUninitialised(developed->width, developed->height, Image::Depth::Bits16);
    const auto* source = reinterpret_cast<const std::uint16_t*>(developed->data);
    const bool isGrey = developed->colors == 1;
    for (int y = 0; y < pixels.GetHeight(); ++y) {
        std::uint16_t* target = pixels.Row16(y);
        for (int x = 0; x < pixels.GetWidth(); ++x, target += Image::Channels) {
            target[0] = source[0];
            target[1] = source[isGrey ? 0 : 1];
            target[2] = source[isGrey ? 0 : 2];
            target[3] = 0xFFFF;
            source += developed->colors;
        }
    }
    return pixels;
}

/// The orientation as in EXIF; the library counts as dcraw does.
int Development::GetOrientation() const
{
    switch (m_raw->imgdata.sizes.flip) {
    case 3:
        return 3;
    case 5:
        return 8;
    case 6:
        return 6;
    default:
        return 1;
    }
}

DecodedPhoto Development::Run(const Bytes& content, RawSize size)
{
    m_raw->set_dataerror_handler(OnDataError, this);
    // The library only reads the content.
    Check(m_raw->open_buffer(const_cast<std::uint8_t*>(content.data()), content.size()));
    CheckSize();
    DecodedPhoto photo;
    photo.orientation = GetOrientation();
    Configure(size);
    Check(m_raw->unpack());
    CheckData(photo);
    Check(m_raw->dcraw_process());
    photo.pixels = ReadPixels();
    return photo;
}

} // namespace

DecodedPhoto DecodeRaw(const Bytes& content, const std::string& name, RawSize size)
{
    return Development(name).Run(content, size);
}

} // namespace LumetraHost
