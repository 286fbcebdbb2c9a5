// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <QString>

namespace LumetraEditor {

/// What an export is to look like.
struct ExportOptions
{
    QString path;
    LumetraHost::PhotoFormat format = LumetraHost::PhotoFormat::Jpeg; ///< JPEG, PNG or TIFF
    int quality = 92;                                                 ///< 1 to 100, JPEG alone
    int bits = 8;             ///< 8 or 16 per channel; JPEG always 8
    int longestSide = 0;      ///< pixels; 0: the photo's own size. A photo is never enlarged.
    bool keepMetadata = true; ///< EXIF, IPTC and XMP
    bool mayReplace = true;   ///< false: a file that appears before the export ends stays
    bool embedProfile = true; ///< sRGB; without, programs take it for sRGB too
};

/// "jpg", "png" or "tif": the formats that are written.
QString GetSuffix(LumetraHost::PhotoFormat format);

} // namespace LumetraEditor
