// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/ContentFolder.h"
#include "storage/JsonDocument.h"
#include "userdata/BackupRotation.h"
#include "userdata/UserDataForm.h"

#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace LumetraHost {

/// A JSON file that holds data of the user, safe against a stop at any instant, against damage and
/// against other programs that write it too.
///
/// Reading writes nothing. A damaged file is read from its newest good backup; the next change
/// copies the damaged one to a dated name and takes its place. A file of another form without a
/// good backup is refused and left alone. A file of a newer major version can be read but not
/// written; one of an older version takes the new form with the first change, and a copy in the old
/// form stays beside it for good. Contents that are too large for the text stand in a folder beside
/// it and are named in the text. The class does not interpret the data; a UserDataForm tells it
/// which files are its own.
class UserDataFile
{
public:
    using Edit = std::function<bool(JsonObject& current)>;
    /// Contents by their names.
    using Contents = std::map<std::string, QByteArray>;

    /// Reads and makes nothing yet; the folder is made when something is first written. A link is
    /// followed once, so that lock and backups are the same under every name.
    UserDataFile(const QString& path, const UserDataForm& form);

    /// The file's content now, or that of its newest good backup when the file is missing or
    /// damaged; an empty document when there is neither file nor backup, or a file of 0 bytes
    /// alone. Exception when the file cannot be read at all (no permission, a folder, a pipe, a
    /// link to nothing), and when it has another form and no good backup.
    JsonDocument Read();

    /// Under the lock: reads the file again, lets `edit` change it and, when `edit` says that it
    /// did, writes it and a backup. Returns the content that the file has afterwards. Exception,
    /// and the file as it was, when Read() would throw, when it cannot be locked or written, or is
    /// of a newer major version. A backup that fails is only reported.
    ///
    /// `edit` may fill `contents`; those that the new text names are written before it.
    /// Contents that nobody names any more are removed after it.
    JsonDocument Update(const Edit& edit, const Contents& contents = {});

    /// The folder that belongs to the file at `path`.
    static QString FindContentFolder(const QString& path, const UserDataForm& form);
    const ContentFolderPtr& GetContents() const { return m_contents; }

    /// Problems during the last Read() or Update(), a sentence each.
    const std::vector<std::string>& GetReports() const { return m_reports; }

private:
    struct Found;

    Found Find();
    Found FindBackup(const std::string& reason);
    qint64 FindSizeLimit(const QString& path) const;
    JsonDocument ReadChecked(const QString& path) const;
    JsonDocument Replace(const Found& found, const Contents& contents);
    std::optional<JsonDocument> ReadBackup(const QString& path);
    void SetDamagedAside();
    void AddBackup(const QByteArray& text);
    void Collect();
    void RemoveOldTemporaryFiles() const;

    QString m_path;
    UserDataForm m_form;
    BackupRotation m_backups;
    ContentFolderPtr m_contents;
    std::set<std::string> m_named; // in all texts that this object has seen: an undo may need them
    std::vector<std::string> m_reports;
};

} // namespace LumetraHost
