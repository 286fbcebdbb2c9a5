// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/EffectKinds.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/blackandwhite/BlackAndWhiteEffect.h"
#include "engine/effects/channelmixer/ChannelMixerEffect.h"
#include "engine/effects/clarity/ClarityEffect.h"
#include "engine/effects/colourgrading/ColourGradingEffect.h"
#include "engine/effects/colourmixer/ColourMixerEffect.h"
#include "engine/effects/contrast/ContrastEffect.h"
#include "engine/effects/dehaze/DehazeEffect.h"
#include "engine/effects/exposure/ExposureEffect.h"
#include "engine/effects/gaussianblur/GaussianBlurEffect.h"
#include "engine/effects/grain/GrainEffect.h"
#include "engine/effects/greymixer/GreyMixerEffect.h"
#include "engine/effects/liftgammagain/LiftGammaGainEffect.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "engine/effects/parametriccurve/ParametricCurveEffect.h"
#include "engine/effects/primaries/PrimariesEffect.h"
#include "engine/effects/saturation/SaturationEffect.h"
#include "engine/effects/sharpen/SharpenEffect.h"
#include "engine/effects/splittoning/SplitToningEffect.h"
#include "engine/effects/texture/TextureEffect.h"
#include "engine/effects/tonecurve/ToneCurveEffect.h"
#include "engine/effects/toneregions/ToneRegionsEffect.h"
#include "engine/effects/vibrance/VibranceEffect.h"
#include "engine/effects/vignette/VignetteEffect.h"
#include "engine/effects/whitebalance/WhiteBalanceEffect.h"

#include <algorithm>

namespace LumetraHost {

const EffectKind* EffectKinds::Find(const std::string& effectID)
{
    const auto& kinds = GetAll();
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const EffectKind& kind) {
        return kind.descriptor.effectID == effectID;
    });
    return found == kinds.end() ? nullptr : &*found;
}

const std::vector<EffectKind>& EffectKinds::GetAll()
{
    static const std::vector<EffectKind> kinds = {
        MakeMatrixKind<ExposureParameters, ColourSpace::Linear>(
            QT_TRANSLATE_NOOP("Effects", "Exposure")),
        MakeMatrixKind<WhiteBalanceParameters, ColourSpace::Linear>(
            QT_TRANSLATE_NOOP("Effects", "White balance")),
        MakeContrastKind(),
        MakeToneRegionsKind(),
        MakeToneCurveKind(),
        MakeParametricCurveKind(),
        MakeMatrixKind<SaturationParameters, ColourSpace::Encoded>(
            QT_TRANSLATE_NOOP("Effects", "Saturation")),
        MakeVibranceKind(),
        MakeColourMixerKind(),
        MakeMatrixKind<ChannelMixerParameters, ColourSpace::Linear>(
            QT_TRANSLATE_NOOP("Effects", "Channel mixer")),
        MakePrimariesKind(),
        MakeMatrixKind<BlackAndWhiteParameters, ColourSpace::Linear>(
            QT_TRANSLATE_NOOP("Effects", "Black and white")),
        MakeGreyMixerKind(),
        MakeSplitToningKind(),
        MakeColourGradingKind(),
        MakeLiftGammaGainKind(),
        MakeLut3dKind(),
        MakeVignetteKind(),
        MakeGrainKind(),
        MakeDehazeKind(),
        MakeGaussianBlurKind(),
        MakeSharpenKind(),
        MakeTextureKind(),
        MakeClarityKind(),
    };
    return kinds;
}

void RegisterEffects()
{
    for (const EffectKind& kind : EffectKinds::GetAll())
        Zorvik::Quindle::EffectRegistry::Register(kind.descriptor);
}

} // namespace LumetraHost
