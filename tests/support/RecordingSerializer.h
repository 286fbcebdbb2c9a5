// SPDX-License-Identifier: MIT
#pragma once

#include "support/CallLog.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/RefCounted.h"

namespace LumetraTest {

/// Wraps a node of any serializer and records what is read and written through it, with its place:
/// "read test/name, default "" -> "Warm"", "write test/popular = true". The nodes and collections
/// that it gives out record too.
class RecordingSerializer : public Zorvik::RefCounted<Zorvik::Brassel::ISerializer>
{
public:
    static Zorvik::Brassel::SerializerPtr Wrap(CallLog& log,
                                               const Zorvik::Brassel::SerializerPtr& node);
    /// Wraps a node; null for null.
    static Zorvik::Brassel::ConstSerializerPtr
    Wrap(CallLog& log, const Zorvik::Brassel::ConstSerializerPtr& node);

    using ISerializer::Get;
    using ISerializer::Set;

    std::string GetName() const override;
    std::string GetPath() const override;
    std::vector<std::string> GetKeys() const override;
    Kind GetKind(const std::string& key) const override;
    bool Get(const std::string& key, bool defaultValue) const override;
    int Get(const std::string& key, int defaultValue) const override;
    double Get(const std::string& key, double defaultValue) const override;
    std::string Get(const std::string& key, const std::string& defaultValue) const override;
    Zorvik::Brassel::ConstSerializerPtr GetNode(const std::string& key) const override;
    Zorvik::Brassel::ConstCollectionPtr GetCollection(const std::string& key) const override;
    void Set(const std::string& key, bool value) override;
    void Set(const std::string& key, int value) override;
    void Set(const std::string& key, double value) override;
    void Set(const std::string& key, const std::string& value) override;
    Zorvik::Brassel::SerializerPtr CreateNode(const std::string& key) override;
    Zorvik::Brassel::CollectionPtr CreateCollection(const std::string& key) override;

private:
    RecordingSerializer(CallLog& log, const Zorvik::Brassel::SerializerPtr& node);

    std::string Place(const std::string& key) const { return m_node->GetPath() + "/" + key; }

    template <class Value>
    Value Read(const std::string& key, const Value& defaultValue) const;
    template <class Value>
    void Write(const std::string& key, const Value& value);

    CallLog& m_log;
    Zorvik::Brassel::SerializerPtr m_node;
};

} // namespace LumetraTest
