// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/toneregions/ToneRegionsEffect.h"

#include "engine/effects/toneregions/ToneRegionsKernel.h"
#include "engine/effects/toneregions/ToneRegionsParameters.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/NumbersStage.h"

namespace LumetraHost {
namespace {

ToneRegionsNumbers GetNumbers(const MonotoneCurve& curve)
{
    const auto& pieces = curve.GetPieces();
    ToneRegionsNumbers numbers;
    numbers.base = static_cast<float>(pieces.front().start.y - pieces.front().start.x);
    for (std::size_t i = 0; i < ToneRegionsNumbers::Pieces; ++i) {
        numbers.start[i] = static_cast<float>(pieces[i].start.x);
        numbers.width[i] = static_cast<float>(pieces[i].width);
        numbers.linear[i] = static_cast<float>(pieces[i].linear - 1);
        numbers.square[i] = static_cast<float>(pieces[i].square);
        numbers.cube[i] = static_cast<float>(pieces[i].cube);
    }
    return numbers;
}

StagePtr CreateToneRegionsStage(const Zorvik::Quindle::IEffectSettings& settings,
                                const StageContext& context)
{
    const auto parameters = ToneRegionsParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<NumbersStage<ToneRegionsNumbers>>(
        ColourSpace::Linear, GetNumbers(parameters.GetCurve()),
        SelectKernel<ToneRegionsKernel>(context.isa));
}

} // namespace

EffectKind MakeToneRegionsKind()
{
    return {{ToneRegionsParameters::EffectId, ToneRegionsParameters::Describe(), {}},
            CreateToneRegionsStage};
}

} // namespace LumetraHost
