// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportGuard.h"

#include "userdata/EditPlaces.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace LumetraEditor {
namespace {

using LumetraHost::FileIdentity;

/// The path without links; as it is where there is no such file.
QString WithoutLinks(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

bool IsEditFile(const QString& path)
{
    static const QRegularExpression name(
        QStringLiteral("\\.lumetra\\.json(\\.(unreadable|earlier)-[^/]*)?$"));
    return name.match(path).hasMatch();
}

/// True for files in the folder of the user's presets, their backups and kept edits.
bool IsOwnFile(const QString& path)
{
    const QString folder = WithoutLinks(QFileInfo(LumetraHost::EditPlaces::GetKeptFolder()).path());
    return path.startsWith(folder + QLatin1Char('/'));
}

} // namespace

void ExportGuard::AddPhotos(const QStringList& paths)
{
    const std::lock_guard lock(m_mutex);
    for (const QString& path : paths)
        m_photos.insert(path);
}

void ExportGuard::SetOpenPhoto(const QString& path)
{
    AddPhotos({path});
    const std::lock_guard lock(m_mutex);
    m_openPhoto = path;
}

ExportGuard::Photos ExportGuard::LookAtPhotos() const
{
    const std::lock_guard lock(m_mutex);
    Photos photos;
    photos.open = FileIdentity::Of(m_openPhoto);
    for (const QString& photo : m_photos)
        photos.all.insert(FileIdentity::Of(photo));
    return photos;
}

QString ExportGuard::FindObstacle(const QString& output) const
{
    return FindObstacle(output, LookAtPhotos());
}

QStringList ExportGuard::FindObstacles(const QStringList& outputs) const
{
    const Photos photos = LookAtPhotos();
    QStringList obstacles;
    for (const QString& output : outputs)
        obstacles.append(FindObstacle(output, photos));
    return obstacles;
}

QString ExportGuard::FindObstacle(const QString& output, const Photos& photos)
{
    const QFileInfo file(output);
    const QString name = file.fileName();
    if (file.isDir())
        return tr("“%1” is a folder.").arg(name);
    if (file.isSymLink() && !file.exists())
        return tr("“%1” is a link to a file that is not there.").arg(name);
    if (file.exists() && !file.isFile())
        return tr("“%1” is not an ordinary file.").arg(name);
    const QString photo = FindPhoto(output, photos);
    if (!photo.isEmpty())
        return photo;
    const QString target = WithoutLinks(output);
    if (IsEditFile(target))
        return tr("“%1” is the edit of a photo.").arg(name);
    if (IsOwnFile(target))
        return tr("“%1” is in the folder where the program keeps looks and edits.").arg(name);
    if (LumetraHost::EditPlaces::HasEdit(output))
        return tr("“%1” is a photo with an edit of its own. An export does not replace it.")
            .arg(name);
    return {};
}

QString ExportGuard::FindPhoto(const QString& output, const Photos& photos)
{
    const FileIdentity file = FileIdentity::Of(output);
    const QString name = QFileInfo(output).fileName();
    if (photos.open == file)
        return tr("“%1” is the photo that is open. An export does not replace it.").arg(name);
    if (photos.all.count(file) != 0)
        return tr("“%1” is one of the photos that were opened. An export does not replace it.")
            .arg(name);
    return {};
}

} // namespace LumetraEditor
