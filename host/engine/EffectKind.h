// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Stage.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <functional>

namespace LumetraHost {

/// One kind of effect as the engine knows it: how it is described to the platform, and how
/// settings become a stage. Every effect's defaults change nothing.
struct EffectKind
{
    Zorvik::Quindle::EffectDescriptor descriptor;
    /// Null when the settings change nothing. Parameters out of range are clamped; those that the
    /// settings do not have, and NaN, count as the default.
    std::function<StagePtr(const Zorvik::Quindle::IEffectSettings&, const StageContext&)>
        createStage;
};

} // namespace LumetraHost
