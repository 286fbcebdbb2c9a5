// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportMetadata.h"

#include "photo/colour/ColorConversion.h"

#include <QCoreApplication>

namespace LumetraHost {
namespace {

/// The programs share a name and a version, so that nothing depends on which one exports.
std::string GetCreatorTool()
{
    return (QStringLiteral("Lumetra ") + QCoreApplication::applicationVersion())
        .trimmed()
        .toStdString();
}

} // namespace

PhotoMetadata MakeExportMetadata(const PhotoMetadata& photo, const ExportRecipe& recipe,
                                 Warnings& warnings)
{
    PhotoMetadata metadata;
    if (recipe.keepsMetadata) {
        metadata = photo;
        TryOrWarn(warnings, "the looks are not recorded in the metadata", [&] {
            metadata.xmp = EditRecords::Add(photo.xmp, recipe.records, GetCreatorTool());
        });
    }
    metadata.iccProfile = photo.iccProfile;
    if (metadata.iccProfile.isEmpty())
        metadata.iccProfile = ColorConversion::GetSrgbProfile();
    if (!recipe.embedsProfile)
        metadata.iccProfile.clear();
    return metadata;
}

} // namespace LumetraHost
