// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include <functional>

namespace LumetraPlugin {

/// A three-way merge of the user's presets and favourites: changes of this program since it last
/// looked are carried over to the present content of the file.
///
/// A preset is known by its id (by its name without one) and its position among equals. Of a preset
/// that is in both, only the members that changed here are written, so that fields of newer
/// programs and edits of other members survive. A preset removed here is removed from the file,
/// unless another program has changed it meanwhile; one removed there stays removed, unless it was
/// changed here. Elements that are not usable presets are left as they stand.
class UserStoreMerge
{
public:
    /// True when an element of the list of presets is one that this program could read.
    using IsUsable = std::function<bool(const LumetraHost::JsonValue& element)>;

    explicit UserStoreMerge(IsUsable isUsable);

    /// Merges into `current`, the file as it is now; returns true when that has changed it.
    /// `before`: what this program knew when the file was `seen`; `after`: what it knows now.
    bool Apply(const LumetraHost::JsonObject& before, const LumetraHost::JsonObject& after,
               const LumetraHost::JsonObject& seen, LumetraHost::JsonObject& current) const;

    /// True for equal content; the order of members and places do not count.
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
