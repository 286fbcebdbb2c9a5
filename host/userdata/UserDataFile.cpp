// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/UserDataFile.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/CheckedFileWriter.h"
#include "storage/JsonException.h"
#include "userdata/ContentCollector.h"
#include "userdata/StoreLock.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <boost/current_function.hpp>

namespace LumetraHost {
namespace {

constexpr char FormatKey[] = "format";
constexpr char VersionKey[] = "version";
constexpr char PresetsKey[] = "UserPresets";
constexpr char FavouritesKey[] = "Favourites";
constexpr char ContentSuffix[] = ".tables";
constexpr int FirstVersion = 1;
constexpr int TemporaryFileMinutes = 10;

/// The number before the point of "version"; files without one are of the first version.
int MajorVersion(const JsonObject& object)
{
    const JsonValue* version = object.Find(VersionKey);
    const JsonNumber* number = version ? version->As<JsonNumber>() : nullptr;
    return number ? static_cast<int>(std::min(std::max(number->value, 0.0), 1e6)) : FirstVersion;
}

[[noreturn]] void Fail(const std::string& description, int line)
{
    throw Zorvik::Exception(description, BOOST_CURRENT_FUNCTION, "userdata/UserDataFile", line);
}

void MakeFolder(const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        Fail((folder + QStringLiteral(": expected to make this folder")).toStdString(), __LINE__);
}

QString Resolve(const QString& path)
{
    const QFileInfo file(path);
    return file.isSymLink() && file.exists() ? file.canonicalFilePath() : path;
}

/// Making the target of a link would put presets where the user's disk is not there at the moment.
void RefuseUnusable(const QString& path)
{
    if (path.isEmpty())
        Fail("expected the name of a file of your own presets, found an empty text", __LINE__);
    const QFileInfo file(path);
    if (file.isSymLink() && !file.exists())
        Fail((path + QStringLiteral(": expected a file, found a link to \"%1\", which is not there")
                         .arg(file.symLinkTarget()))
                 .toStdString(),
             __LINE__);
}

/// The first version wrote no format. An object without members holds nothing that could be lost.
bool HasMembersOfStore(const JsonObject& object)
{
    return object.Find(PresetsKey) || object.Find(FavouritesKey) || object.GetMembers().empty();
}

/// True when both ends of the file do not speak against one of ours. It was the last thing that the
/// first version wrote into a new file.
bool NamesFormatAtAnEnd(const QString& path)
{
    constexpr qint64 EndSize = 4096;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray begin = file.read(EndSize);
    const bool isEndThere = file.seek(std::max<qint64>(0, file.size() - EndSize));
    return begin.contains(UserDataFile::FORMAT) ||
           (isEndThere && file.read(EndSize).contains(UserDataFile::FORMAT));
}

[[noreturn]] void FailFormat(const QString& path, const JsonValue* format)
{
    JsonPlace place{path.toStdString(), 0, 0};
    if (format) {
        place.line = format->line;
        place.column = format->column;
    }
    const std::string message = std::string("expected \"format\" to be \"") + UserDataFile::FORMAT +
                                "\"" + (format ? "" : ", found none");
    throw JsonException(place.ToText() + ": " + message, place, message, BOOST_CURRENT_FUNCTION,
                        __LINE__);
}

} // namespace

/// What is there to go on from.
struct UserDataFile::Found
{
    JsonDocument document;
    QString source = {};    ///< the file that it was read from; empty for none
    bool isDamaged = false; ///< the document is from a backup, and the file has to be set aside
};

UserDataFile::UserDataFile(const QString& path)
    : m_path(Resolve(path)), m_backups(m_path),
      m_contents(std::make_shared<const ContentFolder>(FindContentFolder(m_path)))
{
}

QString UserDataFile::FindContentFolder(const QString& path)
{
    return Resolve(path) + QLatin1String(ContentSuffix);
}

bool UserDataFile::IsReadOnly() const
{
    return m_isReadOnly;
}

const std::vector<std::string>& UserDataFile::GetReports() const
{
    return m_reports;
}

const QString& UserDataFile::GetPath() const
{
    return m_path;
}

JsonDocument UserDataFile::ReadChecked(const QString& path) const
{
    const bool isLarge = QFileInfo(path).size() > JsonDocument::MAX_FILE_SIZE;
    const bool mayBeOld = isLarge && NamesFormatAtAnEnd(path);
    JsonDocument document =
        JsonDocument::Read(path, mayBeOld ? LARGEST_OLD_FILE : JsonDocument::MAX_FILE_SIZE);
    document.SetContents(m_contents);
    const JsonObject& object = *document.GetObject();
    const JsonValue* format = object.Find(FormatKey);
    const std::string* text = format ? format->As<std::string>() : nullptr;
    if (format ? !text || *text != FORMAT : !HasMembersOfStore(object))
        FailFormat(path, format);
    return document;
}

JsonDocument UserDataFile::Read()
{
    return Find().document;
}

UserDataFile::Found UserDataFile::Find()
{
    m_reports.clear();
    RefuseUnusable(m_path);
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
    m_isReadOnly = MajorVersion(*found.document.GetObject()) > MAJOR_VERSION;
    found.document.SetContents(m_contents);
    const auto names = ContentCollector::FindNames(*found.document.GetObject());
    m_named.insert(names.begin(), names.end());
    return found;
}

/// Nothing, and reported, when it is no good.
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
            m_reports.push_back(reason + "; presets are taken from " + backup.toStdString());
            return {*document, backup, true};
        }
    if (QFileInfo(m_path).size() > 0)
        Fail(reason + "; expected a file of your own presets or a good backup of one beside it, so "
                      "the file is left alone and nothing is saved",
             __LINE__);
    m_reports.push_back(reason + "; there is no good backup, so the list of presets starts empty");
    return {JsonDocument(m_path.toStdString())};
}

JsonDocument UserDataFile::Update(const Edit& edit)
{
    return Update(edit, {});
}

JsonDocument UserDataFile::Update(const Edit& edit, const Contents& contents)
{
    RefuseUnusable(m_path);
    MakeFolder(m_path);
    const StoreLock lock(m_path);
    RemoveOldTemporaryFiles();

    const Found found = Find();
    if (m_isReadOnly)
        Fail(m_path.toStdString() + ": expected version " + std::to_string(MAJOR_VERSION) +
                 ", found a newer one; nothing was written",
             __LINE__);
    JsonObject& object = *found.document.GetObject();
    if (!object.Find(FormatKey))
        found.document.GetRoot()->Set(FormatKey, FORMAT);
    if (object.Find(VersionKey) == nullptr && found.source.isEmpty())
        found.document.GetRoot()->Set(VersionKey, MAJOR_VERSION);
    return edit(object) ? Replace(found, contents) : found.document;
}

/// In this order a stop at any instant leaves a text whose contents are all on the disk.
JsonDocument UserDataFile::Replace(const Found& found, const Contents& contents)
{
    const bool isOld = MajorVersion(*found.document.GetObject()) < MAJOR_VERSION;
    if (isOld)
        found.document.GetRoot()->Set(VersionKey, MAJOR_VERSION);
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

/// The presets themselves are safe by now.
void UserDataFile::AddBackup(const QByteArray& text)
{
    try {
        m_backups.Add(text);
    } catch (const Zorvik::Exception& error) {
        m_reports.push_back(m_path.toStdString() +
                            ": the presets were saved, but not a backup of them: " + error.what());
    }
}

/// A writer that was killed leaves "NAME.XXXXXX"; ten minutes on nobody is writing it.
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
