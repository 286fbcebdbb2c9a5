// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <stdexcept>
#include <string>

namespace LumetraPlugin {

/// A file is sound, but it holds no look: a template for exports, for names, for searches.
class NoLookError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Files of other programs' looks: small texts, of which a file is read whole or not at all.
class ForeignFile
{
public:
    /// The largest file that is read, in bytes. Looks with tables inside have less than two
    /// million.
    static constexpr qint64 LargestFile = 8 * 1024 * 1024;

    /// The content without byte order mark. Zorvik::Exception that names the file: no plain file,
    /// empty, too large, or binary.
    static QByteArray Read(const QString& path);

    /// Throws a Zorvik::Exception "file:line: message", or "file: message" when `line` is 0.
    [[noreturn]] static void Fail(const QString& path, qint64 line, const std::string& message);
};

} // namespace LumetraPlugin
