// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include "storage/JsonDocument.h"

#include <QByteArray>

namespace LumetraHost {

/// The stored form of an edit:
/// { "format": "lumetra-sidecar", "version": 4,
///   "layers": [ { "module": "MODULE", "on": true, "open": false, "package": "…", "preset": "…",
///                 "blend": 1, "effects": [ { "effect": {…} } ], "name": "…", "intensity": 100,
///                 "part": {…} } ],
///   "panels": { "MODULE": {…} } }
/// Layers stand bottom first, open ones together; while a lower layer is open again, closed ones
/// stand above them. "blend" is the blend amount, 1 (full effect) to 255; "name" and "intensity"
/// are for the reader. An open layer has no "effects" where its module's part of the edit has the
/// same ones under that key. "part" is the part of a closed layer's module from the time when it
/// was open; its "effects" are null where they are the layer's own.
///
/// An edit without layers above open ones is written as version 3, which had none.
/// In version 2 every layer had its "effects".
/// Version 1 had "committed" in place of "layers": the committed layers alone, without "module",
/// "on" and "open".
class EditStateFormat
{
public:
    static constexpr char FormatName[] = "lumetra-sidecar";
    static constexpr int Version = 4;

    static JsonDocument ToDocument(const EditState& state);
    /// Reads this version and all earlier ones. Zorvik::Exception, with file and place, for
    /// anything that ToDocument() would not have written; members that it does not know are passed
    /// over.
    static EditState FromDocument(const JsonDocument& document);

    /// The key of the list of layers in a file of that version.
    static const char* GetLayersKey(int version);

    /// A part of an edit from which a module may draw the layer again: "preset", "name",
    /// "intensity", "blend" and "effects".
    static PanelEdit MakePart(const EditLayer& layer);

    /// The effects of a package alone, for comparing.
    static QByteArray EffectsText(const Zorvik::Quindle::EffectsSettings& package);
};

} // namespace LumetraHost
