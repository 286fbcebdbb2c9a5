// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/metadata/EditRecord.h"

#include "Zorvik/Quindle/EffectsSettings.h"

namespace LumetraHost {

/// Writes a layer of an edit into its record for exported pictures, so that it can be put on
/// another photo. The text is a file of one look as docs/looks.md describes it: the layer's effects
/// as they were drawn, and an intensity at which they are mixed with the photo just so.
class LookRecord
{
public:
    /// The largest text of one layer, in bytes. A picture with one such layer keeps its XMP data
    /// within one segment of a JPEG file, as a rule; quotes take more space there.
    static constexpr std::size_t LargestText = 32 * 1024;

    /// Fills in the look of `record` from the layer, or why it is left out. The name stays.
    static void AddLook(EditRecord& record, const Zorvik::Quindle::EffectsSettings& layer);
};

} // namespace LumetraHost
