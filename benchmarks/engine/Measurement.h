// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Drawing.h"

#include <functional>
#include <string>

namespace LumetraBench {

/// Registers a copy of the photo, the reference of all other figures.
void RegisterCopy(LumetraHost::Image::Depth depth);

/// Registers a task drawn by our engine.
void RegisterOurs(const Task& task, LumetraHost::Isa isa);

/// Registers our engine with the default instruction set beside each set that this processor has,
/// in turn: "times_NAME" is how many times as long the default takes, "times_best" beside the
/// quickest.
void RegisterDefault(const Task& task);

/// Registers a task drawn by a peer, in turn with our engine's best instruction set. `prepare` is
/// not measured. `remark`: how its picture differs from ours, or empty.
void RegisterPeer(const std::string& peer, const Task& task, const std::string& remark,
                  std::function<Drawing(const Task&)> prepare);

} // namespace LumetraBench
