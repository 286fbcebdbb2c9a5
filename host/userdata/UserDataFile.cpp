// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/UserDataFile.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/CheckedFileWriter.h"
#include "storage/JsonException.h"
#include "userdata/StoreLock.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <boost/current_function.hpp>

namespace LumetraHost {
namespace {

constexpr char FormatKey[] = "format";
constexpr char VersionKey[] = "version";
constexpr int TemporaryFileMinutes = 10;

/// The number before the point of "version"; files without one are of the first version.
int MajorVersion(const JsonObject& object)
{
    const JsonValue* version = object.Find(VersionKey);
    const JsonNumber* number = version ? version->As<JsonNumber>() : nullptr;
    return number ? static_cast<int>(std::min(std::max(number->value, 0.0), 1e6))
                  : UserDataFile::MAJOR_VERSION;
}

void MakeFolder(const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        throw Zorvik::Exception(
            (folder + QStringLiteral(": expected to make this folder")).toStdString(),
            BOOST_CURRENT_FUNCTION, "userdata/UserDataFile", __LINE__);
}

} // namespace

UserDataFile::UserDataFile(const QString& path) : m_path(path), m_backups(path) {}

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

/// A file of another format is refused like a damaged one: writing ours would destroy it.
JsonDocument UserDataFile::ReadChecked(const QString& path) const
{
    JsonDocument document = JsonDocument::Read(path);
    const JsonObject& object = *document.GetObject();
    const JsonValue* format = object.Find(FormatKey);
    const std::string* text = format ? format->As<std::string>() : nullptr;
    if (format && (!text || *text != FORMAT)) {
        const JsonPlace place{path.toStdString(), format->line, format->column};
        const std::string message = std::string("expected \"format\" to be \"") + FORMAT + "\"";
        throw JsonException(place.ToText() + ": " + message, place, message, BOOST_CURRENT_FUNCTION,
                            __LINE__);
    }
    return document;
}

JsonDocument UserDataFile::Read()
{
    if (!QFileInfo::exists(m_path) && m_backups.GetFiles().isEmpty())
        return JsonDocument(m_path.toStdString());
    try {
        JsonDocument document = ReadChecked(m_path);
        m_isReadOnly = MajorVersion(*document.GetObject()) > MAJOR_VERSION;
        return document;
    } catch (const JsonException&) {
        // Repaired below, under the lock; another program may have done so by then.
    } catch (const Zorvik::Exception&) {
        if (QFileInfo::exists(m_path))
            throw;
    }
    const StoreLock lock(m_path);
    return ReadOrRestore();
}

JsonDocument UserDataFile::ReadOrRestore()
{
    m_isReadOnly = false;
    if (!QFileInfo::exists(m_path))
        return m_backups.GetFiles().isEmpty()
                   ? JsonDocument(m_path.toStdString())
                   : Restore(m_path.toStdString() + ": the file is missing");
    try {
        JsonDocument document = ReadChecked(m_path);
        m_isReadOnly = MajorVersion(*document.GetObject()) > MAJOR_VERSION;
        return document;
    } catch (const JsonException& error) {
        const std::string aside = m_backups.SetAside().toStdString();
        return Restore(std::string(error.what()) + "; the file was kept as " + aside);
    }
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

/// The newest good backup, which takes the file's place.
JsonDocument UserDataFile::Restore(const std::string& reason)
{
    for (const QString& backup : m_backups.GetFiles()) {
        const auto document = ReadBackup(backup);
        if (!document)
            continue;
        CheckedFileWriter::Write(m_path, document->ToText());
        m_reports.push_back(reason + "; presets were taken from " + backup.toStdString());
        m_isReadOnly = MajorVersion(*document->GetObject()) > MAJOR_VERSION;
        return JsonDocument::Read(m_path);
    }
    JsonDocument empty(m_path.toStdString());
    empty.GetRoot()->Set(FormatKey, FORMAT);
    empty.GetRoot()->Set(VersionKey, MAJOR_VERSION);
    CheckedFileWriter::Write(m_path, empty.ToText());
    m_reports.push_back(reason + "; there is no good backup, so the list of presets starts empty");
    return empty;
}

JsonDocument UserDataFile::Update(const std::function<bool(JsonObject& current)>& edit)
{
    MakeFolder(m_path);
    const StoreLock lock(m_path);
    RemoveOldTemporaryFiles();

    JsonDocument document = ReadOrRestore();
    JsonObject& object = *document.GetObject();
    if (m_isReadOnly)
        throw Zorvik::Exception(m_path.toStdString() + ": expected version " +
                                    std::to_string(MAJOR_VERSION) +
                                    ", found a newer one; nothing was written",
                                BOOST_CURRENT_FUNCTION, "userdata/UserDataFile", __LINE__);
    if (!edit(object))
        return document;
    if (!object.Find(FormatKey))
        document.GetRoot()->Set(FormatKey, FORMAT);
    if (!object.Find(VersionKey))
        document.GetRoot()->Set(VersionKey, MAJOR_VERSION);

    const QByteArray text = document.ToText();
    CheckedFileWriter::Write(m_path, text);
    m_backups.Add(text);
    return document;
}

/// A writer that was killed leaves "NAME.XXXXXX"; ten minutes on nobody is writing it.
void UserDataFile::RemoveOldTemporaryFiles() const
{
    const QFileInfo file(m_path);
    const QDateTime limit = QDateTime::currentDateTime().addSecs(-60 * TemporaryFileMinutes);
    const QFileInfoList candidates =
        file.dir().entryInfoList({file.fileName() + QStringLiteral(".??????"),
                                  file.fileName() + QStringLiteral(".backup-?.??????")},
                                 QDir::Files);
    for (const QFileInfo& candidate : candidates)
        if (candidate.lastModified() < limit)
            QFile::remove(candidate.absoluteFilePath());
}

} // namespace LumetraHost
