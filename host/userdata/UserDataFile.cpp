// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/UserDataFile.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/CheckedFileWriter.h"
#include "storage/FailWith.h"
#include "storage/JsonException.h"
#include "userdata/ContentCollector.h"
#include "userdata/StoreLock.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace LumetraHost {
namespace {

constexpr int FirstVersion = 1;
constexpr int TemporaryFileMinutes = 10;

/// The number before the point of "version"; files without one are of the first version.
int MajorVersion(const JsonObject& object)
{
    const JsonValue* version = object.Find(UserDataForm::KeyVersion);
    const JsonNumber* number = version ? version->As<JsonNumber>() : nullptr;
    return number ? static_cast<int>(std::min(std::max(number->value, 0.0), 1e6)) : FirstVersion;
}

QString Resolve(const QString& path)
{
    const QFileInfo file(path);
    return file.isSymLink() && file.exists() ? file.canonicalFilePath() : path;
}

/// Refuses a link without a target: to make the target would be to write where the user's disk is
/// missing at the moment.
void RefuseUnusable(const QString& path, const UserDataForm& form)
{
    if (path.isEmpty())
        FailWith("expected the name of a file of your own " + form.noun + ", found an empty text");
    const QFileInfo file(path);
    if (file.isSymLink() && !file.exists())
        FailWith(
            (path + QStringLiteral(": expected a file, found a link to \"%1\", which is not there")
                        .arg(file.symLinkTarget()))
                .toStdString());
}

/// True when the text of the format stands at one end of the file: a new file of the first version
/// had it as its last member.
bool NamesFormatAtAnEnd(const QString& path, const std::string& format)
{
    constexpr qint64 EndSize = 4096;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray begin = file.read(EndSize);
    const bool isEndThere = file.seek(std::max<qint64>(0, file.size() - EndSize));
    return begin.contains(format.c_str()) ||
           (isEndThere && file.read(EndSize).contains(format.c_str()));
}

[[noreturn]] void FailFormat(const QString& path, const std::string& expected,
                             const JsonValue* format)
{
    JsonPlace place{path.toStdString(), 0, 0};
    if (format) {
        place.line = format->line;
        place.column = format->column;
    }
    const std::string message = std::string("expected \"") + UserDataForm::KeyFormat +
                                "\" to be \"" + expected + "\"" + (format ? "" : ", found none");
    throw JsonException(place.ToText() + ": " + message, place, message);
}

} // namespace

/// The data from which a change goes on.
struct UserDataFile::Found
{
    JsonDocument document;
    QString source = {};    ///< the file that it was read from; empty for none
    bool isDamaged = false; ///< the document is from a backup, and the file has to be set aside
};

UserDataFile::UserDataFile(const QString& path, const UserDataForm& form)
    : m_path(Resolve(path)), m_form(form), m_backups(m_path),
      m_contents(std::make_shared<const ContentFolder>(FindContentFolder(m_path, form)))
{
}

QString UserDataFile::FindContentFolder(const QString& path, const UserDataForm& form)
{
    return Resolve(path) + form.contentSuffix;
}

qint64 UserDataFile::FindSizeLimit(const QString& path) const
{
    const bool isLarge = QFileInfo(path).size() > JsonDocument::MaxFileSize;
    const bool mayBeOld = isLarge && NamesFormatAtAnEnd(path, m_form.format);
    return mayBeOld ? m_form.largestOldFile : JsonDocument::MaxFileSize;
}

/// Takes an object without members for one of ours: it holds nothing that could be lost.
JsonDocument UserDataFile::ReadChecked(const QString& path) const
{
    JsonDocument document = JsonDocument::Read(path, FindSizeLimit(path));
    document.SetContents(m_contents);
    const JsonObject& root = *document.GetObject();
    if (!root.GetMembers().empty() && !m_form.IsOurs(root))
        FailFormat(path, m_form.format, root.Find(UserDataForm::KeyFormat));
    return document;
}

JsonDocument UserDataFile::Read()
{
    return Find().document;
}

UserDataFile::Found UserDataFile::Find()
{
    m_reports.clear();
    RefuseUnusable(m_path, m_form);
    const QFileInfo file(m_path);
    Found found{JsonDocument(m_path.toStdString())};
    if (!file.exists() || (file.isFile() && file.size() == 0)) {
        if (!m_backups.GetFiles().isEmpty())
            found = FindBackup(m_path.toStdString() +
                               (file.exists() ? ": the file is empty" : ": the file is missing"));
    } else {
        try {
            found.document = ReadChecked(m_path);
            found.source = m_path;
        } catch (const JsonException& error) {
            found = FindBackup(error.what());
        }
    }
    found.document.SetContents(m_contents);
    const auto names = ContentCollector::FindNames(*found.document.GetObject());
    m_named.insert(names.begin(), names.end());
    return found;
}

