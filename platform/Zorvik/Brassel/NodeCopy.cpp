// SPDX-License-Identifier: MIT
#include "Zorvik/Brassel/NodeCopy.h"

#include "Zorvik/Brassel/ISerializerCollection.h"

#include <cmath>
#include <limits>

namespace Zorvik::Brassel {
namespace {

void CopyNumber(const ISerializer& from, const std::string& key, ISerializer& to)
{
    const double number = from.Get(key, 0.0);
    const bool isInt =
        number == std::trunc(number) && std::abs(number) <= std::numeric_limits<int>::max();
    if (isInt)
        to.Set(key, static_cast<int>(number));
    else
        to.Set(key, number);
}

void CopyCollection(const ISerializer& from, const std::string& key, ISerializer& to)
{
    const auto source = from.GetCollection(key);
    const auto target = to.CreateCollection(key);
    for (std::size_t i = 0; i < source->GetCount(); ++i) {
        const auto element = source->GetElement(i);
        NodeCopy::CopyAll(*element, *target->AddElement(element->GetName()));
    }
}

} // namespace

void NodeCopy::CopyAll(const ISerializer& from, ISerializer& to)
{
    for (const std::string& key : from.GetKeys())
        CopyEntry(from, key, to);
}

void NodeCopy::CopyEntry(const ISerializer& from, const std::string& key, ISerializer& to)
{
    switch (from.GetKind(key)) {
    case ISerializer::Kind::Bool:
        return to.Set(key, from.Get(key, false));
    case ISerializer::Kind::Number:
        return CopyNumber(from, key, to);
    case ISerializer::Kind::Text:
        return to.Set(key, from.Get(key, std::string()));
    case ISerializer::Kind::Node:
        return CopyAll(*from.GetNode(key), *to.CreateNode(key));
    case ISerializer::Kind::Collection:
        return CopyCollection(from, key, to);
    case ISerializer::Kind::None:
        return;
    }
}

} // namespace Zorvik::Brassel
