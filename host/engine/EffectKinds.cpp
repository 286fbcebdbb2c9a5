// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/EffectKinds.h"

#include "engine/blackandwhite/BlackAndWhiteEffect.h"
#include "engine/channelmixer/ChannelMixerEffect.h"
#include "engine/clarity/ClarityEffect.h"
#include "engine/contrast/ContrastEffect.h"
#include "engine/exposure/ExposureEffect.h"
#include "engine/gaussianblur/GaussianBlurEffect.h"
#include "engine/grain/GrainEffect.h"
#include "engine/liftgammagain/LiftGammaGainEffect.h"
#include "engine/lut3d/Lut3dEffect.h"
#include "engine/saturation/SaturationEffect.h"
#include "engine/sharpen/SharpenEffect.h"
#include "engine/splittoning/SplitToningEffect.h"
#include "engine/tonecurve/ToneCurveEffect.h"
#include "engine/toneregions/ToneRegionsEffect.h"
#include "engine/vibrance/VibranceEffect.h"
#include "engine/vignette/VignetteEffect.h"
#include "engine/whitebalance/WhiteBalanceEffect.h"

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
        MakeExposureKind(),    MakeWhiteBalanceKind(),  MakeContrastKind(),
        MakeToneRegionsKind(), MakeToneCurveKind(),     MakeSaturationKind(),
        MakeVibranceKind(),    MakeChannelMixerKind(),  MakeBlackAndWhiteKind(),
        MakeSplitToningKind(), MakeLiftGammaGainKind(), MakeLut3dKind(),
        MakeVignetteKind(),    MakeGrainKind(),         MakeGaussianBlurKind(),
        MakeSharpenKind(),     MakeClarityKind(),
    };
    return kinds;
}

void RegisterEffects()
{
    for (const EffectKind& kind : EffectKinds::GetAll())
        Zorvik::Quindle::EffectRegistry::Register(kind.descriptor);
}

} // namespace LumetraHost
