// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/EffectsSettingsPackage.h"
#include "Zorvik/Quindle/IEffectSettings.h"

namespace Zorvik::Quindle {

/// A list of effects with the package it is drawn into and its blend with the source.
/// Copying clones the effects, moving takes them.
class ZORVIKPLATFORM_EXPORT EffectsSettings
{
public:
    /// `inputCount` 1: the photo is the only input.
    explicit EffectsSettings(unsigned inputCount);
    EffectsSettings(const EffectsSettings& other);
    EffectsSettings(EffectsSettings&& other) noexcept;
    EffectsSettings& operator=(const EffectsSettings& other);
    EffectsSettings& operator=(EffectsSettings&& other) noexcept;
    ~EffectsSettings();

    EffectList& Effects();
    const EffectList& Effects() const;

    ConstEffectList EffectsConst() const;
    /// Shares the given effects, constness cast away; nulls are dropped.
    void SetEffectsConst(const ConstEffectList& effects);

    EffectsSettingsPackage& Package();
    const EffectsSettingsPackage& Package() const;

    /// Blend amount b, 1 to 255: the source weighs (b - 1) / 254, so 1 is the full effect and 255
    /// the source. Stored unclamped.
    int GetBlendAmount() const;
    void SetBlendAmount(int amount);

    /// True: applying returns after rendering.
    bool GetWaitApply() const;
    void SetWaitApply(bool wait);

    unsigned GetInputCount() const;

private:
    unsigned m_inputCount;
    EffectList m_effects;
    EffectsSettingsPackage m_package;
    int m_blendAmount = 1;
    bool m_waitApply = false;
};

} // namespace Zorvik::Quindle
