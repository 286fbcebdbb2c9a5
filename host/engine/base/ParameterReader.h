// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// Reads the numbers of one effect the way pixel code needs them: always within their range.
class ParameterReader
{
public:
    /// Both are kept by reference.
    ParameterReader(const Zorvik::Quindle::IEffectSettings& settings,
                    const std::vector<Zorvik::Quindle::EffectParameter>& parameters);

    /// The value clamped to the parameter's range; its default when the settings lack it or hold
    /// NaN. `name` must be one of the parameters.
    double Get(const std::string& name) const;

private:
    const Zorvik::Quindle::IEffectSettings& m_settings;
    const std::vector<Zorvik::Quindle::EffectParameter>& m_parameters;
};

} // namespace LumetraHost
