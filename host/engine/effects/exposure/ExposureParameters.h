// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Exposure: linear light times 2^stops, as one more or less stop of the camera would have done.
/// Source: the exposure values of the APEX system; the same as OpenColorIO's ExposureContrast
/// operation in linear style.
struct ExposureParameters
{
    static constexpr char EffectId[] = "exposure";

    double stops = 0; ///< -5 to 5

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static ExposureParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return stops == 0; }
    ColourMatrix GetMatrix() const;
};

bool operator==(const ExposureParameters& first, const ExposureParameters& second);

} // namespace LumetraHost
