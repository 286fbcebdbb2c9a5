// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/exposure/ExposureParameters.h"

#include "engine/base/ParameterReader.h"

#include <cmath>

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& ExposureParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"stops", -5, 5, 0, "stops"}};
    return parameters;
}

ExposureParameters ExposureParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    ExposureParameters result;
    result.stops = ParameterReader(settings, Describe()).Get("stops");
    return result;
}

ColourMatrix ExposureParameters::GetMatrix() const
{
    const double factor = std::exp2(stops);
    return ColourMatrix::Diagonal(factor, factor, factor);
}

bool operator==(const ExposureParameters& first, const ExposureParameters& second)
{
    return first.stops == second.stops;
}

} // namespace LumetraHost
