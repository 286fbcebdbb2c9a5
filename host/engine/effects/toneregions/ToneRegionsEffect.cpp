// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/toneregions/ToneRegionsEffect.h"

#include "engine/base/MonotoneCurve.h"
#include "engine/effects/MakeKind.h"
#include "engine/effects/toneregions/ToneRegionsKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"
#include "image/Srgb.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace LumetraHost {
namespace {

// Neighbouring regions keep at least this part of their distance.
constexpr double LeastSlope = 0.05;
constexpr std::size_t Midtones = 2;

/// The curve maps stops below white to stops below white.
MonotoneCurve GetCurve(const ToneRegionsParameters& regions)
{
    const double middle = std::log2(MiddleGrey);
    std::vector<CurvePoint> points = {{-8, -8 + 2 * regions.blacks / 100},
                                      {-5, -5 + 1.5 * regions.shadows / 100},
                                      {middle, middle + regions.midtones / 100},
                                      {-1, -1 + 0.75 * regions.highlights / 100},
                                      {0, 0.75 * regions.whites / 100}};
    const auto least = [&points](std::size_t i) {
        return LeastSlope * (points[i + 1].x - points[i].x);
    };
    for (std::size_t i = Midtones; i + 1 < points.size(); ++i)
        points[i + 1].y = std::max(points[i + 1].y, points[i].y + least(i));
    for (std::size_t i = Midtones; i > 0; --i)
        points[i - 1].y = std::min(points[i - 1].y, points[i].y - least(i - 1));
    return MonotoneCurve::Make(points, 1);
}

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

StagePtr CreateStage(const ToneRegionsParameters& parameters, const StageContext& context)
{
    return MakeKernelStage(SelectKernel<ToneRegionsKernel>(context.isa), ColourSpace::Linear,
                           ChannelWork::Mixed, GetNumbers(GetCurve(parameters)));
}

} // namespace

bool ToneRegionsParameters::IsIdentity() const
{
    return blacks == 0 && shadows == 0 && midtones == 0 && highlights == 0 && whites == 0;
}

EffectKind MakeToneRegionsKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Tones"), CreateStage);
}

} // namespace LumetraHost
