// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/blackandwhite/BlackAndWhiteEffect.h"

namespace LumetraHost {

ColourMatrix BlackAndWhiteParameters::GetMatrix() const
{
    const double grey = amount / 100;
    const double r = grey * red;
    const double g = grey * green;
    const double b = grey * blue;
    const double kept = 1 - grey;
    return {{{{r + kept, g, b}, {r, g + kept, b}, {r, g, b + kept}}}};
}

} // namespace LumetraHost
