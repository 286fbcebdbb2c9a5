// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/engine/Reference.h"

#include "Zorvik/Quindle/IEffectSettings.h"

namespace LumetraHost {

// The formulas of effects that look at a colour's hue; see MakeReference().

ReferenceFormula ColourMixer(const Zorvik::Quindle::IEffectSettings& effect, int width, int height);
ReferenceFormula GreyMixer(const Zorvik::Quindle::IEffectSettings& effect, int width, int height);
ReferenceFormula Primaries(const Zorvik::Quindle::IEffectSettings& effect, int width, int height);
ReferenceFormula ColourGrading(const Zorvik::Quindle::IEffectSettings& effect, int width,
                               int height);

} // namespace LumetraHost
