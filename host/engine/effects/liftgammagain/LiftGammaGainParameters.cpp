// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/liftgammagain/LiftGammaGainParameters.h"

#include "engine/base/ParameterReader.h"

#include <string>

namespace LumetraHost {
namespace {

std::array<double, 3> ReadChannels(const ParameterReader& reader, const std::string& name)
{
    return {reader.Get(name + "Red"), reader.Get(name + "Green"), reader.Get(name + "Blue")};
}

bool AreAll(const std::array<double, 3>& channels, double value)
{
    return channels[0] == value && channels[1] == value && channels[2] == value;
}

} // namespace

const std::vector<Zorvik::Quindle::EffectParameter>& LiftGammaGainParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"slopeRed", 0, 10, 1, ""},   {"slopeGreen", 0, 10, 1, ""},   {"slopeBlue", 0, 10, 1, ""},
        {"offsetRed", -2, 2, 0, ""},  {"offsetGreen", -2, 2, 0, ""},  {"offsetBlue", -2, 2, 0, ""},
        {"powerRed", 0.1, 10, 1, ""}, {"powerGreen", 0.1, 10, 1, ""}, {"powerBlue", 0.1, 10, 1, ""},
        {"saturation", 0, 10, 1, ""}, {"clamp", 0, 1, 0, ""}};
    return parameters;
}

LiftGammaGainParameters
LiftGammaGainParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    LiftGammaGainParameters result;
    result.slope = ReadChannels(reader, "slope");
    result.offset = ReadChannels(reader, "offset");
    result.power = ReadChannels(reader, "power");
    result.saturation = reader.Get("saturation");
    result.clamp = reader.Get("clamp") >= 0.5;
    return result;
}

bool LiftGammaGainParameters::IsIdentity() const
{
    return AreAll(slope, 1) && AreAll(offset, 0) && !HasPower() && saturation == 1;
}

bool LiftGammaGainParameters::HasPower() const
{
    return !AreAll(power, 1);
}

} // namespace LumetraHost
