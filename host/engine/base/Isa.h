// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

namespace LumetraHost {

/// Instruction sets that the pixel kernels are compiled for. V3 and V4 are the levels of the
/// x86-64 psABI (AVX2 and AVX-512). Those two use fused multiply-add, which rounds once less: of a
/// million values of 8 bits some ten differ from the baseline's, by one step; of 16 bits a
/// thousand.
enum class Isa
{
    Baseline,
    V3,
    V4
};

/// "baseline", "x86-64-v3" or "x86-64-v4".
const char* GetIsaName(Isa isa);

/// The instruction sets that this build contains and this processor runs, Baseline first.
const std::vector<Isa>& GetSupportedIsas();

/// The set to use when nothing else is asked for: the one that the environment variable
/// LUMETRA_ISA names, else the best supported. A name that is unknown or not supported here is
/// reported by one warning and ignored.
Isa GetDefaultIsa();

/// The best supported set that is not above `wish`.
Isa LimitToSupported(Isa wish);

} // namespace LumetraHost
