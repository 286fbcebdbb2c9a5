// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace LumetraTools {

/// The JSON schema (draft 2020-12) of catalogue files. Editors complete and check catalogues with
/// it. It knows the effects that are registered and the ranges of their numbers; what spans several
/// places, as ids of their own or a slider for an effect that the preset lacks, only
/// `lumetra-presets check` finds. It is stricter there where that only warns: a number out of its
/// range and a key that nobody reads do not fit.
class CatalogueSchema
{
public:
    /// Ends with a line break; the same bytes for the same effects.
    static std::string ToText();
};

} // namespace LumetraTools
