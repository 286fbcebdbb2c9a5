// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <string>

namespace LumetraHost {

/// Packs one file into a zip archive in memory.
class ZipWriter
{
public:
    /// An archive with `content` as its only entry `name`, compressed. Equal arguments give equal
    /// bytes: the entry's time is the first that the format knows. Zorvik::Exception when there is
    /// not enough memory.
    static QByteArray Pack(const std::string& name, const QByteArray& content);
};

} // namespace LumetraHost
