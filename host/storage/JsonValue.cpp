// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonValue.h"

#include <iterator>

namespace LumetraHost {
namespace {

// Members from which on an index is kept. A scan is quicker below, where most objects of a
// catalogue stay.
constexpr std::size_t IndexedFrom = 16;
constexpr std::size_t ExpectedMembers = 2;

} // namespace

const char* JsonValue::GetKindName() const
{
    static constexpr const char* names[] = {"null",   "bool", "number",
                                            "string", "node", "collection"};
    static_assert(std::variant_size_v<Content> == std::size(names));
    return names[content.index()];
}

std::size_t JsonObject::IndexOf(std::string_view key) const
{
    if (m_index) {
        const auto found = m_index->find(std::string(key));
        return found == m_index->end() ? m_members.size() : found->second;
    }
    std::size_t i = 0;
    while (i < m_members.size() && m_members[i].first != key)
        ++i;
    return i;
}

const JsonObject::Member* JsonObject::FindMember(std::string_view key) const
{
    const std::size_t i = IndexOf(key);
    return i < m_members.size() ? &m_members[i] : nullptr;
}

const JsonValue* JsonObject::Find(std::string_view key) const
{
    const Member* member = FindMember(key);
    return member ? &member->second : nullptr;
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
    AppendNew(key, std::move(value));
    return true;
}

void JsonObject::AppendNew(std::string key, JsonValue value)
{
    if (m_members.empty())
        m_members.reserve(ExpectedMembers);
    m_members.emplace_back(std::move(key), std::move(value));
    if (m_index) {
        m_index->emplace(m_members.back().first, m_members.size() - 1);
    } else if (m_members.size() == IndexedFrom) {
        m_index = std::make_unique<Index>();
        for (std::size_t i = 0; i < IndexedFrom; ++i)
            m_index->emplace(m_members[i].first, i);
    }
}

} // namespace LumetraHost
