// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/CheckedFileWriter.h"

#include "storage/FailWith.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace LumetraHost {
namespace {

std::string SystemReason(int error)
{
    return std::string(std::strerror(error)) + " (error " + std::to_string(error) + ")";
}

[[noreturn]] void Fail(const QString& path, const std::string& step, const std::string& reason)
{
    FailWith(path.toStdString() + ": cannot be written: " + step + ": " + reason);
}

/// Throws with the system's reason: Qt's own text is often "Unknown error".
[[noreturn]] void Fail(const QSaveFile& file, const std::string& step, int error)
{
    const std::string fallback = file.error() == QFileDevice::NoError
                                     ? std::string("the system gave no reason")
                                     : file.errorString().toStdString();
    Fail(file.fileName(), step, error != 0 ? SystemReason(error) : fallback);
}

void CheckTarget(const QString& path)
{
    if (path.isEmpty())
        Fail(path, "looking at the path", "expected a file name, found an empty text");
    const QFileInfo target(path);
    if (target.isDir())
        Fail(path, "looking at the path", "expected a file, found a folder");
    if (target.exists() && !target.isFile())
        Fail(path, "looking at the path", "expected a regular file, found a device or a pipe");
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
        Fail(path, "looking at its folder",
             "expected an existing folder " + target.absolutePath().toStdString());
}

void Open(QSaveFile& file)
{
    errno = 0;
    // Writes are unbuffered, so that every failure is seen at the call that caused it.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        Fail(file, "creating a temporary file beside it", errno);
}

void WriteAll(QSaveFile& file, const char* content, qint64 size)
{
    errno = 0;
    const qint64 written = file.write(content, size);
    int error = errno;
    if (written == size && file.flush() && file.error() == QFileDevice::NoError)
        return;
    error = error != 0 ? error : errno;
    file.cancelWriting();
    Fail(file, "writing " + std::to_string(size) + " bytes to a temporary file beside it", error);
}

void SyncContent(QSaveFile& file)
{
    errno = 0;
    if (::fsync(file.handle()) == 0)
        return;
    const int error = errno;
    file.cancelWriting();
    Fail(file, "bringing the content to the disk", error);
}

void Commit(QSaveFile& file)
{
    errno = 0;
    if (!file.commit())
        Fail(file, "putting the finished temporary file in its place", errno);
}

/// Brings the entry of a file or folder to the disk; returns the system's error. File systems
/// without this operation, and folders that may be written but not listed, do so at their own pace.
int SyncEntry(const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    const QByteArray folder = QFile::encodeName(QFileInfo(target).absolutePath());
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return 0;
    const int error = ::fsync(handle) == 0 ? 0 : errno;
    ::close(handle);
    return error == EINVAL || error == ENOTSUP ? 0 : error;
}

void SyncFolder(const QString& path)
{
    if (const int error = SyncEntry(path))
        Fail(path, "the new content is in place, but bringing the folder's entry to the disk",
             SystemReason(error));
}

} // namespace

/// Brings the folders' entries to the disk too, since a lost entry loses the files in it. Errors of
/// that are ignored: a later write tells of a broken disk.
void CheckedFileWriter::MakeFolder(const QString& path)
{
    if (QFileInfo(path).isDir())
        return;
    if (!QDir().mkpath(path))
        FailWith(path.toStdString() + ": expected to make this folder");
    SyncEntry(path);
}

void CheckedFileWriter::Write(const QString& path, const QByteArray& content)
{
    Write(path, content.constData(), static_cast<std::size_t>(content.size()));
}

void CheckedFileWriter::Write(const QString& path, const void* content, std::size_t size)
{
    CheckTarget(path);
    QSaveFile file(path);
    Open(file);
    WriteAll(file, static_cast<const char*>(content), static_cast<qint64>(size));
    SyncContent(file);
    Commit(file);
    SyncFolder(path);
}

} // namespace LumetraHost
