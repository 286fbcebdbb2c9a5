// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/EffectsSettingsPackage.h"
#include "Zorvik/Quindle/IEffectSettings.h"

namespace Zorvik::Quindle {

/// Holds a list of effects with the package that it is drawn into and its blend with the source.
/// Copying clones the effects, so that neither list follows the other; moving takes them.
class ZORVIKPLATFORM_EXPORT EffectsSettings
{
public:
    static constexpr unsigned PhotoAlone = 1; ///< input count
    static constexpr int FullEffect = 1;      ///< blend amount
    static constexpr int NoEffect = 255;      ///< blend amount

    /// Starts without effects, package and waiting, at blend amount 1. This system uses no
    /// other `inputCount` than PhotoAlone.
    explicit EffectsSettings(unsigned inputCount);
    EffectsSettings(const EffectsSettings& other);
    EffectsSettings(EffectsSettings&& other) noexcept;
    EffectsSettings& operator=(const EffectsSettings& other);
    EffectsSettings& operator=(EffectsSettings&& other) noexcept;
    ~EffectsSettings();

    /// Gives access to the effects in the order in which they are drawn. An effect that is appended
    /// here is shared with its other holders, not cloned.
    EffectList& Effects();
    const EffectList& Effects() const;

    /// Returns a new list of the same effect objects, which shows later changes of their values.
    ConstEffectList EffectsConst() const;
    /// Replaces the effects by the given objects, which are shared and not cloned. Their constness
    /// is cast away, so that sliders can write into them; nulls are dropped.
    void SetEffectsConst(const ConstEffectList& effects);

    /// Gives access to the package that the effects are drawn into.
    EffectsSettingsPackage& Package();
    const EffectsSettingsPackage& Package() const;

    /// The blend amount b goes from 1 to 255: the source weighs (b - 1) / 254, so 1 is the full
    /// effect and 255 is the source. It is stored unclamped; whoever draws clamps it.
    int GetBlendAmount() const;
    void SetBlendAmount(int amount);

    /// True asks IQuindleDrawer::ApplyEffect() to return after rendering. It starts as false.
    bool GetWaitApply() const;
    void SetWaitApply(bool wait);

    /// Returns the number that the constructor was given.
    unsigned GetInputCount() const;

private:
    unsigned m_inputCount;
    EffectList m_effects;
    EffectsSettingsPackage m_package;
    int m_blendAmount = FullEffect;
    bool m_waitApply = false;
};

} // namespace Zorvik::Quindle
