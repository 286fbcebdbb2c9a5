// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

namespace LumetraHost {

/// An XMP packet as JPEG files hold it: a main packet of at most one segment and, where the
/// properties need more space, a second one, as Adobe's document on XMP storage in files has it.
/// The main packet then names the second one in xmpNote:HasExtendedXMP, by 32 hexadecimal digits of
/// its MD5.
struct ExtendedXmp
{
    static constexpr int LargestMain = 65502; ///< bytes

    QByteArray main;
    QByteArray extension; ///< empty: there is none

    /// The digits by which a main packet names its extension; empty when it names none.
    static QByteArray FindGuid(const QByteArray& main);

    /// Divides a packet so that its main part fits a segment: the largest properties go into the
    /// extension; none does where only blanks make the packet long. A packet that cannot be decoded
    /// becomes the extension, unchanged.
    static ExtendedXmp Divide(const QByteArray& packet);

    /// One packet with the properties of both parts: the bytes of one part where that holds all of
    /// them. Nothing when a part cannot be decoded.
    std::optional<QByteArray> Merge() const;
};

} // namespace LumetraHost
