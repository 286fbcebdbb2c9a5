// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Zorvik::Core {

/// A node of an in-memory tree has a name and ordered entries, each a scalar, a child node or a
/// collection of nodes. Child nodes are shared and never null; a tree must not contain itself.
/// SerializerProperty::Create() makes a stored form of it.
class ZORVIKPLATFORM_EXPORT Property
{
public:
    using Ptr = std::shared_ptr<Property>;
    using List = std::vector<Ptr>;
    using Value = std::variant<bool, std::int64_t, double, std::string, Ptr, List>;

    /// Makes a node without entries. `name` may be empty and cannot be changed later.
    explicit Property(const std::string& name);

    /// Returns the node's own name: by custom its key in the parent, empty for an element of a
    /// collection without names, or the file name at the root.
    const std::string& GetName() const;

    /// Finds the value under `key`, null when absent. The pointer is good until the next Set().
    const Value* Find(const std::string& key) const;
    Value* Find(const std::string& key);

    /// Replaces the value under `key` in its place, or appends it when the key is new. The caller
    /// passes no null nodes, and a child node that is named `key`; neither is checked.
    void Set(const std::string& key, Value value);

    /// Returns all keys with their values, in the order in which the keys were first set. The
    /// reference follows later changes.
    const std::vector<std::pair<std::string, Value>>& GetEntries() const;

private:
    std::string m_name;
    std::vector<std::pair<std::string, Value>> m_entries;
};

} // namespace Zorvik::Core
