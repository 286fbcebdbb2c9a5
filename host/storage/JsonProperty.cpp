// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonProperty.h"

#include "Zorvik/Exception.h"
#include "storage/FailWith.h"
#include "storage/JsonWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace LumetraHost {
namespace {

using Zorvik::Core::Property;

constexpr char ElementNameKey[] = "";

[[noreturn]] void Refuse(const std::string& place, const std::string& expected)
{
    FailWith(place + ": expected " + expected);
}

/// The beginning of a damaged text, in letters that a message can show.
std::string Show(const std::string& text)
{
    constexpr std::size_t Most = 40;
    std::string shown = text.substr(0, Most);
    std::replace_if(
        shown.begin(), shown.end(), [](unsigned char byte) { return byte < ' ' || byte > '~'; },
        '?');
    return shown;
}

/// `what` names the kind of text.
void CheckUtf8(const std::string& text, const char* what, const std::string& place)
{
    try {
        JsonWriter::CheckText(text);
    } catch (const Zorvik::Exception&) {
        Refuse(place, std::string(what) + " in valid UTF-8, found \"" + Show(text) + "\"");
    }
}

void CheckKeyCount(std::size_t count, const std::string& place)
{
    if (count > JsonProperty::MaxKeys)
        Refuse(place, "at most " + std::to_string(JsonProperty::MaxKeys) +
                          " keys in a node, found " + std::to_string(count));
}

/// Writes one tree.
class Writer
{
public:
    explicit Writer(const JsonProperty::Limits& limits) : m_limits(limits) {}

    JsonValue::Object WriteNode(const Property* node, const std::string& place, std::size_t depth,
                                bool isElement);

private:
    JsonValue WriteValue(const Property::Value& value, const std::string& place, std::size_t depth);
    JsonValue WriteNumber(double number, const std::string& place);
    JsonValue WriteText(const std::string& text, const std::string& place);
    JsonValue WriteList(const Property::List& list, const std::string& place, std::size_t depth);
    void CheckKey(const std::string& key, const JsonObject& object, const std::string& place);
    void CheckDepth(std::size_t depth, const std::string& place);
    void Count(const std::string& place);

    JsonProperty::Limits m_limits;
    std::size_t m_values = 0;
};

void Writer::CheckDepth(std::size_t depth, const std::string& place)
{
    if (depth > m_limits.depth)
        Refuse(place, "nesting of at most " + std::to_string(m_limits.depth) + " levels");
}

void Writer::Count(const std::string& place)
{
    if (++m_values > m_limits.values)
        Refuse(place, "at most " + std::to_string(m_limits.values) + " values");
}

void Writer::CheckKey(const std::string& key, const JsonObject& object, const std::string& place)
{
    if (key.empty())
        Refuse(place, "a key for every value, found an empty one");
    CheckUtf8(key, "keys", place);
    if (object.Find(key))
        Refuse(place, "each key once, found \"" + key + "\" again");
}

JsonValue::Object Writer::WriteNode(const Property* node, const std::string& place,
                                    std::size_t depth, bool isElement)
{
    if (!node)
        Refuse(place, "a node, found a null pointer");
    CheckDepth(depth, place);
    CheckKeyCount(node->GetEntries().size(), place);
    Count(place);
    const auto object = std::make_shared<JsonObject>();
    if (isElement && !node->GetName().empty())
        object->AppendNew(ElementNameKey, WriteText(node->GetName(), place));
    for (const auto& [key, value] : node->GetEntries()) {
        CheckKey(key, *object, place);
        object->AppendNew(key, WriteValue(value, place + "/" + key, depth));
    }
    return object;
}

JsonValue Writer::WriteValue(const Property::Value& value, const std::string& place,
                             std::size_t depth)
{
    if (const auto* const node = std::get_if<Property::Ptr>(&value))
        return JsonValue(WriteNode(node->get(), place, depth + 1, false));
    if (const auto* const list = std::get_if<Property::List>(&value))
        return WriteList(*list, place, depth + 1);
    Count(place);
    if (const auto* const text = std::get_if<std::string>(&value))
        return WriteText(*text, place);
    if (const auto* const number = std::get_if<double>(&value))
        return WriteNumber(*number, place);
    if (const auto* const whole = std::get_if<std::int64_t>(&value))
        return JsonValue(JsonNumber{static_cast<double>(*whole), std::to_string(*whole)});
    return JsonValue(std::get<bool>(value));
}

JsonValue Writer::WriteNumber(double number, const std::string& place)
{
    if (!std::isfinite(number))
        Refuse(place, "a finite number, found " + std::to_string(number));
    return JsonValue(JsonNumber{number, JsonWriter::NumberText(number)});
}

JsonValue Writer::WriteText(const std::string& text, const std::string& place)
{
    CheckUtf8(text, "text", place);
    return JsonValue(text);
}

JsonValue Writer::WriteList(const Property::List& list, const std::string& place, std::size_t depth)
{
    CheckDepth(depth, place);
    Count(place);
    const auto array = std::make_shared<JsonArray>();
    for (std::size_t i = 0; i < list.size(); ++i)
        array->elements.emplace_back(
            WriteNode(list[i].get(), place + "[" + std::to_string(i) + "]", depth + 1, true));
    return JsonValue(array);
}

Property::Value ReadNumber(const JsonNumber& number)
{
    const char* const end = number.text.data() + number.text.size();
    std::int64_t whole = 0;
    const auto result = std::from_chars(number.text.data(), end, whole);
    if (result.ec == std::errc() && result.ptr == end)
        return whole;
    return number.value;
}

/// Reads one tree.
class Reader
{
public:
    explicit Reader(const std::string& place) : m_place(place) {}

