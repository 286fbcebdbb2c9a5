// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/ParameterTable.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {

double ReadNumber(const Zorvik::Quindle::IEffectSettings& settings,
                  const Zorvik::Quindle::EffectParameter& parameter)
{
    if (!settings.HasParameter(parameter.name))
        return parameter.defaultValue;
    const double value = settings.GetParameter(parameter.name);
    return std::isnan(value) ? parameter.defaultValue
                             : std::clamp(value, parameter.minimum, parameter.maximum);
}

} // namespace LumetraHost
