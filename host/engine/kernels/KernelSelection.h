// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"

namespace LumetraHost {

/// The kernel of one instruction set. `Kernel` is a class template with a static `Run`; its source
/// is compiled once per instruction set and instantiates itself for that one. Only loops that are
/// quickest with the widest set are kernels; looking up tables is not (see TableLoad.h).
template <template <Isa> class Kernel>
auto SelectKernel(Isa isa) -> decltype(&Kernel<Isa::Baseline>::Run)
{
#ifdef LUMETRA_X86_KERNELS
    if (isa == Isa::V4)
        return &Kernel<Isa::V4>::Run;
    if (isa == Isa::V3)
        return &Kernel<Isa::V3>::Run;
#endif
    static_cast<void>(isa);
    return &Kernel<Isa::Baseline>::Run;
}

} // namespace LumetraHost
