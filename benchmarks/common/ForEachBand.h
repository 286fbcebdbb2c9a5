// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

namespace LumetraBench {

/// Runs bands of rows of a picture of that height on threads of the engine's pool, for peers that
/// leave threads to their caller.
void ForEachBand(int height, int threads, const std::function<void(int firstRow, int rows)>& run);

} // namespace LumetraBench
