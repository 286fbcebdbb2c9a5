// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace LumetraHost {

class JsonObject;
struct JsonArray;

/// A number with the very digits that it was read with, so that an untouched one is written back
/// as it stood, however long it is.
struct JsonNumber
{
    double value = 0;
    std::string text;
};

/// One value of a JSON text and the place where it begins (0 for values that were not read).
/// Objects and arrays are shared: a copy of a value refers to the same one.
struct JsonValue
{
    using Object = std::shared_ptr<JsonObject>;
    using Array = std::shared_ptr<JsonArray>;
    using Content = std::variant<std::monostate, bool, JsonNumber, std::string, Object, Array>;

    JsonValue() = default;
    explicit JsonValue(Content value) : content(std::move(value)) {}

    /// Word for the kind in messages: "null", "bool", "number", "string", "node", "collection".
    const char* GetKindName() const;

    template <class T>
    const T* As() const
    {
        return std::get_if<T>(&content);
    }

    Content content;
    std::uint32_t line = 0;   ///< from 1
    std::uint32_t column = 0; ///< from 1, in characters
};

/// The elements of a JSON array.
struct JsonArray
{
    std::vector<JsonValue> elements;
};

/// The members of a JSON object in their order. Keys are unique.
class JsonObject
{
public:
    using Member = std::pair<std::string, JsonValue>;

    /// Null when there is no such key; good until the next Set().
    const JsonValue* Find(std::string_view key) const;
    /// The member with that key; null when there is none, good until the next Set().
    const Member* FindMember(std::string_view key) const;
    /// Replaces the value under `key` in its place, else appends it.
    void Set(const std::string& key, JsonValue value);
    /// Appends a member unless the key is taken; then nothing changes and the result is false.
    bool Append(const std::string& key, JsonValue value);
    /// Appends a member whose key the caller knows to be new.
    void AppendNew(std::string key, JsonValue value);

    const std::vector<Member>& GetMembers() const { return m_members; }

private:
    using Index = std::unordered_map<std::string, std::size_t>;

    std::size_t IndexOf(std::string_view key) const;

    std::vector<Member> m_members;
    std::unique_ptr<Index> m_index; // of large objects only
};

} // namespace LumetraHost
