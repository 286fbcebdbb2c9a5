// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/Lut3dEffect.h"

#include "engine/effects/EffectKind.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "engine/effects/lut3d/Lut3dStage.h"

namespace LumetraHost {
namespace {

// An effect with this id that was made before the engine was registered has no tables.
StagePtr CreateStage(const Zorvik::Quindle::IEffectSettings& settings, const StageContext& context)
{
    const double strength = ReadParameters<Lut3dParameters>(settings).strength;
    const auto* const tables = dynamic_cast<const Lut3dSettings*>(&settings);
    if (strength == 0 || !tables || !tables->HasTables())
        return nullptr;
    return std::make_shared<Lut3dStage>(tables->GetCurve(), tables->GetCube(), strength / 100,
                                        context.isa);
}

Zorvik::Quindle::EffectPtr CreateSettings()
{
    return Lut3dSettings::Create();
}

} // namespace

EffectKind MakeLut3dKind()
{
    return {{Lut3dParameters::EffectId, DescribeParameters<Lut3dParameters>(), CreateSettings},
            QT_TRANSLATE_NOOP("Effects", "Colour table"),
            CreateStage};
}

} // namespace LumetraHost
