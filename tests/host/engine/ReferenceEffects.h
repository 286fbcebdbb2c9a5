// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/engine/Reference.h"

#include "Zorvik/Quindle/IEffectSettings.h"

namespace LumetraHost {

/// The documented formula of an effect on linear light, in double precision, written down apart
/// from the engine and without its tricks. The picture is rendered whole and has the given size.
/// Covers every effect that needs no neighbouring pixels; throws std::out_of_range for others.
ReferenceFormula MakeReference(const Zorvik::Quindle::IEffectSettings& effect, int width,
                               int height);

/// The formulas of a list of effects, one after the other.
ReferenceFormula MakeReference(const Zorvik::Quindle::EffectList& effects, int width, int height);

/// The effect rendered on random pictures against its formula, see ExpectFormula().
void ExpectReference(const Zorvik::Quindle::EffectPtr& effect);

/// The size of the pictures of ExpectFormula().
constexpr int ReferenceWidth = 301;
constexpr int ReferenceHeight = 67;

} // namespace LumetraHost