/// The backup; nothing, and a report, when it cannot be used.
std::optional<JsonDocument> UserDataFile::ReadBackup(const QString& path)
{
    try {
        return ReadChecked(path);
    } catch (const Zorvik::Exception& error) {
        m_reports.push_back(error.what());
        return std::nullopt;
    }
}
/// The newest good backup. Exception when there is none in place of a file with content.
UserDataFile::Found UserDataFile::FindBackup(const std::string& reason)
{
    for (const QString& backup : m_backups.GetFiles())
        if (const auto document = ReadBackup(backup)) {
            m_reports.push_back(reason + "; " + m_form.noun + " are taken from " +
                                backup.toStdString());
            return {*document, backup, true};
        }
    if (QFileInfo(m_path).size() > 0)
        FailWith(reason + "; expected a file of your own " + m_form.noun +
                 " or a good backup of one beside it, so the file is left alone and nothing is "
                 "saved");
    m_reports.push_back(reason + "; there is no good backup, so the list of " + m_form.noun +
                        " starts empty");
    return {JsonDocument(m_path.toStdString())};
}

JsonDocument UserDataFile::Update(const Edit& edit, const Contents& contents)
{
    RefuseUnusable(m_path, m_form);
    CheckedFileWriter::MakeFolder(QFileInfo(m_path).absolutePath());
    const StoreLock lock(m_path);
    RemoveOldTemporaryFiles();

    const Found found = Find();
    if (MajorVersion(*found.document.GetObject()) > m_form.majorVersion)
        FailWith(m_path.toStdString() + ": expected version " +
                 std::to_string(m_form.majorVersion) + ", found a newer one; nothing was written");
    JsonObject& object = *found.document.GetObject();
    if (!object.Find(UserDataForm::KeyFormat))
        found.document.GetRoot()->Set(UserDataForm::KeyFormat, m_form.format);
    if (object.Find(UserDataForm::KeyVersion) == nullptr && found.source.isEmpty())
        found.document.GetRoot()->Set(UserDataForm::KeyVersion, m_form.majorVersion);
    return edit(object) ? Replace(found, contents) : found.document;
}

/// Writes in an order in which a stop at any instant leaves a text whose contents are all on the
/// disk.
JsonDocument UserDataFile::Replace(const Found& found, const Contents& contents)
{
    const bool isOld = MajorVersion(*found.document.GetObject()) < m_form.majorVersion;
    if (isOld)
        found.document.GetRoot()->Set(UserDataForm::KeyVersion, m_form.majorVersion);
    const QByteArray text = found.document.ToText();
    JsonDocument written = JsonDocument::CheckReadable(text, m_path);
    written.SetContents(m_contents);

    if (isOld && !found.source.isEmpty())
        m_backups.KeepOldForm(found.source);
    const std::set<std::string> names = ContentCollector::FindNames(text);
    for (const auto& [name, content] : contents)
        if (names.count(name) != 0)
            m_contents->Add(content);
    if (found.isDamaged)
        SetDamagedAside();
    CheckedFileWriter::Write(m_path, text);
    m_named.insert(names.begin(), names.end());
    AddBackup(text);
    Collect();
    return written;
}

void UserDataFile::Collect()
{
    m_contents->RemoveOldTemporaryFiles();
    ContentCollector::Collect(*m_contents, m_named, m_path, m_backups.GetFiles(),
                              [this](const QString& path) { ReadChecked(path); });
}

void UserDataFile::SetDamagedAside()
{
    if (QFileInfo(m_path).size() > 0)
        m_reports.push_back(m_path.toStdString() + ": the damaged file was kept as " +
                            m_backups.SetAside().toStdString());
}

/// Only reports errors: the data themselves are safe by now.
void UserDataFile::AddBackup(const QByteArray& text)
{
    try {
        m_backups.Add(text);
    } catch (const Zorvik::Exception& error) {
        m_reports.push_back(m_path.toStdString() + ": the " + m_form.noun +
                            " were saved, but not a backup of them: " + error.what());
    }
}

/// Removes "NAME.XXXXXX", which killed writers leave, ten minutes later: nobody is writing it then.
void UserDataFile::RemoveOldTemporaryFiles() const
{
    const QFileInfo file(m_path);
    const QDateTime limit = QDateTime::currentDateTime().addSecs(-60 * TemporaryFileMinutes);
    const QFileInfoList candidates =
        file.dir().entryInfoList({file.fileName() + QStringLiteral(".??????"),
                                  file.fileName() + QStringLiteral(".backup-?.??????"),
                                  file.fileName() + QStringLiteral(".version-1*.??????")},
                                 QDir::Files);
    for (const QFileInfo& candidate : candidates)
        if (candidate.lastModified() < limit)
            QFile::remove(candidate.absoluteFilePath());
}

} // namespace LumetraHost
