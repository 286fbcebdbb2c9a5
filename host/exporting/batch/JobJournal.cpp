// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/JobJournal.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "storage/CheckedFileWriter.h"
#include "storage/ContentHash.h"
#include "storage/FailWith.h"
#include "storage/JsonDocument.h"
#include "storage/JsonWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace LumetraHost {
namespace {

constexpr qint64 LongestLine = 64 * 1024;

constexpr char OutputKey[] = "output";
constexpr char SizeKey[] = "size";
constexpr char FileKey[] = "file";
constexpr char JobKey[] = "job";

QString GetFolder(const QString& output)
{
    return QFileInfo(output).absolutePath() + QLatin1Char('/') +
           QLatin1String(JobJournal::FolderName);
}

[[noreturn]] void Fail(const QString& path, const char* step, int error)
{
    FailWith(path.toStdString() + ": the journal cannot be written: " + step + ": " +
             std::strerror(error));
}

/// A name that no other process uses, on whatever machine.
QString MakeName()
{
    QString host = QSysInfo::machineHostName();
    host.replace(QLatin1Char('/'), QLatin1Char('_'));
    return QStringLiteral("%1-%2.jsonl")
        .arg(host, QUuid::createUuid().toString(QUuid::WithoutBraces));
}

std::string MakeLine(const QString& output, const std::string& fingerprint, const Bytes& file)
{
    const auto member = [](const char* key, const std::string& value) {
        return JsonWriter::Quote(key) + ": " + value;
    };
    return "{" + member(OutputKey, JsonWriter::Quote(QFileInfo(output).fileName().toStdString())) +
           ", " + member(SizeKey, std::to_string(file.size())) + ", " +
           member(FileKey, JsonWriter::Quote(ContentHash::Of(file.data(), file.size()))) + ", " +
           member(JobKey, JsonWriter::Quote(fingerprint)) + "}\n";
}

/// Closes its file at the end.
class Handle
{
public:
    explicit Handle(const QString& path)
        : m_path(path), m_handle(::open(QFile::encodeName(path).constData(),
                                        O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666))
    {
        if (m_handle < 0)
            Fail(m_path, "opening it", errno);
    }
    ~Handle() { ::close(m_handle); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    /// Writes in one go, so that only the end of a text can be torn.
    void Append(const std::string& line) const
    {
        errno = 0;
        const auto written = ::write(m_handle, line.data(), line.size());
        if (written != static_cast<ssize_t>(line.size()))
            Fail(m_path, "writing a line", errno != 0 ? errno : ENOSPC);
        if (::fdatasync(m_handle) != 0 && errno != EINVAL && errno != ENOTSUP)
            Fail(m_path, "bringing a line to the disk", errno);
    }

private:
    QString m_path;
    int m_handle;
};

} // namespace

void JobJournal::ReadText(const QString& path, Entries& entries)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine(LongestLine);
        if (line.isEmpty())
            return;
        try {
            const auto document = JsonDocument::Parse(line, path.toStdString());
            const auto root = document.GetRoot();
            Entry entry;
            entry.size = static_cast<qint64>(root->Get(SizeKey, -1.0));
            entry.file = root->Get(FileKey, "");
            entry.job = root->Get(JobKey, "");
            entries.emplace(QString::fromStdString(root->Get(OutputKey, "")), entry);
        } catch (const Zorvik::Exception&) {
            continue; // torn, or no line of ours
        }
    }
}

/// The texts of all other processes: nobody needs to be told of one's own files.
JobJournal::Sizes JobJournal::ListTexts(const QString& folder) const
{
    Sizes sizes;
    const auto texts =
        QDir(folder).entryInfoList({QStringLiteral("*.jsonl")}, QDir::Files | QDir::Hidden);
    for (const QFileInfo& text : texts)
        sizes[text.filePath()] = text.size();
    const std::lock_guard lock(m_mutex);
    const auto own = m_ownTexts.find(folder);
    if (own != m_ownTexts.end())
        sizes.erase(own->second);
    return sizes;
}

/// Lists first: what is written while the texts are read makes the journal look grown.
JobJournal::ReadingPtr JobJournal::Read(const QString& folder) const
{
    const auto reading = std::make_shared<Reading>();
    reading->sizes = ListTexts(folder);
    for (const auto& [text, size] : reading->sizes)
        ReadText(text, reading->entries);
    const std::lock_guard lock(m_mutex);
    m_readings[folder] = reading;
    return reading;
}

JobJournal::ReadingPtr JobJournal::GetReading(const QString& folder) const
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_readings.find(folder);
        if (found != m_readings.end())
            return found->second;
    }
    return Read(folder);
}

bool JobJournal::HasGrown(const QString& folder, const Reading& reading) const
{
    return ListTexts(folder) != reading.sizes;
}

bool JobJournal::IsDone(const QString& output, const std::string& fingerprint) const
{
    if (fingerprint.empty())
        return false;
    const QString folder = GetFolder(output);
    const ReadingPtr reading = GetReading(folder);
    if (Names(reading->entries, output, fingerprint))
        return true;
    return HasGrown(folder, *reading) && Names(Read(folder)->entries, output, fingerprint);
}

bool JobJournal::Names(const Entries& entries, const QString& output,
                       const std::string& fingerprint)
{
    const QFileInfo info(output);
    const auto [begin, end] = entries.equal_range(info.fileName());
    std::string hash; // made when an entry asks for it
    return std::any_of(begin, end, [&](const auto& named) {
        const Entry& entry = named.second;
        if (entry.job != fingerprint || entry.size != info.size())
            return false;
        if (hash.empty())
            hash = ContentHash::OfFile(output);
        return !hash.empty() && entry.file == hash;
    });
}

QString JobJournal::GetOwnText(const QString& folder) const
{
    const std::lock_guard lock(m_mutex);
    QString& text = m_ownTexts[folder];
    if (text.isEmpty())
        text = folder + QLatin1Char('/') + MakeName();
    return text;
}

void JobJournal::Add(const QString& output, const std::string& fingerprint, const Bytes& file) const
{
    const QString folder = GetFolder(output);
    CheckedFileWriter::MakeFolder(folder);
    const std::string line = MakeLine(output, fingerprint, file);
    try {
        Handle(GetOwnText(folder)).Append(line);
    } catch (const Zorvik::Exception&) {
        const std::lock_guard lock(m_mutex);
        m_ownTexts.erase(folder); // its end may be torn: the next line begins a new text
        throw;
    }
}

} // namespace LumetraHost
