// SPDX-License-Identifier: GPL-2.0-or-later
#include "common/OcioEffects.h"

#include "engine/effects/blackandwhite/BlackAndWhiteEffect.h"
#include "engine/effects/channelmixer/ChannelMixerEffect.h"
#include "engine/effects/contrast/ContrastEffect.h"
#include "engine/effects/exposure/ExposureEffect.h"
#include "engine/effects/liftgammagain/LiftGammaGainEffect.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "engine/effects/saturation/SaturationEffect.h"
#include "engine/effects/whitebalance/WhiteBalanceEffect.h"
#include "image/Srgb.h"

#include <stdexcept>
#include <string>

namespace LumetraBench {
namespace {

namespace Ocio = OCIO_NAMESPACE;
using namespace LumetraHost;
using Zorvik::Quindle::IEffectSettings;

/// An effect, and the space that it works in.
struct Step
{
    Ocio::TransformRcPtr transform;
    bool isLinear = true;
};

Ocio::TransformRcPtr MakeSrgb(Ocio::TransformDirection direction)
{
    const auto curve = Ocio::ExponentWithLinearTransform::Create();
    curve->setGamma({2.4, 2.4, 2.4, 1});
    curve->setOffset({0.055, 0.055, 0.055, 0});
    curve->setNegativeStyle(Ocio::NEGATIVE_MIRROR);
    curve->setDirection(direction);
    return curve;
}

Ocio::TransformRcPtr MakeMatrix(const ColourMatrix& colours)
{
    double numbers[16] = {};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            numbers[4 * row + column] = colours.rows[row][column];
    numbers[15] = 1;
    const auto matrix = Ocio::MatrixTransform::Create();
    matrix->setMatrix(numbers);
    return matrix;
}

Ocio::ExposureContrastTransformRcPtr MakeExposureContrast(double stops, double exponent)
{
    const auto transform = Ocio::ExposureContrastTransform::Create();
    transform->setStyle(Ocio::EXPOSURE_CONTRAST_LINEAR);
    transform->setPivot(MiddleGrey);
    transform->setExposure(stops);
    transform->setContrast(exponent);
    return transform;
}

Ocio::TransformRcPtr MakeContrast(const IEffectSettings& effect, OcioEffects::Contrast contrast)
{
    const auto transform =
        MakeExposureContrast(0, ReadParameters<ContrastParameters>(effect).GetExponent());
    if (contrast == OcioEffects::Contrast::Adjustable)
        transform->makeContrastDynamic();
    return transform;
}

Ocio::CDLTransformRcPtr MakeDecisions()
{
    const auto decisions = Ocio::CDLTransform::Create();
    decisions->setStyle(Ocio::CDL_NO_CLAMP);
    return decisions;
}

Ocio::TransformRcPtr MakeSaturation(const IEffectSettings& effect)
{
    const auto decisions = MakeDecisions();
    decisions->setSat(1 + ReadParameters<SaturationParameters>(effect).amount / 100);
    return decisions;
}

Ocio::TransformRcPtr MakeLiftGammaGain(const IEffectSettings& effect)
{
    const auto parameters = ReadParameters<LiftGammaGainParameters>(effect);
    const auto decisions = MakeDecisions();
    decisions->setSlope(parameters.GetSlope().data());
    decisions->setOffset(parameters.GetOffset().data());
    decisions->setPower(parameters.GetPower().data());
    return decisions;
}

Ocio::TransformRcPtr MakeCube(const IEffectSettings& effect)
{
    const LookUpTable& cube = *dynamic_cast<const Lut3dSettings&>(effect).GetCube();
    const auto size = static_cast<unsigned long>(cube.size);
    const auto transform = Ocio::Lut3DTransform::Create(size);
    transform->setInterpolation(Ocio::INTERP_TETRAHEDRAL);
    for (unsigned long i = 0; i < cube.GetCount(); ++i) {
        const float* const value = &cube.values[LookUpTable::Stride * i];
        transform->setValue(i % size, i / size % size, i / size / size, value[0], value[1],
                            value[2]);
    }
    return transform;
}

Step MakeStep(const IEffectSettings& effect, OcioEffects::Contrast contrast)
{
    const std::string& id = effect.GetEffectID();
    if (id == ExposureParameters::EffectId)
        return {MakeExposureContrast(ReadParameters<ExposureParameters>(effect).stops, 1)};
    if (id == ContrastParameters::EffectId)
        return {MakeContrast(effect, contrast)};
    if (id == WhiteBalanceParameters::EffectId)
        return {MakeMatrix(ReadParameters<WhiteBalanceParameters>(effect).GetMatrix())};
    if (id == ChannelMixerParameters::EffectId)
        return {MakeMatrix(ReadParameters<ChannelMixerParameters>(effect).GetMatrix())};
    if (id == BlackAndWhiteParameters::EffectId)
        return {MakeMatrix(ReadParameters<BlackAndWhiteParameters>(effect).GetMatrix())};
    if (id == SaturationParameters::EffectId)
        return {MakeSaturation(effect), false};
    if (id == LiftGammaGainParameters::EffectId)
        return {MakeLiftGammaGain(effect), false};
    if (id == Lut3dParameters::EffectId)
        return {MakeCube(effect), false};
    throw std::invalid_argument("expected an effect that OpenColorIO has, found " + id);
}

/// One configuration for all, as a program keeps it. It keeps its processors, and with them their
/// settings, so that a processor that can be adjusted has a configuration of its own.
Ocio::ConstConfigRcPtr GetConfig(OcioEffects::Contrast contrast)
{
    static const Ocio::ConstConfigRcPtr shared = Ocio::Config::CreateRaw();
    return contrast == OcioEffects::Contrast::Fixed ? shared : Ocio::Config::CreateRaw();
}

/// Makes a group from encoded to encoded; neighbours in linear light share the conversions.
Ocio::GroupTransformRcPtr MakeGroup(const Zorvik::Quindle::EffectList& effects,
                                    OcioEffects::Contrast contrast)
{
    const auto group = Ocio::GroupTransform::Create();
    bool isLinear = false;
    const auto convert = [&group, &isLinear](bool toLinear) {
        if (toLinear != isLinear)
            group->appendTransform(
                MakeSrgb(toLinear ? Ocio::TRANSFORM_DIR_FORWARD : Ocio::TRANSFORM_DIR_INVERSE));
        isLinear = toLinear;
    };
    for (const auto& effect : effects) {
        const Step step = MakeStep(*effect, contrast);
        convert(step.isLinear);
        group->appendTransform(step.transform);
    }
    convert(false);
    return group;
}

} // namespace

OcioEffects::OcioEffects(const Zorvik::Quindle::EffectList& effects, Image::Depth depth,
                         Contrast contrast)
    : OcioEffects(GetConfig(contrast), MakeGroup(effects, contrast), depth)
{
}

OcioEffects::OcioEffects(const Ocio::TransformRcPtr& transform, Image::Depth depth)
    : OcioEffects(GetConfig(Contrast::Fixed), transform, depth)
{
}

OcioEffects::OcioEffects(const Ocio::ConstConfigRcPtr& config,
                         const Ocio::TransformRcPtr& transform, Image::Depth depth)
    : m_depth(depth == Image::Depth::Bits16 ? Ocio::BIT_DEPTH_UINT16 : Ocio::BIT_DEPTH_UINT8),
      m_processor(config->getProcessor(transform)->getOptimizedCPUProcessor(
          m_depth, m_depth, Ocio::OPTIMIZATION_DEFAULT))
{
}

void OcioEffects::SetContrast(double amount)
{
    ContrastParameters parameters;
    parameters.amount = amount;
    auto property = m_processor->getDynamicProperty(Ocio::DYNAMIC_PROPERTY_CONTRAST);
    Ocio::DynamicPropertyValue::AsDouble(property)->setValue(parameters.GetExponent());
}

void OcioEffects::Draw(const Image& source, Image& target, int firstRow, int rows) const
{
    const auto describe = [&](const Image& image) {
        // The description takes a writable pointer even for a picture that is only read.
        return Ocio::PackedImageDesc(
            const_cast<std::uint8_t*>(image.Row(firstRow)), image.GetWidth(), rows,
            Ocio::CHANNEL_ORDERING_RGBA, m_depth, std::ptrdiff_t(image.GetBytesPerChannel()),
            std::ptrdiff_t(image.GetBytesPerPixel()), std::ptrdiff_t(image.GetStride()));
    };
    const Ocio::PackedImageDesc from = describe(source);
    Ocio::PackedImageDesc to = describe(target);
    m_processor->apply(from, to);
}

void OcioEffects::Draw(const Image& source, Image& target) const
{
    Draw(source, target, 0, source.GetHeight());
}

} // namespace LumetraBench
