// SPDX-License-Identifier: MIT
#include "support/RecordingSerializer.h"

#include "support/RecordingCollection.h"

namespace LumetraTest {

using namespace Zorvik::Brassel;

RecordingSerializer::RecordingSerializer(CallLog& log, const SerializerPtr& node)
    : m_log(log), m_node(node)
{
}

SerializerPtr RecordingSerializer::Wrap(CallLog& log, const SerializerPtr& node)
{
    return new RecordingSerializer(log, node);
}

ConstSerializerPtr RecordingSerializer::Wrap(CallLog& log, const ConstSerializerPtr& node)
{
    if (!node)
        return nullptr;
    // The wrapper is handed out as const, so nothing is written through it.
    return new RecordingSerializer(log, const_cast<ISerializer*>(node.get()));
}

template <class Value>
Value RecordingSerializer::Read(const std::string& key, const Value& defaultValue) const
{
    const Value value = m_node->Get(key, defaultValue);
    m_log.Add("read " + Place(key) + ", default " + CallText(defaultValue) + " -> " +
              CallText(value));
    return value;
}

template <class Value>
void RecordingSerializer::Write(const std::string& key, const Value& value)
{
    m_log.Add("write " + Place(key) + " = " + CallText(value));
    m_node->Set(key, value);
}

std::string RecordingSerializer::GetName() const
{
    return m_node->GetName();
}

std::string RecordingSerializer::GetPath() const
{
    return m_node->GetPath();
}

std::vector<std::string> RecordingSerializer::GetKeys() const
{
    return m_node->GetKeys();
}

ISerializer::Kind RecordingSerializer::GetKind(const std::string& key) const
{
    return m_node->GetKind(key);
}

bool RecordingSerializer::Get(const std::string& key, bool defaultValue) const
{
    return Read(key, defaultValue);
}

int RecordingSerializer::Get(const std::string& key, int defaultValue) const
{
    return Read(key, defaultValue);
}

double RecordingSerializer::Get(const std::string& key, double defaultValue) const
{
    return Read(key, defaultValue);
}

std::string RecordingSerializer::Get(const std::string& key, const std::string& defaultValue) const
{
    return Read(key, defaultValue);
}

ConstSerializerPtr RecordingSerializer::GetNode(const std::string& key) const
{
    const ConstSerializerPtr node = m_node->GetNode(key);
    m_log.Add("node " + Place(key) + (node ? "" : " -> none"));
    return Wrap(m_log, node);
}

ConstCollectionPtr RecordingSerializer::GetCollection(const std::string& key) const
{
    const ConstCollectionPtr collection = m_node->GetCollection(key);
    m_log.Add("collection " + Place(key) + (collection ? "" : " -> none"));
    return RecordingCollection::Wrap(m_log, collection);
}

void RecordingSerializer::Set(const std::string& key, bool value)
{
    Write(key, value);
}

void RecordingSerializer::Set(const std::string& key, int value)
{
    Write(key, value);
}

void RecordingSerializer::Set(const std::string& key, double value)
{
    Write(key, value);
}

void RecordingSerializer::Set(const std::string& key, const std::string& value)
{
    Write(key, value);
}

SerializerPtr RecordingSerializer::CreateNode(const std::string& key)
{
    m_log.Add("create node " + Place(key));
    return Wrap(m_log, m_node->CreateNode(key));
}

CollectionPtr RecordingSerializer::CreateCollection(const std::string& key)
{
    m_log.Add("create collection " + Place(key));
    return RecordingCollection::Wrap(m_log, m_node->CreateCollection(key));
}

} // namespace LumetraTest
