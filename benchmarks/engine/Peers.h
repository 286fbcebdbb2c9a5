// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraBench {

/// Registers colour operations on 8 and 16 bits, bands of rows on the threads of our pool.
void RegisterOpenColorIo();
/// Registers tables, matrices and blends on 8 and 16 bits, bands of rows; a blur on threads of its
/// own.
void RegisterOpenCv();
/// Registers pipelines in float between pictures of 8 bits.
void RegisterVips();
/// Registers graphs in float between pictures of 8 bits.
void RegisterGegl();

} // namespace LumetraBench
