// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/channelmixer/ChannelMixerEffect.h"

#include "engine/effects/MakeKind.h"

namespace LumetraHost {

EffectKind MakeChannelMixerKind()
{
    return MakeMatrixKind<ChannelMixerParameters, ColourSpace::Linear>(
        QT_TRANSLATE_NOOP("Effects", "Channel mixer"));
}

} // namespace LumetraHost
