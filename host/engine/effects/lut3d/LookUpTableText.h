// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"

#include "Zorvik/Brassel/ISerializer.h"

#include <QByteArray>

#include <array>
#include <cstddef>

namespace LumetraHost {

/// Everything about a stored table but its numbers.
struct LookUpTableForm
{
    LookUpTable::Kind kind = LookUpTable::Kind::Cube;
    int size = 0;
    std::array<double, 3> minimum = {0, 0, 0};
    std::array<double, 3> maximum = {1, 1, 1};
    bool isFloat = false;
    double low = 0; ///< what the lowest whole number stands for; floats stand for themselves
    double high = 1;

    /// The size of the numbers.
    std::size_t GetByteCount() const;
    bool operator==(const LookUpTableForm& other) const;
};

/// The stored form of a table, one node:
/// - "size": entries along each axis;
/// - "minRed" to "maxBlue": the domain, default 0 and 1;
/// - "format": "uint16", whole numbers over the range from "low" (default 0) to "high" (default 1),
///   or "float32";
/// - "data": red, green, blue of each entry in the order of the table, little-endian, in base64;
/// - "sha256", in place of "data": the name of the file with the same bytes, beside the file that
///   the node is in.
class LookUpTableText
{
public:
    static constexpr char KeyData[] = "data";
    static constexpr char KeyName[] = "sha256";

    /// 16 bits where that is exact to 1/65535, else floats.
    static void Write(const LookUpTable& table, const Zorvik::Brassel::SerializerPtr& node);
    /// A table with its "data". Zorvik::Exception that names the place for anything that is not
    /// such a table, before memory is taken for its values.
    static LookUpTable Read(const Zorvik::Brassel::ConstSerializerPtr& node,
                            LookUpTable::Kind kind);

    /// Reads everything but the numbers; the first half of Read().
    static LookUpTableForm ReadForm(const Zorvik::Brassel::ConstSerializerPtr& node,
                                    LookUpTable::Kind kind);
    static QByteArray ReadData(const Zorvik::Brassel::ConstSerializerPtr& node,
                               const LookUpTableForm& form);
    /// Makes the table from its numbers; the second half of Read(). `data` must have the form's
    /// size.
    static LookUpTable Decode(const LookUpTableForm& form, const QByteArray& data);
    /// False when `data`, of the form's size, has infinity or "not a number" among its floats.
    static bool AreNumbers(const LookUpTableForm& form, const QByteArray& data);
};

} // namespace LumetraHost
