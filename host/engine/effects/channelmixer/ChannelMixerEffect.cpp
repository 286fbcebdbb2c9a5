// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/channelmixer/ChannelMixerEffect.h"

#include "engine/effects/MakeKind.h"

namespace LumetraHost {

EffectKind MakeChannelMixerKind()
{
    return MakeMatrixKind<ChannelMixerParameters>(QT_TRANSLATE_NOOP("Effects", "Channel mixer"),
                                                  ColourSpace::Linear);
}

} // namespace LumetraHost
