// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonSerializer.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/RefCounted.h"
#include "storage/IJsonLocation.h"
#include "storage/JsonException.h"
#include "storage/JsonWriter.h"

#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

using Zorvik::Brassel::CollectionPtr;
using Zorvik::Brassel::ConstCollectionPtr;
using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::ISerializer;
using Zorvik::Brassel::ISerializerCollection;
using Zorvik::Brassel::SerializerPtr;
using RefCountablePtr = boost::intrusive_ptr<const Zorvik::IRefCountable>;

/// A step on the way to a node or a collection, linked to the one above it. Texts are made only for
/// errors.
struct Location
{
    std::string name;            // key in the parent; empty for an element of an array
    std::size_t index = NoIndex; // set for an element of an array
    const Location* above = nullptr;
    RefCountablePtr owner;                    // of `above`
    std::shared_ptr<const IJsonLocation> top; // of the uppermost alone

    std::string GetFile() const { return above ? above->GetFile() : top->GetFile(); }
    std::shared_ptr<const ContentFolder> GetContents() const
    {
        return above ? above->GetContents() : top->GetContents();
    }
    std::string GetPath() const
    {
        if (!above)
            return top->GetFullPath();
        const std::string step = index == NoIndex ? "/" + name : "[" + std::to_string(index) + "]";
        return above->GetPath() + step;
    }

    static constexpr std::size_t NoIndex = ~std::size_t(0);
};

/// The location of a node whose path is known from the start.
class FixedLocation : public IJsonLocation
{
public:
    FixedLocation(const std::string& file, const std::string& path,
                  const std::shared_ptr<const ContentFolder>& contents)
        : m_file(file), m_path(path), m_contents(contents)
    {
    }

    std::string GetFile() const override { return m_file; }
    std::string GetFullPath() const override { return m_path; }
    std::shared_ptr<const ContentFolder> GetContents() const override { return m_contents; }

private:
    std::string m_file;
    std::string m_path;
    std::shared_ptr<const ContentFolder> m_contents;
};

[[noreturn]] void Fail(const Location& location, const JsonValue* value, const std::string& message)
{
    JsonPlace place;
    place.file = location.GetFile();
    if (value) {
        place.line = value->line;
        place.column = value->column;
    }
    throw JsonException(location.GetPath() + ": " + message, place, message);
}

[[noreturn]] void Mismatch(const Location& location, const JsonValue& value, const char* expected,
                           const std::string& found)
{
    Fail(location, &value, std::string("expected ") + expected + ", found " + found);
}

[[noreturn]] void Mismatch(const Location& location, const JsonValue& value, const char* expected)
{
    Mismatch(location, value, expected, value.GetKindName());
}

ISerializer::Kind KindOf(const JsonValue& value)
{
    using Kind = ISerializer::Kind;
    static constexpr Kind kinds[] = {Kind::None, Kind::Bool, Kind::Number,
                                     Kind::Text, Kind::Node, Kind::Collection};
    static_assert(std::variant_size_v<JsonValue::Content> == std::size(kinds));
    return kinds[value.content.index()];
}

class JsonNode : public Zorvik::RefCounted<ISerializer>
{
public:
    JsonNode(const JsonValue::Object& object, Location location)
        : m_object(object), m_location(std::move(location))
    {
    }

    using ISerializer::Get;
    using ISerializer::Set;

    std::string GetName() const override { return m_location.name; }
    std::string GetPath() const override { return m_location.GetPath(); }
    std::shared_ptr<const ContentFolder> GetContents() const { return m_location.GetContents(); }
    std::vector<std::string> GetKeys() const override;
    Kind GetKind(const std::string& key) const override;

    bool Get(const std::string& key, bool defaultValue) const override;
    int Get(const std::string& key, int defaultValue) const override;
    double Get(const std::string& key, double defaultValue) const override;
    std::string Get(const std::string& key, const std::string& defaultValue) const override;
    ConstSerializerPtr GetNode(const std::string& key) const override;
    ConstCollectionPtr GetCollection(const std::string& key) const override;

    void Set(const std::string& key, bool value) override;
    void Set(const std::string& key, int value) override;
    void Set(const std::string& key, double value) override;
    void Set(const std::string& key, const std::string& value) override;
    SerializerPtr CreateNode(const std::string& key) override;
    CollectionPtr CreateCollection(const std::string& key) override;

private:
    /// The value under `key` as T; null when absent, an error when it is something else.
    template <class T>
    const T* Read(const std::string& key, const char* expected) const;
    void Store(const std::string& key, JsonValue::Content content);

