// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Drawing.h"

#include <functional>
#include <string>

namespace LumetraBench {

/// Registers a copy of the photo, which all others are measured beside.
void RegisterCopy(LumetraHost::Image::Depth depth);

/// Registers what our engine does.
void RegisterOurs(const Task& task, LumetraHost::Isa isa);

/// Registers what a peer does, with our engine's best instruction set in turn with it. `prepare` is
/// not measured. `remark`: how its picture differs from ours, or empty.
void RegisterPeer(const std::string& peer, const Task& task, const std::string& remark,
                  std::function<Drawing(const Task&)> prepare);

} // namespace LumetraBench
