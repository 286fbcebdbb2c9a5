// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestTables.h"

#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"

#include <random>

namespace LumetraHost {

LookUpTable MakeRandomTable(LookUpTable::Kind kind, int size, unsigned seed)
{
    std::mt19937 random(seed);
    const float farthest = 1.5f / static_cast<float>(size - 1);
    std::uniform_real_distribution<float> distance(-farthest, farthest);
    auto table = LookUpTable::MakeIdentity(kind, size, {0, 0, 0}, {1, 1, 1});
    for (float& v : table.values)
        v += distance(random);
    return table;
}

Zorvik::Quindle::EffectPtr MakeLut3d(const LookUpTable* curve, const LookUpTable* cube)
{
    RegisterEffects();
    return Lut3dSettings::Create(curve, cube);
}

} // namespace LumetraHost
