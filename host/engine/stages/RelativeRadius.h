// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/SpatialPass.h"
#include "image/PictureArea.h"

namespace LumetraHost {

/// The Gaussian whose standard deviation is this many per cent of the whole picture's diagonal, in
/// pixels of the rendered part at its scale: a preview then shows what the full picture gets.
GaussianShape MakeRelativeShape(double percentOfDiagonal, const PictureArea& area);

} // namespace LumetraHost
