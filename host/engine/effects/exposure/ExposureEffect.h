// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"
#include "engine/base/ParameterTable.h"

namespace LumetraHost {

/// Exposure: linear light times 2^stops, as one more or less stop of the camera would have done.
/// Source: the exposure values of the APEX system; the same as OpenColorIO's ExposureContrast
/// operation in linear style.
struct ExposureParameters
{
    static constexpr char EffectId[] = "exposure";

    double stops = 0;

    static constexpr ParameterRow<ExposureParameters> Table[] = {
        {"stops", &ExposureParameters::stops, -5, 5, Units::Stops}};

    bool IsIdentity() const { return stops == 0; }
    ColourMatrix GetMatrix() const;
};

} // namespace LumetraHost
