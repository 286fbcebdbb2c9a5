// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/EditState.h"

#include "storage/JsonDocument.h"

#include <QByteArray>

namespace LumetraEditor {

/// The stored form of an edit:
/// { "format": "lumetra-sidecar", "version": 1,
///   "committed": [ { "package": "…", "preset": "…", "blend": 1, "effects": [ { "effect": {…} } ] }
///   ], "panels": { "MODULE": {…} } }
/// "blend" is the blend amount, 1 (full effect) to 255; "name" and "intensity" are for the reader.
class EditStateFormat
{
public:
    static constexpr char FormatName[] = "lumetra-sidecar";
    static constexpr int Version = 1;

    static LumetraHost::JsonDocument ToDocument(const EditState& state);
    /// Zorvik::Exception, with file and place, for anything that ToDocument() would not have
    /// written; members that it does not know are passed over.
    static EditState FromDocument(const LumetraHost::JsonDocument& document);

    /// The packages alone, for comparing.
    static QByteArray PackagesText(const std::vector<Zorvik::Quindle::EffectsSettings>& packages);
};

} // namespace LumetraEditor
