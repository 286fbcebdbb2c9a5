// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/ContentFolder.h"

#include "storage/CheckedFileWriter.h"
#include "storage/FailWith.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace LumetraHost {
namespace {

constexpr std::size_t NameLength = 64;
constexpr int TemporaryFileMinutes = 10;

bool IsDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
}

} // namespace

ContentFolder::ContentFolder(const QString& path) : m_path(path) {}

std::string ContentFolder::NameOf(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().toStdString();
}

bool ContentFolder::IsName(const std::string& text)
{
    return text.size() == NameLength && std::all_of(text.begin(), text.end(), IsDigit);
}

QString ContentFolder::FileOf(const std::string& name) const
{
    return m_path + QLatin1Char('/') + QString::fromStdString(name);
}

std::string ContentFolder::FindProblem(const std::string& name, qint64 size) const
{
    const QFileInfo file(FileOf(name));
    const std::string expected =
        file.filePath().toStdString() + ": expected a file of " + std::to_string(size) + " bytes";
    if (!file.exists())
        return expected + ", found none";
    if (!file.isFile())
        return expected + (file.isDir() ? ", found a folder" : ", found no plain file");
    if (file.size() != size)
        return expected + ", found " + std::to_string(file.size());
    return file.isReadable() ? std::string() : expected + ", found one that must not be read";
}

QByteArray ContentFolder::Read(const std::string& name, qint64 size) const
{
    const std::string problem = FindProblem(name, size);
    if (!problem.empty())
        FailWith(problem);
    QFile file(FileOf(name));
    if (!file.open(QIODevice::ReadOnly))
        FailWith(file.fileName().toStdString() +
                 ": cannot be read: " + file.errorString().toStdString());
    const QByteArray content = file.read(size + 1);
    if (NameOf(content) != name)
        FailWith(file.fileName().toStdString() +
                 ": expected the content that its name is the SHA-256 of, found a damaged one");
    Remember(name);
    return content;
}

void ContentFolder::Remember(const std::string& name) const
{
    const std::lock_guard lock(m_mutex);
    m_seen.insert(name);
}

bool ContentFolder::HasSeen(const std::string& name) const
{
    const std::lock_guard lock(m_mutex);
    return m_seen.count(name) != 0;
}

void ContentFolder::Add(const QByteArray& content) const
{
    const std::string name = NameOf(content);
    QFile file(FileOf(name));
    const bool isThere = FindProblem(name, content.size()).empty() &&
                         file.open(QIODevice::ReadOnly) && file.readAll() == content;
    file.close();
    if (!isThere) {
        CheckedFileWriter::MakeFolder(m_path);
        CheckedFileWriter::Write(file.fileName(), content);
    }
    Remember(name);
}

std::set<std::string> ContentFolder::FindAll() const
{
    std::set<std::string> names;
    for (const QString& file : QDir(m_path).entryList(QDir::Files))
        if (IsName(file.toStdString()))
            names.insert(file.toStdString());
    return names;
}

void ContentFolder::Remove(const std::string& name) const
{
    QFile::remove(FileOf(name));
    QDir().rmdir(m_path); // of an empty one alone
}

void ContentFolder::RemoveOldTemporaryFiles() const
{
    const QDateTime limit = QDateTime::currentDateTime().addSecs(-60 * TemporaryFileMinutes);
    const QFileInfoList files = QDir(m_path).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : files)
        if (IsName(file.completeBaseName().toStdString()) && file.suffix().size() == 6 &&
            file.lastModified() < limit)
            QFile::remove(file.filePath());
}

} // namespace LumetraHost
