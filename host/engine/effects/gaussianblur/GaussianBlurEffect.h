// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Gaussian blur: every pixel becomes the average of the linear light around it, weighted by
/// exp(-r^2 / (2 radius^2)); the radius is the standard deviation. See GaussianAxis for how close
/// wide ones come to the formula. Colours count whatever their alpha.
/// Source: Gonzalez, Woods, Digital Image Processing, section on Gaussian lowpass filters.
struct GaussianBlurParameters
{
    static constexpr char EffectId[] = "gaussianBlur";

    double radius = 0;

    static constexpr ParameterRow<GaussianBlurParameters> Table[] = {
        {"radius", &GaussianBlurParameters::radius, 0, 5, Units::PercentOfDiagonal}};

    bool IsIdentity() const { return radius == 0; }
};

EffectKind MakeGaussianBlurKind();

} // namespace LumetraHost
