// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/lut3d/LookUpTable.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

namespace LumetraHost {

/// The settings of the effect "lut3d": the number "strength" and, in the stored form beside it, the
/// nodes "curve" and "cube" (see LookUpTableText), both optional. What else the stored form has is
/// kept. The tables are immutable and shared by all clones.
class Lut3dSettings : public Zorvik::Quindle::EffectSettingsImpl
{
public:
    static constexpr char KeyCurve[] = "curve";
    static constexpr char KeyCube[] = "cube";

    /// Without tables. The effect must be registered.
    static Zorvik::Quindle::EffectPtr Create();
    /// With these tables, null for none, as they come back from their stored form.
    static Zorvik::Quindle::EffectPtr Create(const LookUpTable* curve, const LookUpTable* cube);

    /// Null when there is none.
    const LookUpTablePtr& GetCurve() const { return m_curve; }
    const LookUpTablePtr& GetCube() const { return m_cube; }

    Zorvik::Quindle::EffectPtr Clone() const override;
    /// Zorvik::Exception for a table that cannot be read; nothing is changed then.
    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node) override;

private:
    Lut3dSettings();
    Lut3dSettings(const Lut3dSettings& other) = default;

    LookUpTablePtr m_curve;
    LookUpTablePtr m_cube;
};

} // namespace LumetraHost
