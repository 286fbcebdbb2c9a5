// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "PhotoSamples.h"

#include <QByteArray>

namespace LumetraTest {

QByteArray GetSrgb();

/// A lossless file with those blocks that are not empty.
Bytes MakeWebp(const Image& opaque, const QByteArray& exif, const QByteArray& xmp,
               const QByteArray& profile);
/// A file of which only the header of an extended picture is there.
Bytes MakeWebpHeader(int width, int height);

/// A file of 8 bits at the encoder's best lossy quality, with `orientation` in the file itself.
Bytes MakeHeif(const Image& opaque, int orientation, const QByteArray& exif);
/// Changes the size that the header claims.
void SetHeifSize(Bytes& heif, std::uint32_t width, std::uint32_t height);

/// A raw file whose sensor saw the same linear sRGB light everywhere, by a camera whose own colours
/// are those of sRGB.
Bytes MakeDng(int width, int height, const double (&light)[3], int orientation);
void SetDngSize(Bytes& dng, std::uint32_t width, std::uint32_t height);

} // namespace LumetraTest
