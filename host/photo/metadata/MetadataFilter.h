// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

namespace LumetraHost {

/// How much of a photo's metadata an exported file takes over. The colour profile always stays.
enum class KeptMetadata
{
    All,       ///< EXIF, IPTC and XMP
    NoGps,     ///< all but coordinates
    Copyright, ///< author, copyright and licence alone
    None
};

/// Takes fields out of EXIF, XMP and IPTC blocks.
///
/// NoGps takes out of EXIF the GPS directory and all other fields, those of known maker notes
/// included, that have "GPS" in their name; out of XMP all properties of any namespace, members of
/// structures too, whose name begins with "GPS" or tells latitude or longitude. Names of places
/// stay, as do maker notes of unknown makers, which nobody can look into. IPTC has no coordinates.
///
/// Copyright keeps Artist and Copyright of EXIF; dc:creator, dc:rights, photoshop:Credit and all
/// of xmpRights of XMP; By-line, Credit and Copyright Notice of IPTC.
class MetadataFilter
{
public:
    /// The blocks without the fields that are not kept. A block that cannot be looked into is left
    /// out with a warning, as it may hold anything; All looks into none.
    static PhotoMetadata Apply(const PhotoMetadata& metadata, KeptMetadata kept,
                               Warnings& warnings);
};

} // namespace LumetraHost
