// SPDX-License-Identifier: MIT
#include "Zorvik/Brassel/IParserConfigGroup.h"
#include "Zorvik/Brassel/ISerializable.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/ISerializerCollection.h"

namespace Zorvik::Brassel {

ISerializable::~ISerializable() = default;

const std::string& ISerializable::GetClassId() const
{
    static const std::string empty;
    return empty;
}

ISerializer::~ISerializer() = default;

std::string ISerializer::GetPath() const
{
    return GetName();
}

bool ISerializer::Has(const std::string& key) const
{
    return GetKind(key) != Kind::None;
}

std::string ISerializer::Get(const std::string& key, const char* defaultValue) const
{
    return Get(key, std::string(defaultValue ? defaultValue : ""));
}

void ISerializer::Set(const std::string& key, const char* value)
{
    Set(key, std::string(value ? value : ""));
}

bool ISerializer::ReadObject(const std::string& key, ISerializable& object) const
{
    const ConstSerializerPtr node = GetNode(key);
    if (!node)
        return false;
    object.Deserialize(node);
    return true;
}

void ISerializer::WriteObject(const std::string& key, const ISerializable& object)
{
    object.Serialize(CreateNode(key));
}

ISerializerCollection::~ISerializerCollection() = default;

SerializerPtr ISerializerCollection::AddElement()
{
    return AddElement(std::string());
}

void ISerializerCollection::ReadObject(std::size_t index, const std::string& /*classId*/,
                                       ISerializable& object) const
{
    object.Deserialize(GetElement(index));
}

namespace Config {

IParserConfigBase::~IParserConfigBase() = default;
IParserConfigGroup::~IParserConfigGroup() = default;

} // namespace Config
} // namespace Zorvik::Brassel
