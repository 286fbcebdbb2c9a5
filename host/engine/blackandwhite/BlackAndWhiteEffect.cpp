// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/blackandwhite/BlackAndWhiteEffect.h"

#include "engine/blackandwhite/BlackAndWhiteParameters.h"
#include "engine/matrix/MatrixStage.h"

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
