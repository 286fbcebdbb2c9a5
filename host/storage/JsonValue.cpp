// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonValue.h"

#include <iterator>

namespace LumetraHost {
namespace {

// Below this a scan beats a look-up, and most objects of a catalogue stay below it.
constexpr std::size_t indexedFrom = 16;

} // namespace

const char* JsonValue::GetKindName() const
{
    static constexpr const char* names[] = {"null",   "bool", "number",
                                            "string", "node", "collection"};
    static_assert(std::variant_size_v<Content> == std::size(names));
    return names[content.index()];
}

std::size_t JsonObject::IndexOf(const std::string& key) const
{
    if (m_members.size() >= indexedFrom) {
        const auto found = m_index.find(key);
        return found == m_index.end() ? m_members.size() : found->second;
    }
    std::size_t i = 0;
    while (i < m_members.size() && m_members[i].first != key)
        ++i;
    return i;
}

const JsonValue* JsonObject::Find(const std::string& key) const
{
    const std::size_t i = IndexOf(key);
    return i < m_members.size() ? &m_members[i].second : nullptr;
}

void JsonObject::Set(const std::string& key, JsonValue value)
{
    const std::size_t i = IndexOf(key);
    if (i < m_members.size())
        m_members[i].second = std::move(value);
    else
        Append(key, std::move(value));
}

bool JsonObject::Append(const std::string& key, JsonValue value)
{
    if (Find(key))
        return false;
    m_members.emplace_back(key, std::move(value));
    if (m_members.size() == indexedFrom)
        for (std::size_t i = 0; i < indexedFrom; ++i)
            m_index.emplace(m_members[i].first, i);
    else if (m_members.size() > indexedFrom)
        m_index.emplace(key, m_members.size() - 1);
    return true;
}

} // namespace LumetraHost
