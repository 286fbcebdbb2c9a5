// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "Zorvik/Core/Property.h"

#include <string>

namespace Zorvik::Brassel {

/// Makes serializers over trees in memory: for values that are put together by the program, for
/// tests, and for hosts that read and write files elsewhere.
class ZORVIKPLATFORM_EXPORT SerializerProperty
{
public:
    /// Wraps `property` without copying and keeps it alive: whatever is written through the result
    /// stands in the tree. `rootPath`, by default the property's name, begins every path in a
    /// message, so pass the file name where there is one. A null property is an Exception.
    static SerializerPtr Create(const Core::Property::Ptr& property,
                                const std::string& rootPath = {});
};

} // namespace Zorvik::Brassel
