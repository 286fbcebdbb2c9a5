// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/PhotoFile.h"

#include "photo/file/PhotoFolder.h"
#include "storage/FailWith.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>

namespace LumetraHost {

PhotoFile::PhotoFile(const QString& path) : m_name(path.toStdString())
{
    CheckKind(path);
    // A pipe that took the file's place meanwhile would make us wait for its other end.
    const int handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (handle < 0)
        Fail(std::string("the file cannot be opened: ") + std::strerror(errno));
    if (!m_file.open(handle, QIODevice::ReadOnly | QIODevice::Unbuffered,
                     QFileDevice::AutoCloseHandle))
        Fail("the file cannot be opened: " + m_file.errorString().toStdString());
    struct stat status;
    if (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode))
        Fail("expected a regular file, found a device or a pipe");
    m_size = static_cast<std::uint64_t>(status.st_size);
}

void PhotoFile::CheckKind(const QString& path) const
{
    const QFileInfo info(path);
    if (const QString problem = PhotoFolder::FindNameProblem(path); !problem.isEmpty())
        Fail(problem.toStdString());
    if (!info.exists())
        Fail("there is no such file");
    if (info.isDir())
        Fail("expected a photo, found a folder");
    if (!info.isFile())
        Fail("expected a regular file, found a device or a pipe");
}

Bytes PhotoFile::ReadPart(std::uint64_t offset, std::size_t size)
{
    const std::uint64_t begin = std::min(offset, m_size);
    Bytes part(static_cast<std::size_t>(std::min<std::uint64_t>(size, m_size - begin)));
    const auto wanted = static_cast<qint64>(part.size());
    const bool isThere = m_file.seek(static_cast<qint64>(begin));
    const qint64 found = isThere ? m_file.read(reinterpret_cast<char*>(part.data()), wanted) : -1;
    if (found < 0)
        Fail("the file cannot be read: " + m_file.errorString().toStdString());
    if (found < wanted)
        Fail("the file became shorter while it was read: expected " + std::to_string(m_size) +
             " bytes, found " + std::to_string(begin + static_cast<std::uint64_t>(found)));
    return part;
}

Bytes PhotoFile::ReadAll()
{
    Bytes content = ReadPart(0, static_cast<std::size_t>(m_size));
    const auto size = static_cast<std::uint64_t>(m_file.size());
    if (size != m_size)
        Fail("the file changed while it was read: expected " + std::to_string(m_size) +
             " bytes, found " + std::to_string(size));
    return content;
}

void PhotoFile::Fail(const std::string& text) const
{
    FailWith(m_name + ": " + text);
}

} // namespace LumetraHost
