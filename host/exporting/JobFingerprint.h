// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"
#include "photo/file/PhotoFormat.h"

#include <QString>

#include <string>

namespace LumetraHost {

/// Tells whether a file is what a job would write: a hash of the photo's content, of the look as it
/// is drawn, and of every option that the file depends on. Names, times and places of files have no
/// part in it, so that it is the same on all machines. Exported files carry it in their XMP packet.
struct JobFingerprint
{
    /// To be raised by whoever lets the same job make another file: other pixels, another encoding
    /// or other metadata. Files of earlier programs then no longer count as done.
    static constexpr int DrawingVersion = 1;

    /// 64 hexadecimal digits. Empty when the look cannot be told from others (see
    /// ExportLook::GetDigest()).
    static std::string Of(const Bytes& photo, const ExportRecipe& recipe);
    /// The fingerprint for a photo whose content has that hash; empty for an empty hash too.
    static std::string OfContent(const std::string& contentHash, const ExportRecipe& recipe);

    /// The fingerprint that the file at `path` carries; empty when it carries none, was cut, or
    /// cannot be read.
    static std::string ReadFrom(const QString& path);
    /// The fingerprint in a photo file in memory; empty where there is none, and for a cut file.
    static std::string ReadFrom(const Bytes& file);
};

} // namespace LumetraHost
