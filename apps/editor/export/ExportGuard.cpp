// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportGuard.h"

#include "userdata/EditPlaces.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace LumetraEditor {
namespace {

using LumetraHost::FileIdentity;

/// The path without links; as it is where there is no such file.
QString WithoutLinks(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

QString FoldedName(const QString& path)
{
    return QFileInfo(path).fileName().toCaseFolded();
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

/// The thread has nothing to do any more.
ExportGuard::~ExportGuard()
{
    const std::lock_guard lock(m_mutex);
    m_new.clear();
}

void ExportGuard::AddPhotos(const QStringList& paths)
{
    {
        const std::lock_guard lock(m_mutex);
        for (const QString& path : paths) {
            if (m_photos.contains(path))
                continue;
            m_photos.insert(path);
            m_byName.insert(FoldedName(path), path);
            m_new.push_back(path);
        }
        if (m_new.empty())
            return;
    }
    m_thread.Run([this] { LookAtNewPhotos(); }, {});
}

void ExportGuard::SetOpenPhoto(const QString& path)
{
    if (!path.isEmpty())
        AddPhotos({path});
    const std::lock_guard lock(m_mutex);
    m_openPhoto = path;
}

QString ExportGuard::GetOpenPhoto() const
{
    const std::lock_guard lock(m_mutex);
    return m_openPhoto;
}

/// On return every photo that has been added has been looked at, by whichever thread.
void ExportGuard::LookAtNewPhotos() const
{
    for (;;) {
        const std::lock_guard looking(m_looking);
        QString photo;
        {
            const std::lock_guard lock(m_mutex);
            if (m_new.empty())
                return;
            photo = m_new.front();
            m_new.pop_front();
        }
        const FileIdentity identity = FileIdentity::Of(photo);
        const std::lock_guard lock(m_mutex);
        m_byIdentity.emplace(identity, photo);
    }
}

/// A photo is found by what it was when it was looked at, and by its name where another program has
/// put a new file into its place since.
bool ExportGuard::IsPhoto(const QString& output, const FileIdentity& file) const
{
    LookAtNewPhotos();
    QStringList candidates;
    {
        const std::lock_guard lock(m_mutex);
        const auto [first, last] = m_byIdentity.equal_range(file);
        for (auto photo = first; photo != last; ++photo)
            candidates.append(photo->second);
        candidates += m_byName.values(FoldedName(output));
        candidates += m_byName.values(FoldedName(WithoutLinks(output)));
    }
    return std::any_of(candidates.begin(), candidates.end(),
                       [&file](const QString& photo) { return FileIdentity::Of(photo) == file; });
}

QString ExportGuard::FindObstacle(const QString& output) const
{
    const QFileInfo file(output);
    const QString name = file.fileName();
    if (file.isDir())
        return tr("“%1” is a folder.").arg(name);
    if (file.isSymLink() && !file.exists())
        return tr("“%1” is a link to a file that is not there.").arg(name);
    if (file.exists() && !file.isFile())
        return tr("“%1” is not an ordinary file.").arg(name);
    const QString photo = FindPhoto(output);
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

QString ExportGuard::FindPhoto(const QString& output) const
{
    const FileIdentity file = FileIdentity::Of(output);
    const QString name = QFileInfo(output).fileName();
    if (FileIdentity::Of(GetOpenPhoto()) == file)
        return tr("“%1” is the photo that is open. An export does not replace it.").arg(name);
    if (IsPhoto(output, file))
        return tr("“%1” is one of the photos that were opened. An export does not replace it.")
            .arg(name);
    return {};
}

} // namespace LumetraEditor
