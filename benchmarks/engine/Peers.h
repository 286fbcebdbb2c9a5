// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"

#include <functional>

namespace LumetraBench {

/// Colour operations on 8 and 16 bits, bands of rows on the threads of our pool.
void RegisterOpenColorIo();
/// Tables, matrices and blends on 8 and 16 bits, bands of rows; a blur on threads of its own.
void RegisterOpenCv();
/// Pipelines in float between pictures of 8 bits.
void RegisterVips();
/// Graphs in float between pictures of 8 bits.
void RegisterGegl();

/// For peers that leave threads to their caller: bands of rows of a picture of that height.
void ForEachBand(int height, int threads, const std::function<void(int firstRow, int rows)>& run);

} // namespace LumetraBench
