// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/clarity/ClarityEffect.h"

#include "engine/effects/localcontrast/LocalContrastKernels.h"
#include "engine/effects/localcontrast/LocalContrastKind.h"

namespace LumetraHost {

EffectKind MakeClarityKind()
{
    return MakeLocalContrastKind<ClarityParameters, ClarityKernel>(
        QT_TRANSLATE_NOOP("Effects", "Clarity"));
}

} // namespace LumetraHost
