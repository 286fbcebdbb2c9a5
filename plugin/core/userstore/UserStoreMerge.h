// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include <functional>

namespace LumetraPlugin {

/// A three-way merge of the user's presets and favourites: what this program changed since it last
/// looked is carried over to what the file holds now.
///
/// A preset is known by its id (by its name without one) and its position among equals; of a preset
/// that both sides know only the members that changed here are written, so that fields of newer
/// programs and edits of other members survive. A preset removed here goes, unless another program
/// has changed it meanwhile; one removed there stays removed, unless it was changed here. Elements
/// that are not usable presets are left as they stand.
class UserStoreMerge
{
public:
    /// Whether an element of the list of presets is a preset that this program could read.
    using IsUsable = std::function<bool(const LumetraHost::JsonValue& element)>;

    explicit UserStoreMerge(IsUsable isUsable);

    /// `before` and `after` are what this program knew and knows now, `seen` the file as it was
    /// then. Changes `current`, the file as it is now; returns whether there was anything to
    /// change.
    bool Apply(const LumetraHost::JsonObject& before, const LumetraHost::JsonObject& after,
               const LumetraHost::JsonObject& seen, LumetraHost::JsonObject& current) const;

    /// Equal content, whatever the order of members; places do not count.
    static bool AreEqual(const LumetraHost::JsonValue& a, const LumetraHost::JsonValue& b);

private:
    bool MergePresets(const LumetraHost::JsonObject& before, const LumetraHost::JsonObject& after,
                      const LumetraHost::JsonObject& seen, LumetraHost::JsonObject& current) const;
    bool MergeFavourites(const LumetraHost::JsonObject& before,
                         const LumetraHost::JsonObject& after,
                         LumetraHost::JsonObject& current) const;

    IsUsable m_isUsable;
};

} // namespace LumetraPlugin
