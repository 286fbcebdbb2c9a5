// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ZipReader.h"

#include "storage/FailWith.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <map>

#include <sys/stat.h>
#include <unistd.h>
#include <zip.h>

namespace LumetraHost {
namespace {

const QByteArray Magic("PK\3\4", 4);
const QByteArray MagicOfEmpty("PK\5\6", 4);

std::string TextOf(int code)
{
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    std::string text = zip_error_strerror(&error);
    zip_error_fini(&error);
    return text;
}

std::string LimitText(qint64 largest, const std::string& found)
{
    return "expected at most " + std::to_string(largest) + " bytes, found " + found;
}

/// Folders end in a slash; archives of Windows may use the other one.
QString Normalised(const char* name)
{
    return QString::fromUtf8(name).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

} // namespace

struct ZipReader::Archive
{
    explicit Archive(zip_t* opened) : zip(opened) {}
    ~Archive() { zip_discard(zip); }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    zip_t* const zip;
};

ZipReader::ZipReader(const QString& path, qint64 largestTotal) : m_path(path), m_rest(largestTotal)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        Fail(info.isDir() ? "expected a file, found a folder" : "expected a plain file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail("cannot be read: " + file.errorString().toStdString());
    if (file.size() > LargestArchive)
        Fail(LimitText(LargestArchive, std::to_string(file.size())));
    const int handle = dup(file.handle());
    int code = ZIP_ER_OK;
    zip_t* const opened = handle < 0 ? nullptr : zip_fdopen(handle, 0, &code);
    if (!opened) {
        if (handle >= 0)
            close(handle);
        Fail("expected a zip archive: " + TextOf(code));
    }
    m_archive = std::make_unique<Archive>(opened);
    ListEntries();
}

ZipReader::~ZipReader() = default;

bool ZipReader::IsZip(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray beginning = file.read(Magic.size());
    return beginning == Magic || beginning == MagicOfEmpty;
}

void ZipReader::ListEntries()
{
    const zip_int64_t count = zip_get_num_entries(m_archive->zip, 0);
    if (count < 0 || static_cast<std::uint64_t>(count) > MostEntries)
        Fail("expected at most " + std::to_string(MostEntries) + " entries, found " +
             std::to_string(count));
    for (std::uint64_t i = 0; i < static_cast<std::uint64_t>(count); ++i) {
        ZipEntry entry = ReadEntry(i);
        if (!entry.name.endsWith(QLatin1Char('/')))
            m_entries.push_back(std::move(entry));
    }
    MarkTwins();
}

ZipEntry ZipReader::ReadEntry(std::uint64_t index) const
{
    ZipEntry entry;
    entry.index = index;
    const char* const name = zip_get_name(m_archive->zip, index, ZIP_FL_ENC_GUESS);
    entry.name = Normalised(name ? name : "");
    entry.fault = ZipEntry::FindNameFault(entry.name);
    zip_stat_t facts;
    if (zip_stat_index(m_archive->zip, index, 0, &facts) != 0)
        entry.fault = "expected a sound entry: " + std::string(zip_strerror(m_archive->zip));
    else if (facts.valid & ZIP_STAT_SIZE)
        entry.size = facts.size;
    if (entry.fault.empty())
        entry.fault = FindFault(entry);
    return entry;
}

std::string ZipReader::FindFault(const ZipEntry& entry) const
{
    zip_stat_t facts;
    if (zip_stat_index(m_archive->zip, entry.index, 0, &facts) == 0 &&
        (facts.valid & ZIP_STAT_ENCRYPTION_METHOD) && facts.encryption_method != ZIP_EM_NONE)
        return "expected a file without a password, found an encrypted one";
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    zip_file_get_external_attributes(m_archive->zip, entry.index, 0, &system, &attributes);
    const mode_t kind = (attributes >> 16) & S_IFMT;
    if (system == ZIP_OPSYS_UNIX && kind != 0 && kind != S_IFREG)
        return kind == S_IFLNK ? "expected a file, found a symbolic link"
                               : "expected a plain file, found something else";
    return {};
}

/// Gives entries of one name a fault: nobody can tell which of them is meant.
void ZipReader::MarkTwins()
{
    std::map<QString, int> counts;
    for (const ZipEntry& entry : m_entries)
        ++counts[entry.name];
    for (ZipEntry& entry : m_entries)
        if (entry.fault.empty() && counts[entry.name] > 1)
            entry.fault = "expected a name of its own, found it " +
                          std::to_string(counts[entry.name]) + " times";
}

QByteArray ZipReader::Read(const ZipEntry& entry, qint64 largest)
{
    if (!entry.fault.empty())
        Fail(entry, entry.fault);
    const qint64 limit = std::min(largest, m_rest);
    if (entry.size > static_cast<std::uint64_t>(limit))
        Fail(entry, LimitText(limit, std::to_string(entry.size)));
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(
        zip_fopen_index(m_archive->zip, entry.index, 0), zip_fclose);
    if (!file)
        Fail(entry, std::string("cannot be unpacked: ") + zip_strerror(m_archive->zip));
    QByteArray content;
    QByteArray part(1 << 16, Qt::Uninitialized);
    zip_int64_t count = 0;
    while ((count = zip_fread(file.get(), part.data(), part.size())) > 0) {
        content.append(part.constData(), static_cast<int>(count));
        if (content.size() > limit)
            Fail(entry, LimitText(limit, "more than it announces"));
    }
    if (count < 0)
        Fail(entry, std::string("cannot be unpacked: ") + zip_file_strerror(file.get()));
    m_rest -= content.size();
    return content;
}

QString ZipReader::NameOf(const ZipEntry& entry) const
{
    return m_path + QStringLiteral(": ") + entry.name;
}

void ZipReader::Fail(const std::string& text) const
{
    FailWith(m_path.toStdString() + ": " + text);
}

void ZipReader::Fail(const ZipEntry& entry, const std::string& text) const
{
    FailWith(NameOf(entry).toStdString() + ": " + text);
}

} // namespace LumetraHost
