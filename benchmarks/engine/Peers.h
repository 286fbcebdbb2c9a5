// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraBench {

/// Colour operations on 8 and 16 bits, bands of rows on the threads of our pool.
void RegisterOpenColorIo();
/// Tables, matrices and blends on 8 and 16 bits, bands of rows; a blur on threads of its own.
void RegisterOpenCv();
/// Pipelines in float between pictures of 8 bits.
void RegisterVips();
/// Graphs in float between pictures of 8 bits.
void RegisterGegl();

} // namespace LumetraBench
