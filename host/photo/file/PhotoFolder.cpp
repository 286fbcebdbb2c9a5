// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/PhotoFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <filesystem>
#include <system_error>

namespace LumetraHost {
namespace {

namespace Files = std::filesystem;

QString Join(const QString& folder, const QString& name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

/// A name that is not valid in the system's encoding cannot be opened through its text.
bool IsReadable(const QByteArray& name)
{
    return QFile::encodeName(QFile::decodeName(name)) == name;
}

} // namespace

QString PhotoFolder::FindNameProblem(const QString& path)
{
    const bool hasLost = path.contains(QChar::ReplacementCharacter) && !QFileInfo::exists(path);
    return hasLost ? DescribeBadName() : QString();
}

QString PhotoFolder::DescribeBadName()
{
    return QStringLiteral("expected a name in the system's encoding, %1, found other bytes in it; "
                          "rename it")
        .arg(QString::fromLatin1(QTextCodec::codecForLocale()->name()));
}

bool PhotoFolder::IsPhotoName(const QString& name)
{
    return !name.startsWith(QLatin1Char('.')) &&
           GetExtensions().contains(QFileInfo(name).suffix().toLower());
}

const QStringList& PhotoFolder::GetExtensions()
{
    static const QStringList extensions =
        QStringLiteral(
            "jpg jpeg jpe png tif tiff webp heic heif avif "
            "dng cr2 cr3 crw nef nrw arw srf sr2 orf raf rw2 pef srw erf kdc mrw 3fr iiq")
            .split(QLatin1Char(' '));
    return extensions;
}

PhotoFolder::PhotoFolder(const QString& path, Depth depth)
{
    List(path, depth);
}

void PhotoFolder::List(const QString& folder, Depth depth)
{
    QStringList photos, folders;
    std::error_code error;
    Files::directory_iterator entries(QFile::encodeName(folder).toStdString(), error);
    for (; !error && entries != Files::directory_iterator(); entries.increment(error)) {
        const QByteArray raw = QByteArray::fromStdString(entries->path().filename().native());
        const QString name = QFile::decodeName(raw);
        std::error_code unknown;
        if (raw.startsWith('.'))
            continue;
        const bool isFolder = entries->is_directory(unknown);
        const bool isWanted = isFolder
                                  ? depth == Depth::WithSubfolders && !entries->is_symlink(unknown)
                                  : IsPhotoName(name);
        if (isWanted && !IsReadable(raw))
            m_problems.append(QStringLiteral("%1: %2").arg(Join(folder, name), DescribeBadName()));
        else if (isWanted)
            (isFolder ? folders : photos).append(name);
    }
    if (error)
        m_problems.append(QStringLiteral("%1: the folder cannot be listed: %2")
                              .arg(folder, QString::fromStdString(error.message())));
    photos.sort();
    folders.sort();
    for (const QString& name : photos)
        m_photos.append(Join(folder, name));
    for (const QString& name : folders)
        List(Join(folder, name), depth);
}

} // namespace LumetraHost
