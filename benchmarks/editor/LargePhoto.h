// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraBenchmark {

/// A photo that is written to be opened.
struct LargePhoto
{
    const char* name;
    int width;
    int height;
    int bits;           ///< 8 or 16
    const char* suffix; ///< of the file, which says its format
    int orientation;    ///< 1 to 8, as in EXIF; others than 1 in 8-bit JPEG files only
};

/// Writes soft colours with grain, so that the file has the size of a camera's.
void WriteLargePhoto(const LargePhoto& photo, const QString& path);

} // namespace LumetraBenchmark
