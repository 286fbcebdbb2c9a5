// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Channel mixer: a free 3 x 3 matrix in linear light. "rg" is how much of the old green goes into
/// the new red: red = rr * red + rg * green + rb * blue. Rows that add up to 1 keep greys grey.
/// The same as OpenColorIO's MatrixTransform.
struct ChannelMixerParameters
{
    static constexpr char EffectId[] = "channelMixer";

    ColourMatrix matrix; ///< each number -2 to 2

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static ChannelMixerParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return matrix.IsIdentity(); }
    ColourMatrix GetMatrix() const { return matrix; }
};

bool operator==(const ChannelMixerParameters& first, const ChannelMixerParameters& second);

} // namespace LumetraHost
