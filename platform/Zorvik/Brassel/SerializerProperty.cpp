// SPDX-License-Identifier: MIT
#include "Zorvik/Brassel/SerializerProperty.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "Zorvik/RefCounted.h"

#include <boost/current_function.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Zorvik::Brassel {
namespace {

using Core::Property;

[[noreturn]] void Fail(const std::string& description, const char* function, int line)
{
    throw Exception(description, function, "Zorvik/Brassel/SerializerProperty", line);
}

/// Returns the shortest text that reads back as `number`, in any locale.
std::string NumberText(double number)
{
    std::array<char, 32> text;
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    return std::string(text.data(), result.ptr);
}

ISerializer::Kind KindOf(const Property::Value& value)
{
    using Kind = ISerializer::Kind;
    static constexpr Kind kinds[] = {Kind::Bool, Kind::Number, Kind::Number,
                                     Kind::Text, Kind::Node,   Kind::Collection};
    static_assert(std::variant_size_v<Property::Value> == std::size(kinds));
    return kinds[value.index()];
}

std::string Found(const Property::Value& value)
{
    switch (KindOf(value)) {
    case ISerializer::Kind::Bool:
        return "bool";
    case ISerializer::Kind::Number:
        return "number";
    case ISerializer::Kind::Text:
        return "string";
    case ISerializer::Kind::Node:
        return "node";
    default:
        return "collection";
    }
}

class PropertyCollection : public RefCounted<ISerializerCollection>
{
public:
    /// `key` names the list's entry in `owner`. The entry is looked up anew at each use, because
    /// others may replace it.
    PropertyCollection(const Property::Ptr& owner, const std::string& key, const std::string& path)
        : m_owner(owner), m_key(key), m_path(path)
    {
    }

    std::size_t GetCount() const override { return List() ? List()->size() : 0; }
    ConstSerializerPtr GetElement(std::size_t index) const override;
    SerializerPtr AddElement(const std::string& name) override;

private:
    Property::List* List() const
    {
        Property::Value* value = m_owner->Find(m_key);
        return value ? std::get_if<Property::List>(value) : nullptr;
    }

    SerializerPtr Wrap(std::size_t index) const;

    Property::Ptr m_owner;
    std::string m_key;
    std::string m_path;
};

class PropertyNode : public RefCounted<ISerializer>
{
public:
    PropertyNode(const Property::Ptr& property, const std::string& path)
        : m_property(property), m_path(path)
    {
    }

    using ISerializer::Get;
    using ISerializer::Set;

    std::string GetName() const override { return m_property->GetName(); }
    std::string GetPath() const override { return m_path; }
    std::vector<std::string> GetKeys() const override;
    Kind GetKind(const std::string& key) const override;

    bool Get(const std::string& key, bool defaultValue) const override;
    int Get(const std::string& key, int defaultValue) const override;
    double Get(const std::string& key, double defaultValue) const override;
    std::string Get(const std::string& key, const std::string& defaultValue) const override;
    ConstSerializerPtr GetNode(const std::string& key) const override;
    ConstCollectionPtr GetCollection(const std::string& key) const override;

    void Set(const std::string& key, bool value) override { m_property->Set(key, value); }
    void Set(const std::string& key, int value) override
    {
        m_property->Set(key, std::int64_t(value));
    }
    void Set(const std::string& key, double value) override;
    void Set(const std::string& key, const std::string& value) override
    {
        m_property->Set(key, value);
    }
    SerializerPtr CreateNode(const std::string& key) override;
    CollectionPtr CreateCollection(const std::string& key) override;

private:
    std::string PathOf(const std::string& key) const { return m_path + "/" + key; }

    [[noreturn]] void Mismatch(const std::string& key, const char* expected,
                               const std::string& found, int line) const
    {
        Fail(PathOf(key) + ": expected " + expected + ", found " + found, BOOST_CURRENT_FUNCTION,
             line);
    }

    /// Returns the value under `key` as T, null when absent. Another kind of value is an Exception.
    template <class T>
    const T* Read(const std::string& key, const char* expected) const
    {
        const Property::Value* value = m_property->Find(key);
        if (!value)
            return nullptr;
        if (const T* typed = std::get_if<T>(value))
            return typed;
        Mismatch(key, expected, Found(*value), __LINE__);
    }

