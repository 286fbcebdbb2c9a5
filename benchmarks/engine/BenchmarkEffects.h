// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstdint>
#include <string>
#include <vector>

namespace LumetraBench {

/// One or more effects that are measured together.
struct BenchmarkEffects
{
    std::string name;
    Zorvik::Quindle::EffectList effects;
};

/// A chain of exposure, white balance, contrast, saturation and lift-gamma-gain, which the peers
/// have too.
inline constexpr char Chain[] = "chain5";

/// Every effect alone, under its id, and the chain.
const std::vector<BenchmarkEffects>& GetBenchmarkEffects();
/// The effects of that name; std::invalid_argument when there are none.
const Zorvik::Quindle::EffectList& FindEffects(const std::string& name);
/// The effect that is measured alone under its id.
const Zorvik::Quindle::IEffectSettings& FindEffect(const std::string& id);

/// All values of 8 or of 16 bits after effects that take each channel alone: as many entries of
/// red, green, blue and alpha.
std::vector<std::uint8_t> MakeTable8(const Zorvik::Quindle::EffectList& effects);
std::vector<std::uint16_t> MakeTable16(const Zorvik::Quindle::EffectList& effects);

} // namespace LumetraBench
