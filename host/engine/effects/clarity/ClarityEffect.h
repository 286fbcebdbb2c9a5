// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Clarity: local contrast of the mid-tones, an unsharp mask of large radius and small amount. With
/// Y the luma of the sRGB-encoded channels (Rec. 709 weights), B = Gaussian(Y) and d = Y - B, every
/// encoded channel changes by amount / 100 * w * d / (1 + 2 |d|). w = 4 B (1 - B), B clamped to
/// 0..1, leaves shadows and highlights alone; the last factor keeps hard edges from haloes.
/// Negative amounts soften. The radius is the standard deviation; outside of the picture its mirror
/// image counts.
/// Source: local contrast enhancement by unsharp masking, as in Cambridge in Colour's tutorial of
/// that name; the weights are ours.
struct ClarityParameters
{
    static constexpr char EffectId[] = "clarity";

    double amount = 0;
    double radius = 1;

    static constexpr ParameterRow<ClarityParameters> Table[] = {
        {"amount", &ClarityParameters::amount, -100, 100, "%"},
        {"radius", &ClarityParameters::radius, 0.2, 3, Units::PercentOfDiagonal}};

    bool IsIdentity() const { return amount == 0; }
};

EffectKind MakeClarityKind();

} // namespace LumetraHost
