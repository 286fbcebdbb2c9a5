// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ZipEntry.h"

#include <QByteArray>

#include <memory>
#include <vector>

namespace LumetraHost {

/// Unpacks a zip archive into memory. Nothing is written, links are not followed, and no announced
/// size is believed: entries are counted while they are unpacked. Encrypted entries, links, devices
/// and names that lead out of the archive or occur twice are listed with their fault and cannot be
/// unpacked. Not for two threads at a time.
class ZipReader
{
public:
    static constexpr qint64 LargestArchive = 256 * 1024 * 1024; ///< bytes
    static constexpr std::uint64_t MostEntries = 5'000;
    static constexpr qint64 LargestEntry = 64 * 1024 * 1024;   ///< bytes, unpacked
    static constexpr qint64 LargestTotal = 1024 * 1024 * 1024; ///< bytes, unpacked

    /// Zorvik::Exception, beginning with the path, for anything that is no zip archive within the
    /// limits. No entry is unpacked yet; all of them together may have `largestTotal` bytes.
    explicit ZipReader(const QString& path, qint64 largestTotal = LargestTotal);
    ~ZipReader();

    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;

    /// True when the file at `path` begins as zip archives do. False for one that cannot be read.
    static bool IsZip(const QString& path);

    /// The files of the archive in its order, those with a fault too; folders are left out.
    const std::vector<ZipEntry>& GetEntries() const { return m_entries; }

    /// The content of an entry, of at most `largest` bytes. Zorvik::Exception "path: entry: …" for
    /// an entry with a fault, and for one that is damaged or too large.
    QByteArray Read(const ZipEntry& entry, qint64 largest = LargestEntry);
    /// The beginning of messages about an entry: "path: entry".
    QString NameOf(const ZipEntry& entry) const;

private:
    struct Archive;

    void ListEntries();
    ZipEntry ReadEntry(std::uint64_t index) const;
    std::string FindFault(const ZipEntry& entry) const;
    void MarkTwins();
    [[noreturn]] void Fail(const std::string& text) const;
    [[noreturn]] void Fail(const ZipEntry& entry, const std::string& text) const;

    QString m_path;
    std::unique_ptr<Archive> m_archive;
    std::vector<ZipEntry> m_entries;
    qint64 m_rest; ///< bytes that may still be unpacked
};

} // namespace LumetraHost
