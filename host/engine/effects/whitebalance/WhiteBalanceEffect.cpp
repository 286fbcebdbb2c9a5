// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/whitebalance/WhiteBalanceEffect.h"

#include "engine/effects/whitebalance/WhiteBalanceParameters.h"
#include "engine/stages/MatrixStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateWhiteBalanceStage(const Zorvik::Quindle::IEffectSettings& settings,
                                 const StageContext& context)
{
    const auto parameters = WhiteBalanceParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<MatrixStage>(parameters.GetMatrix(), ColourSpace::Linear, context.isa);
}

} // namespace

EffectKind MakeWhiteBalanceKind()
{
    return {{WhiteBalanceParameters::EffectId, WhiteBalanceParameters::Describe(), {}},
            CreateWhiteBalanceStage};
}

} // namespace LumetraHost
