// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"

#include "Zorvik/Quindle/IEffectSettings.h"

namespace LumetraHost {

/// A table whose entries lie at random up to one and a half entries beside the identity, the same
/// for the same seed.
LookUpTable MakeRandomTable(LookUpTable::Kind kind, int size, unsigned seed);

/// The registered effect "lut3d" with these tables, null for none.
Zorvik::Quindle::EffectPtr MakeLut3d(const LookUpTable* curve, const LookUpTable* cube);

} // namespace LumetraHost
