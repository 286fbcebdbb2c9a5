// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/PhotoList.h"

#include "console/Text.h"
#include "console/UsageError.h"
#include "photos/PhotoInputs.h"
#include "storage/FailWith.h"

#include <QFile>

#include <cstdio>

namespace LumetraCli {
namespace {

constexpr char ByteOrderMark[] = "\xEF\xBB\xBF";

QByteArray ReadText(const QString& name)
{
    QFile file(name);
    const bool isOpen = name == PhotoInputs::Pipe ? file.open(stdin, QIODevice::ReadOnly)
                                                  : file.open(QIODevice::ReadOnly);
    const QByteArray text = isOpen ? file.readAll() : QByteArray();
    if (!isOpen || file.error() != QFileDevice::NoError)
        throw UsageError(Text::tr("--files-from: expected a list of photos, found \"%1\", "
                                  "which cannot be read: %2")
                             .arg(name, file.errorString()));
    return text;
}

QList<QByteArray> SplitLines(QByteArray text)
{
    if (text.startsWith(ByteOrderMark))
        text.remove(0, static_cast<int>(sizeof ByteOrderMark) - 1);
    QList<QByteArray> names = text.split('\n');
    for (QByteArray& name : names)
        if (name.endsWith('\r'))
            name.chop(1);
    return names;
}

} // namespace

QList<QByteArray> PhotoList::ReadNames(const QString& file, bool isNullSeparated)
{
    const QByteArray text = ReadText(file);
    QList<QByteArray> names = isNullSeparated ? text.split('\0') : SplitLines(text);
    names.removeAll({});
    return names;
}

QStringList PhotoList::Read(const QString& file, bool isNullSeparated)
{
    QStringList photos;
    for (const QByteArray& name : ReadNames(file, isNullSeparated))
        photos.append(QFile::decodeName(name));
    return photos;
}

QByteArray PhotoList::Join(const QStringList& photos, bool isNullSeparated)
{
    QByteArray text;
    for (const QString& photo : photos) {
        if (!isNullSeparated &&
            (photo.contains(QLatin1Char('\n')) || photo.endsWith(QLatin1Char('\r'))))
            LumetraHost::FailWith(photo.toStdString() +
                                  ": expected a name without line breaks for a list of "
                                  "lines; --null separates names by zero bytes");
        text += QFile::encodeName(photo) + (isNullSeparated ? '\0' : '\n');
    }
    return text;
}

} // namespace LumetraCli
