// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/PhotoNames.h"

#include <QStringList>

namespace LumetraEditor {
namespace {

const QStringList& GetEndings()
{
    static const QStringList endings =
        QStringLiteral(
            "jpg jpeg jpe png tif tiff webp heic heif avif dng cr2 cr3 nef arw orf raf rw2 pef")
            .split(QLatin1Char(' '));
    return endings;
}

} // namespace

bool PhotoNames::IsPhoto(const QString& name)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 && !name.startsWith(QLatin1Char('.')) &&
           GetEndings().contains(name.mid(dot + 1), Qt::CaseInsensitive);
}

QString PhotoNames::GetPatterns()
{
    return QStringLiteral("*.") + GetEndings().join(QStringLiteral(" *."));
}

} // namespace LumetraEditor
