// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/channelmixer/ChannelMixerParameters.h"

#include "engine/base/ParameterReader.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& ChannelMixerParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"rr", -2, 2, 1, ""}, {"rg", -2, 2, 0, ""}, {"rb", -2, 2, 0, ""},
        {"gr", -2, 2, 0, ""}, {"gg", -2, 2, 1, ""}, {"gb", -2, 2, 0, ""},
        {"br", -2, 2, 0, ""}, {"bg", -2, 2, 0, ""}, {"bb", -2, 2, 1, ""}};
    return parameters;
}

ChannelMixerParameters
ChannelMixerParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    ChannelMixerParameters result;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            result.matrix.rows[i][j] = reader.Get(Describe()[3 * i + j].name);
    return result;
}

bool operator==(const ChannelMixerParameters& first, const ChannelMixerParameters& second)
{
    return first.matrix == second.matrix;
}

} // namespace LumetraHost
