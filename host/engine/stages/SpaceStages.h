// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

#include "image/RgbSpace.h"

#include <memory>
#include <vector>

namespace LumetraHost {

/// The stages that take pixels of a space to the colours that effects work on: those of sRGB,
/// not limited, so that colours outside of sRGB have values below 0 and above 1.
std::vector<StagePtr> MakeStagesFromSpace(const std::shared_ptr<const RgbSpace>& space, Isa isa);

/// The stages that take such colours back to pixels of the space.
std::vector<StagePtr> MakeStagesToSpace(const std::shared_ptr<const RgbSpace>& space, Isa isa);

} // namespace LumetraHost
