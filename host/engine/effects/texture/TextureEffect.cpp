// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/texture/TextureEffect.h"

#include "engine/effects/localcontrast/LocalContrastKernels.h"
#include "engine/effects/localcontrast/LocalContrastKind.h"

namespace LumetraHost {

EffectKind MakeTextureKind()
{
    return MakeLocalContrastKind<TextureParameters, TextureKernel>(
        QT_TRANSLATE_NOOP("Effects", "Texture"));
}

} // namespace LumetraHost
