// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/run/PlanarFrame.h"
#include "engine/stages/StageChain.h"

namespace LumetraHost {

/// A chain of stages in two parts, and the frame that keeps the picture between them, so that a
/// later run can begin there. Refers to the frame, which its owner keeps.
struct CutChain
{
    StageChain before;        ///< from the source's pixels, or from the frame, to the cut
    StageChain after;         ///< from the cut to the result
    PlanarFrame* frame;       ///< has the size of the picture
    bool isFromFrame = false; ///< `before` begins with the frame's values, not with pixels
    bool isToFrame = false;   ///< the values at the cut replace those in the frame
};

} // namespace LumetraHost
