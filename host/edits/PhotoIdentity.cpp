// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/PhotoIdentity.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace LumetraHost {

PhotoIdentity PhotoIdentity::Of(const QString& path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would wait for its other end
        return {};
    PhotoIdentity identity;
    identity.size = file.size();
    identity.modified = info.lastModified().toUTC();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const QByteArray first = file.read(EndSize);
    hash.addData(first);
    if (!file.seek(std::max<qint64>(first.size(), identity.size - EndSize)))
        return {};
    hash.addData(file.read(EndSize));
    if (file.error() == QFileDevice::NoError)
        identity.hash = hash.result().toHex();
    return identity;
}

bool PhotoIdentity::IsSamePhoto(const PhotoIdentity& other) const
{
    return size == other.size && hash == other.hash;
}

} // namespace LumetraHost
