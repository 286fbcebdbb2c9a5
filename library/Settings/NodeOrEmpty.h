// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"

namespace Zorvik::Lumetra::LumetraPresets {

/// Returns `node`, or an empty one in its place when it is null, so that reading gives the
/// defaults. The result is never null.
inline Brassel::ConstSerializerPtr NodeOrEmpty(const Brassel::ConstSerializerPtr& node)
{
    if (node)
        return node;
    return Brassel::SerializerProperty::Create(std::make_shared<Core::Property>(std::string()));
}

} // namespace Zorvik::Lumetra::LumetraPresets
