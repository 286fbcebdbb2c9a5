// SPDX-License-Identifier: MIT
#include "Zorvik/Core/Property.h"

#include <algorithm>

namespace Zorvik::Core {

Property::Property(const std::string& name) : m_name(name) {}

const std::string& Property::GetName() const
{
    return m_name;
}

const Property::Value* Property::Find(const std::string& key) const
{
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&key](const auto& e) { return e.first == key; });
    return entry == m_entries.end() ? nullptr : &entry->second;
}

Property::Value* Property::Find(const std::string& key)
{
    return const_cast<Value*>(static_cast<const Property*>(this)->Find(key));
}

void Property::Set(const std::string& key, Value value)
{
    if (Value* existing = Find(key))
        *existing = std::move(value);
    else
        m_entries.emplace_back(key, std::move(value));
}

const std::vector<std::pair<std::string, Property::Value>>& Property::GetEntries() const
{
    return m_entries;
}

} // namespace Zorvik::Core
