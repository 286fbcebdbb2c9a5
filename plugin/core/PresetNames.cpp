// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetNames.h"

namespace LumetraPlugin {
namespace {

/// At most `length` characters; a pair of surrogates is kept or left out whole.
QString Shortened(const QString& name, int length)
{
    QString text = name.left(length);
    if (text.size() < name.size() && !text.isEmpty() && text.at(text.size() - 1).isHighSurrogate())
        text.chop(1);
    return text.trimmed();
}

} // namespace

QString PresetNames::MakeFree(const QString& name, const QStringList& taken)
{
    const QString start = Shortened(name.trimmed(), LONGEST);
    QString candidate = start;
    for (int number = 2; taken.contains(candidate); ++number) {
        const QString suffix = QStringLiteral(" %1").arg(number);
        candidate = Shortened(start, LONGEST - suffix.size()) + suffix;
    }
    return candidate;
}

} // namespace LumetraPlugin
