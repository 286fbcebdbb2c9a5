// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/recipes/NamedRecipe.h"

#include "storage/JsonValue.h"

#include <optional>

namespace LumetraHost {

class CheckedNode;

/// The stored form of a named recipe:
/// { "name": "…", "format": "jpeg", "quality": 92, "lossless": false, "subsampling": "automatic",
///   "progressive": false, "compression": "deflate", "depth": 8, "longestSide": 2048,
///   "megapixels": 12, "metadata": "all", "profile": true, "folder": "export", "file": "{name}" }
/// All but the name may be missing. Without "depth" a file has the photo's; without "longestSide"
/// and "megapixels" it has the photo's size.
class RecipeFormat
{
public:
    static constexpr char NameKey[] = "name";

    /// Nothing, and errors with their places in the node's reports, for a recipe that cannot be
    /// used.
    static std::optional<NamedRecipe> Read(const CheckedNode& node);
    /// `origin`, which may be null, is what the recipe was stored as: members that this version
    /// does not know are taken over.
    static JsonValue::Object Write(const NamedRecipe& named, const JsonObject* origin);
};

} // namespace LumetraHost
