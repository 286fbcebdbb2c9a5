// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <stdexcept>

namespace LumetraPlugin {

/// A file is sound, but it holds no look: a template for exports, for names, for searches.
class NoLookError : public std::runtime_error
{
public:
    NoLookError(const QString& path, const QString& message);
};

/// Files of other programs' looks: small texts, of which a file is read whole or not at all. Errors
/// are in the user's language where the program has translations.
class ForeignFile
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::ForeignFile)

public:
    /// The largest file that is read, in bytes. Looks with tables inside have less than two
    /// million.
    static constexpr qint64 LargestFile = 8 * 1024 * 1024;

    /// The content without byte order mark. Zorvik::Exception that names the file: no plain file,
    /// empty, too large, or binary.
    static QByteArray Read(const QString& path);

    /// Throws a Zorvik::Exception "file:line: message", or "file: message" when `line` is 0.
    [[noreturn]] static void Fail(const QString& path, qint64 line, const QString& message);
};

} // namespace LumetraPlugin