    Property::Ptr m_property;
    std::string m_path;
};

SerializerPtr PropertyCollection::Wrap(std::size_t index) const
{
    return new PropertyNode((*List())[index], m_path + "[" + std::to_string(index) + "]");
}

ConstSerializerPtr PropertyCollection::GetElement(std::size_t index) const
{
    if (index >= GetCount())
        Fail(m_path + ": expected an element " + std::to_string(index) + ", found " +
                 std::to_string(GetCount()) + " elements",
             BOOST_CURRENT_FUNCTION, __LINE__);
    return Wrap(index);
}

SerializerPtr PropertyCollection::AddElement(const std::string& name)
{
    if (!List())
        m_owner->Set(m_key, Property::List());
    List()->push_back(std::make_shared<Property>(name));
    return Wrap(List()->size() - 1);
}

std::vector<std::string> PropertyNode::GetKeys() const
{
    std::vector<std::string> keys;
    for (const auto& entry : m_property->GetEntries())
        keys.push_back(entry.first);
    return keys;
}

ISerializer::Kind PropertyNode::GetKind(const std::string& key) const
{
    const Property::Value* value = m_property->Find(key);
    return value ? KindOf(*value) : Kind::None;
}

bool PropertyNode::Get(const std::string& key, bool defaultValue) const
{
    const bool* value = Read<bool>(key, "bool");
    return value ? *value : defaultValue;
}

int PropertyNode::Get(const std::string& key, int defaultValue) const
{
    const Property::Value* value = m_property->Find(key);
    if (!value)
        return defaultValue;
    const double number = Get(key, 0.0);
    if (number != std::trunc(number) || number < std::numeric_limits<int>::min() ||
        number > std::numeric_limits<int>::max())
        Mismatch(key, "a whole number from -2147483648 to 2147483647",
                 "number " + NumberText(number), __LINE__);
    return static_cast<int>(number);
}

double PropertyNode::Get(const std::string& key, double defaultValue) const
{
    const Property::Value* value = m_property->Find(key);
    if (!value)
        return defaultValue;
    if (const auto* whole = std::get_if<std::int64_t>(value))
        return static_cast<double>(*whole);
    const auto* number = std::get_if<double>(value);
    if (!number)
        Mismatch(key, "number", Found(*value), __LINE__);
    if (!std::isfinite(*number))
        Mismatch(key, "a finite number", NumberText(*number), __LINE__);
    return *number;
}

std::string PropertyNode::Get(const std::string& key, const std::string& defaultValue) const
{
    const std::string* value = Read<std::string>(key, "string");
    return value ? *value : defaultValue;
}

ConstSerializerPtr PropertyNode::GetNode(const std::string& key) const
{
    const Property::Ptr* child = Read<Property::Ptr>(key, "node");
    return child ? new PropertyNode(*child, PathOf(key)) : nullptr;
}

ConstCollectionPtr PropertyNode::GetCollection(const std::string& key) const
{
    return Read<Property::List>(key, "collection")
               ? new PropertyCollection(m_property, key, PathOf(key))
               : nullptr;
}

void PropertyNode::Set(const std::string& key, double value)
{
    if (!std::isfinite(value))
        Fail(PathOf(key) + ": expected a finite number to write, found " + NumberText(value),
             BOOST_CURRENT_FUNCTION, __LINE__);
    m_property->Set(key, value);
}

SerializerPtr PropertyNode::CreateNode(const std::string& key)
{
    const auto child = std::make_shared<Property>(key);
    m_property->Set(key, child);
    return new PropertyNode(child, PathOf(key));
}

CollectionPtr PropertyNode::CreateCollection(const std::string& key)
{
    m_property->Set(key, Property::List());
    return new PropertyCollection(m_property, key, PathOf(key));
}

} // namespace

SerializerPtr SerializerProperty::Create(const Core::Property::Ptr& property,
                                         const std::string& rootPath)
{
    if (!property)
        Fail("expected a property to wrap, found none", BOOST_CURRENT_FUNCTION, __LINE__);
    return new PropertyNode(property, rootPath.empty() ? property->GetName() : rootPath);
}

} // namespace Zorvik::Brassel
