// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/BackupRotation.h"

#include "storage/CheckedFileWriter.h"
#include "storage/FailWith.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace LumetraHost {
namespace {

constexpr char OldFormSuffix[] = ".version-1";

QByteArray ReadAll(const QString& name)
{
    QFile file(name);
    const bool isPlain = QFileInfo(name).isFile(); // a pipe would keep us waiting
    return isPlain && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    for (int number = 1; number <= Count; ++number)
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
    while (free < Count && QFile::exists(FileName(free)))
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
        FailWith((m_path + QStringLiteral(": expected to copy it to ") + name).toStdString());
    return name;
}

void BackupRotation::KeepOldForm(const QString& file) const
{
    const QByteArray content = ReadAll(file);
    const QString first = m_path + QLatin1String(OldFormSuffix);
    QString name = first;
    for (int attempt = 2; QFile::exists(name); ++attempt) {
        if (ReadAll(name) == content)
            return;
        name = first + QStringLiteral("-%1").arg(attempt);
    }
    CheckedFileWriter::Write(name, content);
}

bool BackupRotation::IsOldForm(const QString& fileName)
{
    return fileName.contains(QLatin1String(OldFormSuffix));
}

} // namespace LumetraHost
