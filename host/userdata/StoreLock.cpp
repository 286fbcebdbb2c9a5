// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/StoreLock.h"

#include "storage/FailWith.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <cstring>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace LumetraHost {
namespace {

constexpr int WaitMilliseconds = 10'000;
constexpr int TryMilliseconds = 200;
constexpr int AbandonedMilliseconds = 2'000;
constexpr int LockBytes = 64; // about as many as a lock file has
// A living program on this machine is believed for longer: its disk may be slow.
constexpr int LivingMilliseconds = 60'000;

QString LockName(const QString& path)
{
    return path + QStringLiteral(".lock");
}

/// True for a lock without readable contents (its program was killed while making it) or from
/// another machine, old enough that nobody can be at work. QLockFile would respect it for ever.
bool IsAbandoned(const QLockFile& lock, const QString& name)
{
    const QDateTime modified = QFileInfo(name).lastModified();
    if (!modified.isValid() ||
        modified.msecsTo(QDateTime::currentDateTime()) < AbandonedMilliseconds)
        return false;
    qint64 pid = 0;
    QString host;
    QString application;
    return !lock.getLockInfo(&pid, &host, &application) || host != QSysInfo::machineHostName();
}

/// Why the system refuses a lock file of that name; QLockFile tells no more than "cannot".
std::string ReasonAgainst(const QString& name)
{
    if (QFileInfo(name).isDir())
        return "a folder has that name";
    const QByteArray file = QFile::encodeName(name);
    const int handle = ::open(file.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    const int error = errno;
    if (handle < 0)
        return std::strerror(error);
    // The test writes bytes, since a full disk may still have room for an empty file.
    constexpr char content[LockBytes] = {};
    const bool isWritten = ::write(handle, content, sizeof content) == LockBytes;
    const int writeError = errno;
    ::close(handle);
    ::unlink(file.constData());
    return isWritten ? "the system gave no reason" : std::strerror(writeError);
}

[[noreturn]] void Fail(const QString& path, const std::string& problem)
{
    FailWith(path.toStdString() + ": cannot be locked for writing: " + problem);
}

[[noreturn]] void FailToMake(const QString& path)
{
    const QString name = LockName(path);
    Fail(path,
         "making its lock file \"" + name.toStdString() + "\" failed: " + ReasonAgainst(name));
}

[[noreturn]] void FailToWait(const QLockFile& lock, const QString& path)
{
    qint64 pid = 0;
    QString host;
    QString application;
    const bool isKnown = lock.getLockInfo(&pid, &host, &application);
    const QString holder =
        isKnown ? QStringLiteral("%1 (process %2 on %3)").arg(application).arg(pid).arg(host)
                : QStringLiteral("another program");
    Fail(path, QStringLiteral("%1 has held its lock file \"%2\" for %3 seconds")
                   .arg(holder, LockName(path))
                   .arg(WaitMilliseconds / 1000)
                   .toStdString());
}

} // namespace

StoreLock::StoreLock(const QString& path) : m_lock(LockName(path))
{
    m_lock.setStaleLockTime(LivingMilliseconds);
    QElapsedTimer waited;
    waited.start();
    while (!m_lock.tryLock(TryMilliseconds)) {
        const bool isHeld = m_lock.error() == QLockFile::LockFailedError;
        if (!isHeld || QFileInfo(LockName(path)).isDir())
            FailToMake(path);
        if (waited.elapsed() > WaitMilliseconds)
            FailToWait(m_lock, path);
        if (IsAbandoned(m_lock, LockName(path)))
            QFile::remove(LockName(path));
    }
}

} // namespace LumetraHost
