// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace LumetraHost {

/// Facts about where a photo file comes from, read from its metadata alone: the pixels are not
/// looked at, and of a large file only a small part.
struct PhotoOrigin
{
    /// When the photo was taken, by the camera's clock, as local time: EXIF DateTimeOriginal, to
    /// the millisecond where the camera tells that. Invalid where the file does not say it.
    QDateTime taken;
    /// The file records presets that were put on it, so that it is an export of this program or
    /// made from one; see EditRecords.
    bool hasRecords = false;

    /// Never throws: nothing is known of a file that cannot be read.
    static PhotoOrigin Read(const QString& path);
    /// The time alone, from the beginning of the file (256 KB at most), so that a folder of photos
    /// can be put into order. Never throws.
    static QDateTime ReadTime(const QString& path);
};

} // namespace LumetraHost
