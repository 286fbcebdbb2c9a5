// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/recipes/NamedRecipe.h"

#include "photo/file/WrittenFormat.h"

#include <QDir>

namespace LumetraHost {
namespace {

constexpr int ScreenSide = 2048;

} // namespace

QString NamedRecipe::GetOutputTemplate() const
{
    const QString photos = QStringLiteral("{folder}");
    QString place = folder;
    if (folder.isEmpty())
        place = photos;
    else if (QDir::isRelativePath(folder) && !folder.startsWith(photos))
        place = photos + QLatin1Char('/') + folder;
    return place + QLatin1Char('/') + file + QLatin1Char('.') +
           QLatin1String(GetWrittenFormat(recipe.format).suffix);
}

std::vector<NamedRecipe> NamedRecipe::GetShipped()
{
    NamedRecipe full;
    full.name = QStringLiteral("Full size");
    full.folder = QStringLiteral("export");
    NamedRecipe screen = full;
    screen.name = QStringLiteral("2048 pixels");
    screen.recipe.longestSide = ScreenSide;
    screen.file = QStringLiteral("{name}_2048");
    return {full, screen};
}

} // namespace LumetraHost
