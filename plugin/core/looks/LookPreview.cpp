// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/LookPreview.h"

#include "core/CatalogueLocations.h"
#include "exporting/Export.h"
#include "photo/PhotoReader.h"

#include <QFileInfo>

namespace LumetraPlugin {

using LumetraHost::ExportLook;
using LumetraHost::ExportRecipe;

QString LookPreview::FindSample()
{
    const QString path = CatalogueLocations::GetSamplePhoto();
    return QFileInfo(path).isFile() ? path : QString();
}

QByteArray LookPreview::Draw(const Zorvik::Quindle::EffectsSettings& look, const QString& path)
{
    if (path.isEmpty())
        return {};
    ExportRecipe recipe;
    recipe.look = std::make_shared<ExportLook>(std::vector{look}, ExportLook::Precision::Exact);
    recipe.longestSide = LongestSide;
    recipe.encoding.quality = 80;
    recipe.metadata = LumetraHost::KeptMetadata::None;
    recipe.embedsProfile = false;
    const auto photo = LumetraHost::PhotoReader::ReadReduced(path, LongestSide);
    const auto file = LumetraHost::Export().MakeFromPhoto(photo, recipe, path.toStdString()).file;
    return QByteArray(reinterpret_cast<const char*>(file.data()), static_cast<int>(file.size()));
}

} // namespace LumetraPlugin
