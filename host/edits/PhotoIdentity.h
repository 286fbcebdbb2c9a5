// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>

class QString;

namespace LumetraHost {

/// Tells a photo's file from another one that has got its name. Taken from the content, so that a
/// copy and a file with another time are the same photo; a file into which a program has written
/// metadata is not.
struct PhotoIdentity
{
    static constexpr qint64 EndSize = 64 * 1024;

    qint64 size = 0;    ///< bytes
    QDateTime modified; ///< UTC; for who reads the edit, two files of other times may be the same
    QByteArray hash;    ///< SHA-256 of the first and the last EndSize bytes, as hexadecimal digits;
                        ///< empty: unknown

    /// Reads at most twice EndSize bytes. Unknown for what is no plain file or cannot be read.
    static PhotoIdentity Of(const QString& path);

    bool IsKnown() const { return !hash.isEmpty(); }
    bool IsSamePhoto(const PhotoIdentity& other) const;
};

} // namespace LumetraHost
