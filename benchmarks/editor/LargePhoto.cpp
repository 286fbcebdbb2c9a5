// SPDX-License-Identifier: GPL-2.0-or-later
#include "LargePhoto.h"

#include "photo/PhotoWriter.h"

#include <QByteArray>

#include <cmath>

namespace LumetraBenchmark {
namespace {

using LumetraHost::Image;

/// A byte that looks random, the same for the same pixel.
unsigned GetGrain(int x, int y)
{
    const unsigned mixed =
        (static_cast<unsigned>(x) * 374761393U + static_cast<unsigned>(y) * 668265263U);
    return ((mixed ^ (mixed >> 13)) * 1274126177U) >> 24;
}

/// A value of 16 bits.
unsigned GetValue(int x, int y, int channel)
{
    const double wave = std::sin(0.0011 * x + channel) * std::cos(0.0013 * y - channel);
    const double value = 128 + 100 * wave + GetGrain(x, y) % 12;
    return static_cast<unsigned>(value * 257);
}

void FillRow(Image& image, int y, bool isDeep)
{
    for (int x = 0; x < image.GetWidth(); ++x)
        for (int channel = 0; channel < Image::Channels; ++channel) {
            const unsigned value = channel == 3 ? 65535U : GetValue(x, y, channel);
            const int at = Image::Channels * x + channel;
            if (isDeep)
                image.Row16(y)[at] = static_cast<std::uint16_t>(value);
            else
                image.Row(y)[at] = static_cast<std::uint8_t>(value >> 8);
        }
}

/// A TIFF structure of that one field.
QByteArray MakeOrientation(int orientation)
{
    QByteArray exif("II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x01\0\0\0\0\0\0\0", 26);
    exif[18] = static_cast<char>(orientation);
    return exif;
}

} // namespace

void WriteLargePhoto(const LargePhoto& photo, const QString& path)
{
    const bool isDeep = photo.bits == 16;
    LumetraHost::Photo written;
    written.image = Image::AllocateUninitialised(
        photo.width, photo.height, isDeep ? Image::Depth::Bits16 : Image::Depth::Bits8);
    for (int y = 0; y < photo.height; ++y)
        FillRow(written.image, y, isDeep);
    if (photo.orientation > 1)
        written.metadata.exif = MakeOrientation(photo.orientation);
    LumetraHost::PhotoWriter::Write(path, written);
}

} // namespace LumetraBenchmark
