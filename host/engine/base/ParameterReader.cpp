// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/ParameterReader.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <cmath>

namespace LumetraHost {

ParameterReader::ParameterReader(const Zorvik::Quindle::IEffectSettings& settings,
                                 const std::vector<Zorvik::Quindle::EffectParameter>& parameters)
    : m_settings(settings), m_parameters(parameters)
{
}

double ParameterReader::Get(const std::string& name) const
{
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&](const auto& parameter) { return parameter.name == name; });
    if (found == m_parameters.end())
        throw Zorvik::Exception("effect \"" + m_settings.GetEffectID() +
                                    "\" describes no parameter \"" + name + "\"",
                                BOOST_CURRENT_FUNCTION, "engine/ParameterReader", __LINE__);
    if (!m_settings.HasParameter(name))
        return found->defaultValue;
    const double value = m_settings.GetParameter(name);
    return std::isnan(value) ? found->defaultValue
                             : std::clamp(value, found->minimum, found->maximum);
}

} // namespace LumetraHost
