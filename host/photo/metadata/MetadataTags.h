// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

#include <exiv2/exif.hpp>
#include <exiv2/image.hpp>
#include <exiv2/xmp_exiv2.hpp>

#include <cstdint>
#include <mutex>
#include <string>

namespace LumetraHost {

/// Converts between the blocks of a photo's metadata and the metadata library's own containers.
/// Exceptions of that library pass through. Included by sources only: its headers stay private.
class MetadataTags
{
public:
    /// Prepares the library once per process. To be called before any other use of it, on any
    /// thread.
    static void Initialise();

    using XmpLock = std::unique_lock<std::recursive_mutex>;
    /// Has to be held while the library decodes or encodes XMP, as it does when it reads a file. It
    /// takes namespaces of its users out of the table of all threads and puts them back in, and
    /// another thread that needs one in between fails.
    static XmpLock LockXmp();
    /// Decodes a packet under the lock; false when that is not possible.
    static bool DecodeXmp(const QByteArray& packet, Exiv2::XmpData& properties);
    /// Encodes a packet under the lock; false when that is not possible.
    static bool EncodeXmp(const Exiv2::XmpData& properties, std::string& text,
                          std::uint16_t flags = Exiv2::XmpParser::useCompactFormat);

    /// A warning for PNG and TIFF, whose files cannot hold a second packet.
    static constexpr char ExtensionIsLost[] =
        "the extension of the XMP packet cannot be joined with the packet and is left out";

    /// The block with all tags, however large they are.
    static QByteArray EncodeExif(const Exiv2::ExifData& tags, Exiv2::ByteOrder order);
    /// The block without its largest fields, so that it takes at most `largest` bytes; the warning
    /// names them and `target`, which has no space for more. Empty when nothing is left.
    static QByteArray ShrinkExif(const QByteArray& block, int largest, const std::string& target,
                                 Warnings& warnings);
    /// Returns the byte order that the block is written in.
    static Exiv2::ByteOrder DecodeExif(const QByteArray& block, Exiv2::ExifData& tags);
    /// 1..8 as the tags have it, else 0.
    static int GetOrientation(const Exiv2::ExifData& tags);
    static bool SaysAdobeRgb(const Exiv2::ExifData& tags);
    static QByteArray EncodeIptc(const Exiv2::IptcData& records);
    static Exiv2::IptcData DecodeIptc(const QByteArray& block);

    /// Removes tags that tell where and how a file stores its pixels and its other metadata blocks.
    static void RemoveStorageTags(Exiv2::ExifData& tags);

    /// Makes the metadata those of an upright picture of this size, sRGB or in the space of its
    /// profile: orientation 1, size and colour space updated, thumbnails gone. Tags that are not
    /// there are not added.
    static void Normalise(Exiv2::ExifData& tags, int width, int height, bool isSrgb);
    /// Normalises an XMP packet. Returns it byte for byte when nothing had to be changed, or with a
    /// warning when it cannot be decoded.
    static QByteArray NormaliseXmp(const QByteArray& packet, int width, int height, bool isSrgb,
                                   Warnings& warnings);
};

} // namespace LumetraHost
