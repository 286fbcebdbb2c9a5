// SPDX-License-Identifier: GPL-2.0-or-later
#include "OddEdits.h"

#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace {

using Zorvik::Core::Property;

constexpr int TooManyLevels = 100, TooManyKeys = 10'001, Doublings = 40;
constexpr std::size_t TooManyBytes = 25 * 1024 * 1024;

void AddDepth(Property& edit)
{
    auto node = std::make_shared<Property>("deep");
    for (int i = 0; i < TooManyLevels; ++i) {
        const auto outer = std::make_shared<Property>("deep");
        outer->Set("deep", node);
        node = outer;
    }
    edit.Set("deep", node);
}

/// Each node has the one below it twice, so that few nodes are a tree without end.
void AddDoublings(Property& edit)
{
    auto node = std::make_shared<Property>("wide");
    for (int i = 0; i < Doublings; ++i) {
        const auto outer = std::make_shared<Property>("wide");
        outer->Set("first", node);
        outer->Set("second", node);
        node = outer;
    }
    edit.Set("wide", node);
}

void AddKeys(Property& edit)
{
    for (int i = 0; i < TooManyKeys; ++i)
        edit.Set("key" + std::to_string(i), true);
}

/// No operation of a property makes such a node.
void AddKeyTwice(Property& edit)
{
    using Entries = std::vector<std::pair<std::string, Property::Value>>;
    auto& entries = const_cast<Entries&>(edit.GetEntries());
    entries.emplace_back("twice", 1.0);
    entries.emplace_back("twice", 2.0);
}

const std::map<std::string, std::function<void(Property&)>>& GetWays()
{
    using Limits = std::numeric_limits<double>;
    static const std::map<std::string, std::function<void(Property&)>> ways{
        {"null node", [](Property& edit) { edit.Set("node", Property::Ptr()); }},
        {"null element", [](Property& edit) { edit.Set("list", Property::List{nullptr}); }},
        {"no number", [](Property& edit) { edit.Set("number", Limits::quiet_NaN()); }},
        {"not finite", [](Property& edit) { edit.Set("number", -Limits::infinity()); }},
        {"broken text", [](Property& edit) { edit.Set("text", std::string("caf\xE9")); }},
        {"broken key", [](Property& edit) { edit.Set("caf\xE9", true); }},
        {"empty key", [](Property& edit) { edit.Set("", true); }},
        {"key twice", AddKeyTwice},
        {"many keys", AddKeys},
        {"deep", AddDepth},
        {"wide", AddDoublings},
        {"large", [](Property& edit) { edit.Set("text", std::string(TooManyBytes, 'x')); }}};
    return ways;
}

/// Holds a tree that contains itself, until the program ends.
struct Ring
{
    Ring() { node->Set("self", node); }
    ~Ring() { node->Set("self", false); }

    Property::Ptr node = std::make_shared<Property>(std::string());
};

Property::Ptr GetRing()
{
    static const Ring ring;
    return ring.node;
}

} // namespace

Property::Ptr OddEdits::Spoil(const Property::Ptr& edit, const std::string& mode)
{
    if (mode == "null edit")
        return nullptr;
    if (mode == "ring")
        return GetRing();
    const auto way = GetWays().find(mode);
    if (way != GetWays().end())
        way->second(*edit);
    return edit;
}
