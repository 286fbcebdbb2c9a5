// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/KeptEdits.h"

#include "edit/PhotoIdentity.h"
#include "edit/Sidecar.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace LumetraEditor {
namespace {

constexpr int PathDigits = 16, ContentDigits = 32;

QString PathPart(const QString& photo)
{
    const QByteArray path = QFileInfo(photo).absoluteFilePath().toUtf8();
    return QString::fromLatin1(
        QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(PathDigits));
}

QString ContentPart(const PhotoIdentity& identity)
{
    return QString::fromLatin1(identity.hash.left(ContentDigits)) +
           QStringLiteral("-%1").arg(identity.size);
}

QStringList Find(const QString& pattern)
{
    const QDir folder(KeptEdits::GetFolder());
    QStringList paths;
    for (const QString& name : folder.entryList({pattern}, QDir::Files))
        paths.append(folder.filePath(name));
    return paths;
}

} // namespace

QString KeptEdits::GetFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/lumetra/edits");
}

QString KeptEdits::GetPath(const QString& photo, const PhotoIdentity& identity)
{
    return Sidecar::GetPath(GetFolder() + QLatin1Char('/') + PathPart(photo) + QLatin1Char('-') +
                            ContentPart(identity));
}

QStringList KeptEdits::FindByContent(const PhotoIdentity& identity)
{
    return identity.IsKnown() ? Find(Sidecar::GetPath(QStringLiteral("*-") + ContentPart(identity)))
                              : QStringList();
}

QStringList KeptEdits::FindByPath(const QString& photo)
{
    return Find(Sidecar::GetPath(PathPart(photo) + QStringLiteral("-*")));
}

} // namespace LumetraEditor