    Location Member(const std::string& key) const
    {
        return {key, Location::NoIndex, &m_location, this, nullptr};
    }

    JsonValue::Object m_object;
    Location m_location;
};

/// The collection under a key of an object, looked up anew at each use.
class JsonCollection : public Zorvik::RefCounted<ISerializerCollection>
{
public:
    /// `location` ends with the key.
    JsonCollection(const JsonValue::Object& owner, Location location)
        : m_owner(owner), m_location(std::move(location))
    {
    }

    std::size_t GetCount() const override;
    ConstSerializerPtr GetElement(std::size_t index) const override;
    SerializerPtr AddElement(const std::string& name) override;

private:
    JsonArray* Array() const;
    JsonObject* Object() const;
    SerializerPtr AddNamed(const std::string& name);
    SerializerPtr AddUnnamed();

    const std::string& GetKey() const { return m_location.name; }
    Location Element(std::size_t index) const { return {{}, index, &m_location, this, nullptr}; }
    Location Element(const std::string& name) const
    {
        return {name, Location::NoIndex, &m_location, this, nullptr};
    }

    JsonValue::Object m_owner;
    Location m_location;
};

template <class T>
T* Target(const JsonObject& owner, const std::string& key)
{
    const JsonValue* value = owner.Find(key);
    const auto* pointer = value ? value->As<std::shared_ptr<T>>() : nullptr;
    return pointer ? pointer->get() : nullptr;
}

JsonArray* JsonCollection::Array() const
{
    return Target<JsonArray>(*m_owner, GetKey());
}

JsonObject* JsonCollection::Object() const
{
    return Target<JsonObject>(*m_owner, GetKey());
}

std::size_t JsonCollection::GetCount() const
{
    if (const JsonArray* array = Array())
        return array->elements.size();
    const JsonObject* object = Object();
    return object ? object->GetMembers().size() : 0;
}

ConstSerializerPtr JsonCollection::GetElement(std::size_t index) const
{
    const JsonArray* array = Array();
    if (index >= (array ? array->elements.size() : GetCount()))
        Fail(m_location, m_owner->Find(GetKey()),
             "expected an element " + std::to_string(index) + ", found " +
                 std::to_string(GetCount()) + " elements");
    const JsonObject::Member* member = array ? nullptr : &Object()->GetMembers()[index];
    const JsonValue& value = array ? array->elements[index] : member->second;
    Location location = array ? Element(index) : Element(member->first);
    if (const auto* node = value.As<JsonValue::Object>())
        return new JsonNode(*node, std::move(location));
    Mismatch(location, value, "node");
}

SerializerPtr JsonCollection::AddElement(const std::string& name)
{
    return name.empty() ? AddUnnamed() : AddNamed(name);
}

SerializerPtr JsonCollection::AddUnnamed()
{
    if (const JsonObject* object = Object(); object && !object->GetMembers().empty())
        Fail(m_location, nullptr, "expected a name for the new element, found none");
    if (!Array())
        m_owner->Set(GetKey(), JsonValue(std::make_shared<JsonArray>()));
    const auto node = std::make_shared<JsonObject>();
    Array()->elements.emplace_back(node);
    return new JsonNode(node, Element(Array()->elements.size() - 1));
}

SerializerPtr JsonCollection::AddNamed(const std::string& name)
{
    JsonWriter::CheckText(name);
    if (const JsonArray* array = Array(); array && !array->elements.empty())
        Fail(m_location, nullptr,
             "expected no name for the new element, found \"" + name + "\" after unnamed elements");
    if (!Object())
        m_owner->Set(GetKey(), JsonValue(std::make_shared<JsonObject>()));
    const auto node = std::make_shared<JsonObject>();
    if (!Object()->Append(name, JsonValue(node)))
        Fail(m_location, nullptr,
             "expected a new name for the new element, found \"" + name + "\" again");
    return new JsonNode(node, Element(name));
}

} // namespace

std::vector<std::string> JsonNode::GetKeys() const
{
    std::vector<std::string> keys;
    keys.reserve(m_object->GetMembers().size());
    for (const auto& member : m_object->GetMembers())
        keys.push_back(member.first);
    return keys;
}

