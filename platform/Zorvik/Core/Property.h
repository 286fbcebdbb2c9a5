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

/// A node of an in-memory tree: a name and ordered entries, each a scalar, a child node or a
/// collection of nodes. Child nodes are shared and never null; a tree must not contain itself.
class ZORVIKPLATFORM_EXPORT Property
{
public:
    using Ptr = std::shared_ptr<Property>;
    using List = std::vector<Ptr>;
    using Value = std::variant<bool, std::int64_t, double, std::string, Ptr, List>;

    explicit Property(const std::string& name);

    const std::string& GetName() const;

    /// The value under `key`, null when absent; good until the next Set().
    const Value* Find(const std::string& key) const;
    Value* Find(const std::string& key);

    /// Replaces the value under `key` in its place, else appends it.
    void Set(const std::string& key, Value value);

    const std::vector<std::pair<std::string, Value>>& GetEntries() const;

private:
    std::string m_name;
    std::vector<std::pair<std::string, Value>> m_entries;
};

} // namespace Zorvik::Core
