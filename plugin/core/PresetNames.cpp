// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetNames.h"

#include "catalogue/VisibleText.h"

namespace LumetraPlugin {
namespace {

using LumetraHost::VisibleText;

/// The first `length` characters at most; a pair of surrogates is kept or left out whole.
QString Shortened(const QString& name, int length)
{
    QString text = name.left(length);
    if (text.size() < name.size() && !text.isEmpty() && text.at(text.size() - 1).isHighSurrogate())
        text.chop(1);
    return text.trimmed();
}

} // namespace

QString PresetNames::FindFault(const QString& name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || trimmed.size() > MaxLength)
        return tr("expected 1 to %1 characters, found %2")
            .arg(QString::number(MaxLength), QString::number(trimmed.size()));
    if (VisibleText::HasControls(trimmed))
        return tr("expected a name without control characters, found \"%1\"")
            .arg(VisibleText::Make(trimmed));
    return {};
}

QString PresetNames::MakeFree(const QString& name, const QStringList& taken)
{
    return MakeFreeOf(name, [&taken](const QString& other) { return taken.contains(other); });
}

QString PresetNames::MakeFreeOf(const QString& name, const IsTaken& isTaken)
{
    const QString start = Shortened(VisibleText::WithoutControls(name).trimmed(), MaxLength);
    QString candidate = start;
    for (int number = 2; isTaken(candidate); ++number) {
        const QString suffix = QStringLiteral(" %1").arg(number);
        candidate = Shortened(start, MaxLength - suffix.size()) + suffix;
    }
    return candidate;
}

QString PresetNames::MakeFileName(const QString& name, const QString& suffix)
{
    QString file = VisibleText::WithoutControls(name).trimmed();
    for (QChar& letter : file)
        if (QStringLiteral("/\\:*?\"<>|").contains(letter))
            letter = QLatin1Char('-');
    while (file.startsWith(QLatin1Char('.')))
        file.remove(0, 1);
    return (file.isEmpty() ? QStringLiteral("look") : file) + QLatin1Char('.') + suffix;
}

} // namespace LumetraPlugin
