// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace LumetraTools {

/// The JSON schema (draft 2020-12) of catalogue files, with which editors complete and check
/// catalogues. It knows the effects that are registered and the ranges of their numbers. Errors
/// that concern several places, such as a repeated id or a slider for an effect that the preset
/// lacks, are only found by `lumetra-presets check`. The schema refuses two things of which that
/// only warns: a number out of its range and an unknown key.
class CatalogueSchema
{
public:
    /// The schema's text with a line break at the end; equal effects give equal bytes.
    static std::string ToText();
};

} // namespace LumetraTools
