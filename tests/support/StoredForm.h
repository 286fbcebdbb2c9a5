// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Core/Property.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

namespace LumetraTest {

class StoredValue;
struct StoredEntry;

/// A stored form written down in a test: StoredNode{{"name", "Warm"}, {"popular", true}}. As an
/// element of a StoredList it may have a name.
class StoredNode
{
public:
    StoredNode();
    StoredNode(std::initializer_list<StoredEntry> entries);
    StoredNode(const std::string& name, std::initializer_list<StoredEntry> entries);

    /// Replaces the value under `key` in its place, else appends it.
    StoredNode& Set(const std::string& key, const StoredValue& value);

    /// The tree, named as given or else by the node's own name.
    Zorvik::Core::Property::Ptr ToProperty(const std::string& name = {}) const;
    /// A serializer over a fresh tree.
    Zorvik::Brassel::SerializerPtr ToSerializer(const std::string& rootPath = "test") const;

private:
    std::string m_name;
    std::vector<StoredEntry> m_entries;
};

/// A collection of nodes: StoredList{StoredNode{…}, StoredNode{…}}.
class StoredList
{
public:
    StoredList();
    StoredList(std::initializer_list<StoredNode> elements);

    StoredList& Add(const StoredNode& element);

    Zorvik::Core::Property::List ToProperties() const;
    /// The collection inside a fresh tree.
    Zorvik::Brassel::CollectionPtr ToCollection() const;

private:
    std::vector<StoredNode> m_elements;
};

class StoredValue
{
public:
    StoredValue(bool value) : m_value(value) {}
    StoredValue(int value) : m_value(std::int64_t(value)) {}
    StoredValue(double value) : m_value(value) {}
    StoredValue(const char* value) : m_value(std::string(value)) {}
    StoredValue(const std::string& value) : m_value(value) {}
    StoredValue(const StoredNode& value) : m_value(value) {}
    StoredValue(const StoredList& value) : m_value(value) {}

    Zorvik::Core::Property::Value ToValue(const std::string& key) const;

private:
    std::variant<bool, std::int64_t, double, std::string, StoredNode, StoredList> m_value;
};

struct StoredEntry
{
    std::string key;
    StoredValue value;
};

/// The tree as one line, in the order of writing: {name: "Warm", amount: 2.0, items: [{…}, x{…}]}.
/// A whole double ends in ".0", so that it differs from an int.
std::string StoredText(const Zorvik::Core::Property& tree);

/// The text that `object` writes into an empty node.
std::string StoredText(const Zorvik::Brassel::ISerializable& object);

} // namespace LumetraTest
