// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/tonecurve/ToneCurveEffect.h"

#include "engine/effects/tonecurve/ToneCurveKernel.h"
#include "engine/effects/tonecurve/ToneCurveParameters.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/NumbersStage.h"

namespace LumetraHost {
namespace {

static_assert(ToneCurveNumbers::MostPieces == ToneCurveParameters::MostPoints - 1);

ToneCurveNumbers GetNumbers(const ToneCurveParameters::Points& points)
{
    ToneCurveNumbers numbers;
    if (ToneCurveParameters::IsIdentity(points))
        return numbers;
    const auto curve = MonotoneCurve::Make(points);
    numbers.start = static_cast<float>(points.front().y);
    numbers.first = static_cast<float>(points.front().x);
    numbers.last = static_cast<float>(points.back().x);
    numbers.before = static_cast<float>(curve.GetSlopeBefore());
    numbers.after = static_cast<float>(curve.GetSlopeAfter());
    for (const MonotoneCurve::Piece& piece : curve.GetPieces()) {
        const int i = numbers.pieces++;
        numbers.begin[i] = static_cast<float>(piece.start.x);
        numbers.width[i] = static_cast<float>(piece.width);
        numbers.linear[i] = static_cast<float>(piece.linear);
        numbers.square[i] = static_cast<float>(piece.square);
        numbers.cube[i] = static_cast<float>(piece.cube);
    }
    return numbers;
}

StagePtr CreateToneCurveStage(const Zorvik::Quindle::IEffectSettings& settings,
                              const StageContext& context)
{
    const auto parameters = ToneCurveParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    ToneCurvesNumbers numbers;
    numbers.master = GetNumbers(parameters.master);
    for (std::size_t i = 0; i < 3; ++i)
        numbers.channels[i] = GetNumbers(parameters.channels[i]);
    return std::make_shared<NumbersStage<ToneCurvesNumbers>>(
        ColourSpace::Encoded, numbers, SelectKernel<ToneCurveKernel>(context.isa),
        ChannelWork::Heavy);
}

} // namespace

EffectKind MakeToneCurveKind()
{
    return {{ToneCurveParameters::EffectId, ToneCurveParameters::Describe(), {}},
            CreateToneCurveStage};
}

} // namespace LumetraHost
