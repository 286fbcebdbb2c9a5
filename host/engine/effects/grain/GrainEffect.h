// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Film grain: noise that is the same for red, green and blue is added to encoded values,
/// c = c + amount / 1000 * 2 sqrt(Y (1 - Y)) * n, with the luma Y of Rec. 709 limited to 0..1 and n
/// of mean 0 and standard deviation 1. So amount 100 gives middle tones a deviation of 0.1 and
/// leaves black and white clean. n mixes two layers of lattice noise (random values at the corners
/// of square cells, between them Hermite's 3t^2 - 2t^3): one with cells of `size`, one with cells
/// of half of it, the second weighing `roughness`. Both lattices are turned against the picture, so
/// that no rows show.
///
/// The noise depends on the position in the whole picture alone, and cells are measured by the
/// picture's diagonal: parts, tiles and previews at any scale show the same grain. A layer whose
/// cells are smaller than a rendered pixel is weakened as the mean of the cells in that pixel is.
///
/// Sources: the deviation sqrt(u (1 - u)) of a grain model's coverage, A. Newson, J. Delon, B.
/// Galerne, "A Stochastic Film Grain Model for Resolution-Independent Rendering", Computer Graphics
/// Forum 36 (2017); lattice noise, Ebert et al., Texturing and Modeling; the hash, lowbias32 of C.
/// Wellons, "Prospecting for Hash Functions" (2018).
struct GrainParameters
{
    static constexpr char EffectId[] = "grain";

    double amount = 0;
    double size = 0.6;     ///< of a cell, in thousandths of the picture's diagonal
    double roughness = 50; ///< 0 is soft, 100 fine and sharp
    double seed = 0;       ///< another whole number gives another grain

    static constexpr ParameterRow<GrainParameters> Table[] = {
        {"amount", &GrainParameters::amount, 0, 100, "%"},
        {"size", &GrainParameters::size, 0.2, 5, "‰"},
        {"roughness", &GrainParameters::roughness, 0, 100, "%"},
        {"seed", &GrainParameters::seed, 0, 65535}};

    bool IsIdentity() const { return amount == 0; }
};

EffectKind MakeGrainKind();

} // namespace LumetraHost
