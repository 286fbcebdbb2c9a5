// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/SpatialPass.h"
#include "image/PictureArea.h"

namespace LumetraHost {

/// A Gaussian whose standard deviation is a share, in per cent, of the whole picture's diagonal,
/// converted to rendered pixels: a preview then shows the blur that the full picture gets.
GaussianShape MakeRelativeShape(double percentOfDiagonal, const PictureArea& area);

} // namespace LumetraHost
