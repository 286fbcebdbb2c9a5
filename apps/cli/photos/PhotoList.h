// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace LumetraCli {

/// Lists of photos as files: a name in a line, or names separated by zero bytes, in the system's
/// encoding.
class PhotoList
{
public:
    /// The names in the list at `file`, as they stand there; empty ones are left out. "-" is the
    /// standard input. A byte order mark and Windows' ends of lines do not count where a name is a
    /// line. UsageError for a list that cannot be read.
    static QList<QByteArray> ReadNames(const QString& file, bool isNullSeparated);
    /// The names as texts.
    static QStringList Read(const QString& file, bool isNullSeparated);

    /// The text of a list. Zorvik::Exception for a name that would not be read again as it is.
    static QByteArray Join(const QStringList& photos, bool isNullSeparated);
};

} // namespace LumetraCli
