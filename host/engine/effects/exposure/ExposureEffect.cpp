// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/exposure/ExposureEffect.h"

#include <cmath>

namespace LumetraHost {

ColourMatrix ExposureParameters::GetMatrix() const
{
    const double factor = std::exp2(stops);
    return ColourMatrix::Diagonal(factor, factor, factor);
}

} // namespace LumetraHost
