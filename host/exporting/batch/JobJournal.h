// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <QString>

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace LumetraHost {

/// Remembers which job made a file, for files that cannot carry its fingerprint themselves: a
/// folder of texts beside the files, one JSON object a line. Every process writes a text of its
/// own, so that any number of them on any number of machines may work in one folder, on network
/// file systems too. A line counts only as long as the file has the very content that it names:
/// lines may be torn, left over, or written for a file that never came. Usable from several
/// threads.
class JobJournal
{
public:
    static constexpr char FolderName[] = ".lumetra-journal";

    /// True when the journal says that the job with this fingerprint made the file at `output`, and
    /// the file has not changed since. A journal that cannot be read knows nothing.
    bool IsDone(const QString& output, const std::string& fingerprint) const;

    /// Notes that `file` is what the job writes to `output`. To be called before the file is put in
    /// its place: who is killed in between leaves a note without effect, not a file that nobody
    /// knows. On return the line has reached the disk. The folder of `output` has to exist.
    /// Zorvik::Exception that names the journal.
    void Add(const QString& output, const std::string& fingerprint, const Bytes& file) const;

private:
    struct Entry
    {
        qint64 size = 0;
        std::string file; ///< hash of its content
        std::string job;
    };
    /// Entries by the name of the file, without folder.
    using Entries = std::multimap<QString, Entry>;
    /// The sizes of texts by their names.
    using Sizes = std::map<QString, qint64>;

    /// A journal as it was when it was read. Never changed, so that threads share it.
    struct Reading
    {
        Entries entries;
        Sizes sizes;
    };
    using ReadingPtr = std::shared_ptr<const Reading>;

    static void ReadText(const QString& path, Entries& entries);
    static bool Names(const Entries& entries, const QString& output,
                      const std::string& fingerprint);
    Sizes ListTexts(const QString& folder) const;
    ReadingPtr Read(const QString& folder) const;
    ReadingPtr GetReading(const QString& folder) const;
    bool HasGrown(const QString& folder, const Reading& reading) const;
    QString GetOwnText(const QString& folder) const;

    mutable std::mutex m_mutex;
    mutable std::map<QString, ReadingPtr> m_readings; ///< by folder
    mutable std::map<QString, QString> m_ownTexts;
};

} // namespace LumetraHost
