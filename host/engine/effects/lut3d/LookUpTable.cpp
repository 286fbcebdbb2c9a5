// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/LookUpTable.h"

namespace LumetraHost {

std::size_t LookUpTable::GetCount(Kind kind, int size)
{
    const auto points = static_cast<std::size_t>(size);
    return kind == Kind::Cube ? points * points * points : points;
}

LookUpTable LookUpTable::MakeIdentity(Kind kind, int size, const std::array<double, 3>& minimum,
                                      const std::array<double, 3>& maximum)
{
    LookUpTable table;
    table.kind = kind;
    table.size = size;
    table.minimum = minimum;
    table.maximum = maximum;
    table.values.resize(Stride * table.GetCount());
    const auto points = static_cast<std::size_t>(size);
    const std::size_t steps[3] = {1, points, points * points};
    for (std::size_t i = 0; i < table.GetCount(); ++i)
        for (std::size_t c = 0; c < 3; ++c) {
            const std::size_t index = kind == Kind::Cube ? i / steps[c] % points : i;
            const double part = static_cast<double>(index) / (size - 1);
            table.values[Stride * i + c] =
                static_cast<float>(minimum[c] + part * (maximum[c] - minimum[c]));
        }
    return table;
}

} // namespace LumetraHost