    Property::Ptr ReadNode(const JsonObject& object, const std::string& name) const;

private:
    /// Nothing for null.
    std::optional<Property::Value> ReadValue(const JsonValue& value, const std::string& key) const;
    Property::List ReadList(const JsonArray& array) const;
    Property::Ptr ReadElement(const JsonValue& element) const;

    std::string m_place;
};

Property::Ptr Reader::ReadNode(const JsonObject& object, const std::string& name) const
{
    CheckKeyCount(object.GetMembers().size(), m_place);
    const auto node = std::make_shared<Property>(name);
    for (const auto& [key, member] : object.GetMembers())
        if (auto value = ReadValue(member, key); value && key != ElementNameKey)
            node->Set(key, std::move(*value));
    return node;
}

std::optional<Property::Value> Reader::ReadValue(const JsonValue& value,
                                                 const std::string& key) const
{
    if (const auto* const object = value.As<JsonValue::Object>())
        return ReadNode(**object, key);
    if (const auto* const array = value.As<JsonValue::Array>())
        return ReadList(**array);
    if (const auto* const number = value.As<JsonNumber>())
        return ReadNumber(*number);
    if (const auto* const text = value.As<std::string>())
        return *text;
    if (const auto* const flag = value.As<bool>())
        return *flag;
    return std::nullopt;
}

Property::List Reader::ReadList(const JsonArray& array) const
{
    Property::List list;
    for (const JsonValue& element : array.elements)
        list.push_back(ReadElement(element));
    return list;
}

Property::Ptr Reader::ReadElement(const JsonValue& element) const
{
    if (const auto* const object = element.As<JsonValue::Object>()) {
        const JsonValue* const named = (*object)->Find(ElementNameKey);
        const auto* const name = named ? named->As<std::string>() : nullptr;
        return ReadNode(**object, name ? *name : std::string());
    }
    const auto node = std::make_shared<Property>(std::string());
    if (auto value = ReadValue(element, JsonProperty::ValueKey))
        node->Set(JsonProperty::ValueKey, std::move(*value));
    return node;
}

bool AreEqualElements(const Property::Ptr& first, const Property::Ptr& second)
{
    return first->GetName() == second->GetName() && JsonProperty::AreEqual(*first, *second);
}

bool AreEqualValues(const Property::Value& first, const Property::Value& second)
{
    if (first.index() != second.index())
        return false;
    if (const auto* const node = std::get_if<Property::Ptr>(&first))
        return JsonProperty::AreEqual(**node, *std::get<Property::Ptr>(second));
    if (const auto* const list = std::get_if<Property::List>(&first)) {
        const auto& other = std::get<Property::List>(second);
        return std::equal(list->begin(), list->end(), other.begin(), other.end(), AreEqualElements);
    }
    return first == second;
}

} // namespace

JsonValue::Object JsonProperty::Write(const Property& property, const std::string& place,
                                      const Limits& limits)
{
    return Writer(limits).WriteNode(&property, place, 1, false);
}

Property::Ptr JsonProperty::Read(const JsonObject& object, const std::string& place)
{
    return Reader(place).ReadNode(object, std::string());
}

bool JsonProperty::AreEqual(const Property& first, const Property& second)
{
    const auto& entries = first.GetEntries();
    const auto& others = second.GetEntries();
    return std::equal(entries.begin(), entries.end(), others.begin(), others.end(),
                      [](const auto& entry, const auto& other) {
                          return entry.first == other.first &&
                                 AreEqualValues(entry.second, other.second);
                      });
}

} // namespace LumetraHost
