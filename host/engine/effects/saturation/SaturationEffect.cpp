// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/saturation/SaturationEffect.h"

#include "image/Srgb.h"

namespace LumetraHost {

ColourMatrix SaturationParameters::GetMatrix() const
{
    const double s = 1 + amount / 100;
    const double red = (1 - s) * LumaRed;
    const double green = (1 - s) * LumaGreen;
    const double blue = (1 - s) * LumaBlue;
    return {{{{red + s, green, blue}, {red, green + s, blue}, {red, green, blue + s}}}};
}

} // namespace LumetraHost
