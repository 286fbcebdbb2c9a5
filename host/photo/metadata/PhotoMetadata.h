// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

namespace LumetraHost {

/// The contents of a photo file beside its pixels, as the blocks that the file formats store.
/// Copies share the bytes. An empty block is one that the file does not have.
struct PhotoMetadata
{
    QByteArray exif; ///< a TIFF structure, without the "Exif\0\0" in front
    QByteArray xmp;  ///< an XMP packet, UTF-8
    /// A second packet with properties that the first had no space for, see ExtendedXmp; only from
    /// JPEG files.
    QByteArray xmpExtension;
    QByteArray iptc;       ///< IPTC-IIM records
    QByteArray iccProfile; ///< of the pixels as they are in memory

    bool IsEmpty() const
    {
        return exif.isEmpty() && xmp.isEmpty() && xmpExtension.isEmpty() && iptc.isEmpty() &&
               iccProfile.isEmpty();
    }
};

} // namespace LumetraHost
