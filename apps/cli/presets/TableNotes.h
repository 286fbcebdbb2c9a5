// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "catalogue/CatalogueReport.h"
#include "storage/JsonDocument.h"

namespace LumetraCli {

/// Tells which looks of a file cannot show all colours of photos wider than sRGB.
class TableNotes
{
public:
    /// Adds a note at every look-up table of the document's effects.
    static void Add(const LumetraHost::JsonDocument& document,
                    LumetraHost::CatalogueReports& reports);
};

} // namespace LumetraCli