ISerializer::Kind JsonNode::GetKind(const std::string& key) const
{
    const JsonValue* value = m_object->Find(key);
    return value ? KindOf(*value) : Kind::None;
}

template <class T>
const T* JsonNode::Read(const std::string& key, const char* expected) const
{
    const JsonValue* value = m_object->Find(key);
    if (!value)
        return nullptr;
    if (const T* typed = value->As<T>())
        return typed;
    Mismatch(Member(key), *value, expected);
}

bool JsonNode::Get(const std::string& key, bool defaultValue) const
{
    const bool* value = Read<bool>(key, "bool");
    return value ? *value : defaultValue;
}

int JsonNode::Get(const std::string& key, int defaultValue) const
{
    const JsonNumber* number = Read<JsonNumber>(key, "number");
    if (!number)
        return defaultValue;
    if (number->value != std::trunc(number->value) ||
        number->value < std::numeric_limits<int>::min() ||
        number->value > std::numeric_limits<int>::max())
        Mismatch(Member(key), *m_object->Find(key), "a whole number from -2147483648 to 2147483647",
                 "number " + number->text.substr(0, 40));
    return static_cast<int>(number->value);
}

double JsonNode::Get(const std::string& key, double defaultValue) const
{
    const JsonNumber* number = Read<JsonNumber>(key, "number");
    return number ? number->value : defaultValue;
}

std::string JsonNode::Get(const std::string& key, const std::string& defaultValue) const
{
    const std::string* value = Read<std::string>(key, "string");
    return value ? *value : defaultValue;
}

ConstSerializerPtr JsonNode::GetNode(const std::string& key) const
{
    const auto* node = Read<JsonValue::Object>(key, "node");
    return node ? new JsonNode(*node, Member(key)) : nullptr;
}

ConstCollectionPtr JsonNode::GetCollection(const std::string& key) const
{
    const JsonValue* value = m_object->Find(key);
    if (!value)
        return nullptr;
    if (!value->As<JsonValue::Array>() && !value->As<JsonValue::Object>())
        Mismatch(Member(key), *value, "collection");
    return new JsonCollection(m_object, Member(key));
}

void JsonNode::Store(const std::string& key, JsonValue::Content content)
{
    JsonWriter::CheckText(key);
    m_object->Set(key, JsonValue(std::move(content)));
}

void JsonNode::Set(const std::string& key, bool value)
{
    Store(key, value);
}

void JsonNode::Set(const std::string& key, int value)
{
    Store(key, JsonNumber{static_cast<double>(value), std::to_string(value)});
}

void JsonNode::Set(const std::string& key, double value)
{
    if (!std::isfinite(value))
        Fail(Member(key), nullptr,
             "expected a finite number to write, found " + std::to_string(value));
    Store(key, JsonNumber{value, JsonWriter::NumberText(value)});
}

void JsonNode::Set(const std::string& key, const std::string& value)
{
    JsonWriter::CheckText(value);
    Store(key, value);
}

SerializerPtr JsonNode::CreateNode(const std::string& key)
{
    const auto node = std::make_shared<JsonObject>();
    Store(key, node);
    return new JsonNode(node, Member(key));
}

CollectionPtr JsonNode::CreateCollection(const std::string& key)
{
    Store(key, std::make_shared<JsonArray>());
    return new JsonCollection(m_object, Member(key));
}

SerializerPtr JsonSerializer::Create(const JsonValue::Object& object, const std::string& fileName,
                                     const std::shared_ptr<const ContentFolder>& contents)
{
    return Create(object, std::make_shared<FixedLocation>(fileName, fileName, contents),
                  std::string());
}

SerializerPtr JsonSerializer::Create(const JsonValue::Object& object, const std::string& fileName,
                                     const std::string& path, const std::string& name,
                                     const std::shared_ptr<const ContentFolder>& contents)
{
    return Create(object,
                  std::make_shared<FixedLocation>(fileName, fileName + "/" + path, contents), name);
}

SerializerPtr JsonSerializer::Create(const JsonValue::Object& object,
                                     const std::shared_ptr<const IJsonLocation>& location,
                                     const std::string& name)
{
    return new JsonNode(object, Location{name, Location::NoIndex, nullptr, nullptr, location});
}

std::shared_ptr<const ContentFolder> JsonSerializer::FindContents(const ISerializer& node)
{
    const auto* json = dynamic_cast<const JsonNode*>(&node);
    return json ? json->GetContents() : nullptr;
}

} // namespace LumetraHost
