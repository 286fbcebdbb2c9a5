// SPDX-License-Identifier: MIT
#include "support/StoredForm.h"

#include "support/CallText.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"

#include <algorithm>

namespace LumetraTest {

using Zorvik::Brassel::CollectionPtr;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Brassel::SerializerPtr;
using Zorvik::Core::Property;

namespace {

std::string ValueText(bool value)
{
    return CallText(value);
}

std::string ValueText(std::int64_t value)
{
    return std::to_string(value);
}

std::string ValueText(double value)
{
    const std::string text = CallText(value);
    const bool looksWhole = text.find_first_not_of("-0123456789") == std::string::npos;
    return looksWhole ? text + ".0" : text;
}

std::string ValueText(const std::string& value)
{
    return CallText(value);
}

std::string ValueText(const Property::Ptr& value)
{
    return StoredText(*value);
}

std::string ValueText(const Property::List& value)
{
    std::vector<std::string> elements;
    for (const Property::Ptr& element : value)
        elements.push_back(element->GetName() + StoredText(*element));
    return "[" + JoinTexts(elements) + "]";
}

} // namespace

StoredNode::StoredNode() = default;

StoredNode::StoredNode(std::initializer_list<StoredEntry> entries) : m_entries(entries) {}

StoredNode::StoredNode(const std::string& name, std::initializer_list<StoredEntry> entries)
    : m_name(name), m_entries(entries)
{
}

StoredNode& StoredNode::Set(const std::string& key, const StoredValue& value)
{
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&key](const StoredEntry& e) { return e.key == key; });
    if (entry == m_entries.end())
        m_entries.push_back({key, value});
    else
        entry->value = value;
    return *this;
}

Property::Ptr StoredNode::ToProperty(const std::string& name) const
{
    const auto property = std::make_shared<Property>(name.empty() ? m_name : name);
    for (const StoredEntry& entry : m_entries)
        property->Set(entry.key, entry.value.ToValue(entry.key));
    return property;
}

SerializerPtr StoredNode::ToSerializer(const std::string& rootPath) const
{
    return SerializerProperty::Create(ToProperty(), rootPath);
}

StoredList::StoredList() = default;

StoredList::StoredList(std::initializer_list<StoredNode> elements) : m_elements(elements) {}

StoredList& StoredList::Add(const StoredNode& element)
{
    m_elements.push_back(element);
    return *this;
}

Property::List StoredList::ToProperties() const
{
    Property::List list;
    for (const StoredNode& element : m_elements)
        list.push_back(element.ToProperty());
    return list;
}

CollectionPtr StoredList::ToCollection() const
{
    const auto owner = std::make_shared<Property>(std::string());
    owner->Set("list", ToProperties());
    const auto node = SerializerProperty::Create(owner, "test");
    // The cast is safe: nobody else refers to this tree.
    return const_cast<Zorvik::Brassel::ISerializerCollection*>(node->GetCollection("list").get());
}

Property::Value StoredValue::ToValue(const std::string& key) const
{
    if (const auto* node = std::get_if<StoredNode>(&m_value))
        return node->ToProperty(key);
    if (const auto* list = std::get_if<StoredList>(&m_value))
        return list->ToProperties();
    if (const auto* flag = std::get_if<bool>(&m_value))
        return *flag;
    if (const auto* whole = std::get_if<std::int64_t>(&m_value))
        return *whole;
    if (const auto* number = std::get_if<double>(&m_value))
        return *number;
    return std::get<std::string>(m_value);
}

std::string StoredText(const Property& tree)
{
    std::vector<std::string> entries;
    for (const auto& [key, value] : tree.GetEntries())
        entries.push_back(key + ": " +
                          std::visit([](const auto& v) { return ValueText(v); }, value));
    return "{" + JoinTexts(entries) + "}";
}

std::string StoredText(const Zorvik::Brassel::ISerializable& object)
{
    const auto tree = std::make_shared<Property>(std::string());
    object.Serialize(SerializerProperty::Create(tree, "test"));
    return StoredText(*tree);
}

} // namespace LumetraTest
