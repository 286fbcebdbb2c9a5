// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

namespace LumetraBench {

/// For peers that leave threads to their caller: bands of rows of a picture of that height, on
/// threads of the engine's pool.
void ForEachBand(int height, int threads, const std::function<void(int firstRow, int rows)>& run);

} // namespace LumetraBench
