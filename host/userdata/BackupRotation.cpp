// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/BackupRotation.h"

#include "Zorvik/Exception.h"
#include "storage/CheckedFileWriter.h"

#include <QDateTime>
#include <QFile>

#include <boost/current_function.hpp>

namespace LumetraHost {
namespace {

QByteArray ReadAll(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

BackupRotation::BackupRotation(const QString& path) : m_path(path) {}

QString BackupRotation::FileName(int number) const
{
    return m_path + QStringLiteral(".backup-%1").arg(number);
}

QStringList BackupRotation::GetFiles() const
{
    QStringList files;
    for (int number = 1; number <= COUNT; ++number)
        if (QFile::exists(FileName(number)))
            files.append(FileName(number));
    return files;
}

void BackupRotation::Add(const QByteArray& content) const
{
    if (QFile::exists(FileName(1)) && ReadAll(FileName(1)) == content)
        return;
    // A gap left by an earlier stop is filled first, so that no more than the oldest copy goes.
    int free = 1;
    while (free < COUNT && QFile::exists(FileName(free)))
        ++free;
    QFile::remove(FileName(free));
    for (int number = free; number > 1; --number)
        QFile::rename(FileName(number - 1), FileName(number));
    CheckedFileWriter::Write(FileName(1), content);
}

QString BackupRotation::SetAside(const QString& word) const
{
    const QString dated = m_path + QLatin1Char('.') + word + QLatin1Char('-') +
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString name = dated;
    for (int attempt = 2; QFile::exists(name); ++attempt)
        name = dated + QStringLiteral("-%1").arg(attempt);
    if (!QFile::copy(m_path, name))
        throw Zorvik::Exception(
            (m_path + QStringLiteral(": expected to copy it to ") + name).toStdString(),
            BOOST_CURRENT_FUNCTION, "userdata/BackupRotation", __LINE__);
    return name;
}

} // namespace LumetraHost
