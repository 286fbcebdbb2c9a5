// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <mutex>
#include <set>
#include <string>

namespace LumetraHost {

/// A folder of files for contents that are too large for a JSON text beside it. Each file is named
/// by the SHA-256 of its content, so that it is written once, never changed, and shared by all
/// users of that content. Safe to use from several threads. It does not lock: whoever adds or
/// removes files holds the lock of the text that names them.
class ContentFolder
{
public:
    /// Makes no folder: that comes with its first file.
    explicit ContentFolder(const QString& path);

    /// The name of the file for `content`: 64 hexadecimal digits, lower case.
    static std::string NameOf(const QByteArray& content);
    static bool IsName(const std::string& text);

    const QString& GetPath() const { return m_path; }
    /// Empty when a file of that name and size is there; else a sentence with the file and what was
    /// expected. The content is not read.
    std::string FindProblem(const std::string& name, qint64 size) const;
    /// The content. Exception with the file and what was expected when it is not there, has another
    /// size or is damaged.
    QByteArray Read(const std::string& name, qint64 size) const;
    /// True for contents that this object has written, or found to be there undamaged.
    bool HasSeen(const std::string& name) const;

    /// Writes the file of `content`, and its folder, unless it is there undamaged. On return it has
    /// reached the disk. Exception as of CheckedFileWriter.
    void Add(const QByteArray& content) const;
    /// The names of all files there.
    std::set<std::string> FindAll() const;
    /// Removes a file, and the folder with the last one.
    void Remove(const std::string& name) const;
    /// Removes the files that killed writers left behind, when they are ten minutes old.
    void RemoveOldTemporaryFiles() const;

private:
    QString FileOf(const std::string& name) const;
    void Remember(const std::string& name) const;

    QString m_path;
    mutable std::mutex m_mutex;
    mutable std::set<std::string> m_seen;
};

using ContentFolderPtr = std::shared_ptr<const ContentFolder>;

} // namespace LumetraHost
