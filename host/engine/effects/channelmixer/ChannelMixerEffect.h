// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"
#include "engine/base/ParameterTable.h"

namespace LumetraHost {

/// Channel mixer: a free 3 x 3 matrix in linear light. "rg" is how much of the old green goes into
/// the new red: red = rr * red + rg * green + rb * blue. Rows that add up to 1 keep greys grey.
/// OpenColorIO's MatrixTransform does the same.
struct ChannelMixerParameters
{
    static constexpr char EffectId[] = "channelMixer";

    double rr = 1, rg = 0, rb = 0;
    double gr = 0, gg = 1, gb = 0;
    double br = 0, bg = 0, bb = 1;

    static constexpr ParameterRow<ChannelMixerParameters> Table[] = {
        {"rr", &ChannelMixerParameters::rr, -2, 2}, {"rg", &ChannelMixerParameters::rg, -2, 2},
        {"rb", &ChannelMixerParameters::rb, -2, 2}, {"gr", &ChannelMixerParameters::gr, -2, 2},
        {"gg", &ChannelMixerParameters::gg, -2, 2}, {"gb", &ChannelMixerParameters::gb, -2, 2},
        {"br", &ChannelMixerParameters::br, -2, 2}, {"bg", &ChannelMixerParameters::bg, -2, 2},
        {"bb", &ChannelMixerParameters::bb, -2, 2}};

    bool IsIdentity() const { return GetMatrix().IsIdentity(); }
    ColourMatrix GetMatrix() const { return {{{{rr, rg, rb}, {gr, gg, gb}, {br, bg, bb}}}}; }
};

} // namespace LumetraHost
