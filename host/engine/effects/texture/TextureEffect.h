// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Texture: contrast of fine detail, such as skin, leaves and stone, that leaves edges alone. With
/// Y the luma of the sRGB-encoded channels (Rec. 709 weights), B = Gaussian(Y) and d = Y - B, every
/// encoded channel changes by amount / 100 * w * d / (1 + (d / 0.1)^2). Detail of a few steps is
/// reached in full, differences beyond a tenth of the range less the larger they are: hard edges
/// get no haloes, and are not softened by negative amounts, which smooth what lies between them.
/// w = 1 - (2 B - 1)^4, B clamped to 0..1, leaves black and white and the noise of the darkest
/// tones alone. In the same surroundings brighter stays brighter, whatever the amount. The radius
/// is the standard deviation; outside of the picture its mirror image counts.
/// Sources: the unsharp mask, R. C. Gonzalez and R. E. Woods, Digital Image Processing; a
/// difference that counts the less the larger it is, P. Perona and J. Malik, "Scale-Space and Edge
/// Detection Using Anisotropic Diffusion", IEEE PAMI 12 (1990); the weights are ours.
struct TextureParameters
{
    static constexpr char EffectId[] = "texture";

    double amount = 0;
    double radius = 0.08;

    static constexpr ParameterRow<TextureParameters> Table[] = {
        {"amount", &TextureParameters::amount, -100, 100, "%"},
        {"radius", &TextureParameters::radius, 0.02, 0.3, Units::PercentOfDiagonal}};

    bool IsIdentity() const { return amount == 0; }
};

EffectKind MakeTextureKind();

} // namespace LumetraHost
