// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Gaussian blur: every pixel becomes the average of the linear light around it, weighted by
/// exp(-r^2 / (2 radius^2)); the radius is the standard deviation. See GaussianAxis for how close
/// wide ones come to the formula. Colours count whatever their alpha.
/// Source: Gonzalez, Woods, Digital Image Processing, section on Gaussian lowpass filters.
struct GaussianBlurParameters
{
    static constexpr char EffectId[] = "gaussianBlur";

    double radius = 0; ///< 0 to 5 per cent of the picture's diagonal

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static GaussianBlurParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return radius == 0; }
};

/// Equal when both draw the same.
bool operator==(const GaussianBlurParameters& first, const GaussianBlurParameters& second);

} // namespace LumetraHost
