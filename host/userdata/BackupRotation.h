// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace LumetraHost {

/// Numbered copies beside a file of the user: "NAME.backup-1" is the newest. Copies, not links, so
/// that damage to the file on the disk does not reach them. The caller holds the file's lock.
class BackupRotation
{
public:
    static constexpr int Count = 5;

    explicit BackupRotation(const QString& path);

    /// Existing copies, newest first.
    QStringList GetFiles() const;
    /// Makes `content` the newest copy, unless it is that already. Whenever the program stops, at
    /// most the oldest copy is gone.
    void Add(const QByteArray& content) const;

    /// Copies the file itself to "NAME.WORD-DATE", under a name not yet taken, and returns that
    /// name. `word` says why it is kept. Exception when the copy fails.
    QString SetAside(const QString& word = QStringLiteral("unreadable")) const;

    /// Keeps `file`, the file itself or one of its backups, in the form that older programs write:
    /// as the copy "NAME.version-1", or with a number when another file has that name. Does nothing
    /// when the copy is there. Exception when the copy fails.
    void KeepOldForm(const QString& file) const;
    /// True for the names that KeepOldForm() gives.
    static bool IsOldForm(const QString& fileName);

private:
    QString FileName(int number) const;

    QString m_path;
};

} // namespace LumetraHost
