// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/EditPlaces.h"

#include "storage/FileIdentity.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace LumetraHost {
namespace {

constexpr int PathDigits = 16;

bool HasEditUnderThisName(const QString& photo)
{
    const QFileInfo beside(EditPlaces::GetBeside(photo));
    return beside.exists() || beside.isSymLink() || !EditPlaces::FindKeptOf(photo).isEmpty();
}

/// True when a photo in the folder has an edit and is the same file under another name.
bool HasEditUnderAnotherName(const QString& photo)
{
    const FileIdentity file = FileIdentity::Of(photo);
    const QDir folder = QFileInfo(photo).dir();
    const QStringList edits =
        folder.entryList({EditPlaces::GetBeside(QStringLiteral("*"))}, QDir::Files);
    const auto ending = EditPlaces::GetBeside(QString()).size();
    return std::any_of(edits.begin(), edits.end(), [&](const QString& edit) {
        return FileIdentity::Of(folder.filePath(edit.chopped(ending))) == file;
    });
}

} // namespace

QString EditPlaces::GetBeside(const QString& photo)
{
    return photo + QStringLiteral(".lumetra.json");
}

QString EditPlaces::GetKeptFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/lumetra/edits");
}

QString EditPlaces::GetKept(const QString& photo, const QString& content)
{
    const QByteArray path = QFileInfo(photo).absoluteFilePath().toUtf8();
    const QString pathPart = QString::fromLatin1(
        QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(PathDigits));
    return GetBeside(GetKeptFolder() + QLatin1Char('/') + pathPart + QLatin1Char('-') + content);
}

QStringList EditPlaces::FindKept(const QString& pattern)
{
    const QDir folder(GetKeptFolder());
    QStringList paths;
    for (const QString& name : folder.entryList({pattern}, QDir::Files))
        paths.append(folder.filePath(name));
    return paths;
}

QStringList EditPlaces::FindKeptOf(const QString& photo)
{
    return FindKept(QFileInfo(GetKept(photo, QStringLiteral("*"))).fileName());
}

bool EditPlaces::HasEdit(const QString& photo)
{
    const QFileInfo file(photo);
    const QString canonical = file.canonicalFilePath();
    const QString target = canonical.isEmpty() ? file.absoluteFilePath() : canonical;
    return HasEditUnderThisName(file.absoluteFilePath()) || HasEditUnderThisName(target) ||
           (file.exists() && HasEditUnderAnotherName(target));
}

} // namespace LumetraHost
