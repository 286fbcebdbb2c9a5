// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/ShareCredits.h"

#include "catalogue/VisibleText.h"
#include "core/looks/LookFormat.h"

#include <QSettings>

namespace LumetraPlugin {
namespace {

const QString AuthorKey = QStringLiteral("share/author");
const QString LicenceKey = QStringLiteral("share/licence");

/// A text of the file, as far as a look may have it: people edit such files.
QString Read(const QSettings& file, const QString& key)
{
    return LumetraHost::VisibleText::WithoutControls(file.value(key).toString())
        .trimmed()
        .left(LookFormat::LongestCredit);
}

} // namespace

ShareCredits ShareCredits::Load(const QString& path)
{
    if (path.isEmpty())
        return {};
    const QSettings file(path, QSettings::IniFormat);
    ShareCredits credits;
    credits.author = Read(file, AuthorKey);
    credits.licence = Read(file, LicenceKey);
    return credits;
}

void ShareCredits::Save(const QString& path) const
{
    if (path.isEmpty())
        return;
    QSettings file(path, QSettings::IniFormat);
    file.setValue(AuthorKey, author);
    file.setValue(LicenceKey, licence);
}

} // namespace LumetraPlugin
