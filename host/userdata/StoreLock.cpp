// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/StoreLock.h"

#include "Zorvik/Exception.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <boost/current_function.hpp>

namespace LumetraHost {
namespace {

constexpr int WaitMilliseconds = 10'000;
constexpr int TryMilliseconds = 200;
constexpr int AbandonedMilliseconds = 2'000;
// A living program on this machine is believed for longer: its disk may be slow.
constexpr int LivingMilliseconds = 60'000;

QString LockName(const QString& path)
{
    return path + QStringLiteral(".lock");
}

/// A lock without readable contents (its program was killed while making it) or from another
/// machine, old enough that nobody can be at work. QLockFile would respect it for ever.
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

QString Holder(const QLockFile& lock, const QString& name)
{
    qint64 pid = 0;
    QString host;
    QString application;
    if (!lock.getLockInfo(&pid, &host, &application))
        return QStringLiteral("its lock file \"%1\" cannot be made").arg(name);
    return QStringLiteral("%1 (process %2 on %3) holds it").arg(application).arg(pid).arg(host);
}

} // namespace

StoreLock::StoreLock(const QString& path) : m_lock(LockName(path))
{
    m_lock.setStaleLockTime(LivingMilliseconds);
    QElapsedTimer waited;
    waited.start();
    while (!m_lock.tryLock(TryMilliseconds)) {
        const bool isHeld = m_lock.error() == QLockFile::LockFailedError;
        if (!isHeld || waited.elapsed() > WaitMilliseconds)
            throw Zorvik::Exception((path +
                                     QStringLiteral(": expected to lock it for writing, but ") +
                                     Holder(m_lock, LockName(path)))
                                        .toStdString(),
                                    BOOST_CURRENT_FUNCTION, "userdata/StoreLock", __LINE__);
        if (IsAbandoned(m_lock, LockName(path)))
            QFile::remove(LockName(path));
    }
}

} // namespace LumetraHost
