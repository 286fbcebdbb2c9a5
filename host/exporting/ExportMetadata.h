// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

namespace LumetraHost {

/// The metadata of an exported file from those of its photo: kept or left out, with the presets and
/// the program recorded in the XMP packet and with an sRGB profile as the recipe says. A packet
/// that cannot be decoded takes no record and goes on as it is, which `warnings` tells.
PhotoMetadata MakeExportMetadata(const PhotoMetadata& photo, const ExportRecipe& recipe,
                                 Warnings& warnings);

} // namespace LumetraHost
