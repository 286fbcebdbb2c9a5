// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/lut3d/LookUpTable.h"

#include "Zorvik/Brassel/ISerializer.h"

namespace LumetraHost {

/// The stored form of a table, one node:
/// - "size": entries along each axis;
/// - "minRed" to "maxBlue": the domain, default 0 and 1;
/// - "format": "uint16", whole numbers over the range from "low" (default 0) to "high" (default 1),
///   or "float32";
/// - "data": red, green, blue of each entry in the order of the table, little-endian, in base64.
class LookUpTableText
{
public:
    /// 16 bits where that is exact to 1/65535, else floats.
    static void Write(const LookUpTable& table, const Zorvik::Brassel::SerializerPtr& node);
    /// Zorvik::Exception that names the place for anything that is not such a table, before memory
    /// is taken for its values.
    static LookUpTable Read(const Zorvik::Brassel::ConstSerializerPtr& node,
                            LookUpTable::Kind kind);
};

} // namespace LumetraHost
