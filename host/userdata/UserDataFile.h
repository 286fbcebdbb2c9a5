// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonDocument.h"
#include "userdata/BackupRotation.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// The one JSON file that holds the user's presets and favourites, safe against a stop at any
/// instant, against damage and against other programs that write it too.
///
/// A file that cannot be understood is copied to a dated name and replaced by the newest good
/// backup. A file of a newer major version can be read but not written. It knows nothing of what
/// the presets mean.
class UserDataFile
{
public:
    static constexpr char FORMAT[] = "lumetra-user-presets";
    static constexpr int MAJOR_VERSION = 1;

    /// The folder is made when something is first written.
    explicit UserDataFile(const QString& path);

    /// The file's content now; an empty document when there is no file. Exception when it exists
    /// and cannot be read at all (no permission, a folder); the file is then left alone.
    JsonDocument Read();

    /// Under the lock: reads the file again, lets `edit` change it and, when `edit` says that it
    /// did, writes it and a backup. Returns the content that the file has afterwards. Exception,
    /// and the file as it was, when anything fails or the file is of a newer major version.
    JsonDocument Update(const std::function<bool(JsonObject& current)>& edit);

    /// True when the content last read is of a newer major version.
    bool IsReadOnly() const;
    /// What had to be repaired since the object was made, a sentence each.
    const std::vector<std::string>& GetReports() const;
    const QString& GetPath() const;

private:
    JsonDocument ReadOrRestore();
    JsonDocument Restore(const std::string& reason);
    JsonDocument ReadChecked(const QString& path) const;
    std::optional<JsonDocument> ReadBackup(const QString& path);
    void RemoveOldTemporaryFiles() const;

    QString m_path;
    BackupRotation m_backups;
    std::vector<std::string> m_reports;
    bool m_isReadOnly = false;
};

} // namespace LumetraHost
