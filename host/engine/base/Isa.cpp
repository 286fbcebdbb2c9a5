// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/Isa.h"

#include <QByteArray>
#include <QtGlobal>

namespace LumetraHost {
namespace {

std::vector<Isa> DetectIsas()
{
    std::vector<Isa> isas{Isa::Baseline};
#ifdef LUMETRA_X86_KERNELS
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi2") &&
        __builtin_cpu_supports("fma"))
        isas.push_back(Isa::V3);
    if (isas.back() == Isa::V3 && __builtin_cpu_supports("avx512f") &&
        __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512cd") &&
        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl"))
        isas.push_back(Isa::V4);
#endif
    return isas;
}

Isa ChooseDefaultIsa()
{
    const QByteArray wish = qgetenv("LUMETRA_ISA");
    if (wish.isEmpty())
        return GetSupportedIsas().back();
    for (const Isa isa : GetSupportedIsas())
        if (wish == GetIsaName(isa))
            return isa;
    qWarning("LUMETRA_ISA: \"%s\" is unknown or not supported by this processor; using %s",
             wish.constData(), GetIsaName(GetSupportedIsas().back()));
    return GetSupportedIsas().back();
}

} // namespace

const char* GetIsaName(Isa isa)
{
    switch (isa) {
    case Isa::V4:
        return "x86-64-v4";
    case Isa::V3:
        return "x86-64-v3";
    case Isa::Baseline:
        break;
    }
    return "baseline";
}

const std::vector<Isa>& GetSupportedIsas()
{
    static const std::vector<Isa> isas = DetectIsas();
    return isas;
}

Isa GetDefaultIsa()
{
    static const Isa isa = ChooseDefaultIsa();
    return isa;
}

Isa LimitToSupported(Isa wish)
{
    Isa best = Isa::Baseline;
    for (const Isa isa : GetSupportedIsas())
        if (isa <= wish)
            best = isa;
    return best;
}

} // namespace LumetraHost
