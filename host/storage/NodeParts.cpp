// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/NodeParts.h"

#include "Zorvik/RefCounted.h"
#include "storage/FailWith.h"

#include <algorithm>

namespace LumetraHost {
namespace {

using Zorvik::Brassel::CollectionPtr;
using Zorvik::Brassel::ConstCollectionPtr;
using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::ISerializer;
using Zorvik::Brassel::SerializerPtr;

class PartialNode : public Zorvik::RefCounted<ISerializer>
{
public:
    PartialNode(const ConstSerializerPtr& node, const std::vector<std::string>& hidden)
        : m_node(node), m_hidden(hidden)
    {
    }

    std::string GetName() const override { return m_node->GetName(); }
    std::string GetPath() const override { return m_node->GetPath(); }
    std::vector<std::string> GetKeys() const override
    {
        auto keys = m_node->GetKeys();
        keys.erase(std::remove_if(keys.begin(), keys.end(),
                                  [this](const std::string& key) { return IsHidden(key); }),
                   keys.end());
        return keys;
    }
    Kind GetKind(const std::string& key) const override
    {
        return IsHidden(key) ? Kind::None : m_node->GetKind(key);
    }

    using ISerializer::Get;
    bool Get(const std::string& key, bool fallback) const override { return Read(key, fallback); }
    int Get(const std::string& key, int fallback) const override { return Read(key, fallback); }
    double Get(const std::string& key, double fallback) const override
    {
        return Read(key, fallback);
    }
    std::string Get(const std::string& key, const std::string& fallback) const override
    {
        return Read(key, fallback);
    }
    ConstSerializerPtr GetNode(const std::string& key) const override
    {
        return IsHidden(key) ? nullptr : m_node->GetNode(key);
    }
    ConstCollectionPtr GetCollection(const std::string& key) const override
    {
        return IsHidden(key) ? nullptr : m_node->GetCollection(key);
    }

    using ISerializer::Set;
    void Set(const std::string&, bool) override { Refuse(); }
    void Set(const std::string&, int) override { Refuse(); }
    void Set(const std::string&, double) override { Refuse(); }
    void Set(const std::string&, const std::string&) override { Refuse(); }
    SerializerPtr CreateNode(const std::string&) override { Refuse(); }
    CollectionPtr CreateCollection(const std::string&) override { Refuse(); }

private:
    bool IsHidden(const std::string& key) const
    {
        return std::find(m_hidden.begin(), m_hidden.end(), key) != m_hidden.end();
    }

    template <class T>
    T Read(const std::string& key, const T& fallback) const
    {
        return IsHidden(key) ? fallback : m_node->Get(key, fallback);
    }

    [[noreturn]] void Refuse() const { FailWith(GetPath() + ": expected to be read only"); }

    ConstSerializerPtr m_node;
    std::vector<std::string> m_hidden;
};

} // namespace

ConstSerializerPtr HideKeys(const ConstSerializerPtr& node, const std::vector<std::string>& keys)
{
    return new PartialNode(node, keys);
}

} // namespace LumetraHost
