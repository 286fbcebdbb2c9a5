// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/blackandwhite/BlackAndWhiteEffect.h"

#include "engine/effects/blackandwhite/BlackAndWhiteParameters.h"
#include "engine/stages/MatrixStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateBlackAndWhiteStage(const Zorvik::Quindle::IEffectSettings& settings,
                                  const StageContext& context)
{
    const auto parameters = BlackAndWhiteParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<MatrixStage>(parameters.GetMatrix(), ColourSpace::Linear, context.isa);
}

} // namespace

EffectKind MakeBlackAndWhiteKind()
{
    return {{BlackAndWhiteParameters::EffectId, BlackAndWhiteParameters::Describe(), {}},
            CreateBlackAndWhiteStage};
}

} // namespace LumetraHost
