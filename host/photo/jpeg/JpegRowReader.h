// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <memory>
#include <string>

namespace LumetraHost {

/// Decodes JPEG with 8 bits per channel row by row: grey, YCbCr, RGB, CMYK and YCCK, sequential and
/// progressive (of which the library keeps the whole picture). Lossless and 12-bit files are
/// refused, and so are files of which data is missing or damaged. One thread at a time.
class JpegRowReader
{
public:
    /// Reads the header. `content` is kept by reference; `name` begins the text of every
    /// Zorvik::Exception.
    JpegRowReader(const Bytes& content, const std::string& name);
    ~JpegRowReader();

    /// Decodes at 1/2, 1/4 or 1/8 of the size, as small as possible with a longer side of at least
    /// `smallestSide`. Averages over blocks, at a fraction of the cost. To be called before the
    /// first row.
    void ScaleDown(int smallestSide);

    int GetWidth() const;
    int GetHeight() const;
    PixelMeaning GetMeaning() const;
    /// The colour profile; empty when there is none, or when parts of it are missing.
    QByteArray GetProfile() const;
    bool IsProfileDamaged() const;

    /// Reads the next `count` rows into `rows` from its row `first` on, with 8 bits and the
    /// picture's width. Calls must not ask for more rows than the picture has.
    void Read(Image& rows, int first, int count);

private:
    class Decompression;

    std::unique_ptr<Decompression> m_decompression;
};

} // namespace LumetraHost
