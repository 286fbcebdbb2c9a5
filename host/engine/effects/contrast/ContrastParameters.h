// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Contrast: in linear light every channel's distance to middle grey (18 %), counted in stops, is
/// multiplied: c = 0.18 * (c / 0.18)^exponent with exponent = 2^(amount / 100). Middle grey and
/// black stay; values below zero are mirrored, so that nothing is clamped.
/// Source: the linear style of OpenColorIO's ExposureContrast operation.
struct ContrastParameters
{
    static constexpr char EffectId[] = "contrast";

    double amount = 0; ///< -100 (half the contrast) to 100 (twice), per cent

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static ContrastParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return amount == 0; }
    double GetExponent() const;
};

bool operator==(const ContrastParameters& first, const ContrastParameters& second);

} // namespace LumetraHost
