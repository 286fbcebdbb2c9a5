// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"
#include "Settings/IntensitySettingType.h"
#include "Zorvik/Brassel/ISerializable.h"

#include <memory>

namespace Zorvik::Quindle {
class EffectsSettings;
}

namespace Zorvik::Lumetra::LumetraPresets {

/// Maps the one intensity value of a preset onto its effects. A setting is owned by its preset
/// through `std::unique_ptr` and copied with Clone(). No kind clamps its value to Min()..Max(), so
/// callers keep it in range.
class LUMETRAPRESETSUTIL_EXPORT IIntensitySetting : public virtual Brassel::ISerializable
{
public:
    /// Makes a deep copy of the same dynamic type, never null.
    virtual std::unique_ptr<IIntensitySetting> Clone() const = 0;
    /// Returns the kind of the setting, which tells its class and never changes.
    virtual IntensitySettingType GetType() const = 0;
    /// These two are the ends of the intensity slider, both included. A stored form may hold a
    /// minimum above the maximum.
    virtual int Min() const = 0;
    virtual int Max() const = 0;
    /// The value is the slider's position. It is stored unclamped and touches no effect before
    /// SaveValue().
    virtual int Value() const = 0;
    virtual void SetValue(int value) = 0;
    /// Takes the value from a set of effects, as the inverse of SaveValue(). A strict slider throws
    /// std::invalid_argument, with the value unchanged, when `package` lacks its effect.
    virtual void LoadValue(const Quindle::EffectsSettings& package) = 0;
    /// Writes the value into a set of effects. A strict slider throws std::invalid_argument when
    /// `package` lacks one of its effects; those before it have then been written.
    virtual void SaveValue(Quindle::EffectsSettings& package) const = 0;

    IIntensitySetting();
    IIntensitySetting(const IIntensitySetting& other);
    IIntensitySetting& operator=(const IIntensitySetting& other);
    ~IIntensitySetting() override;
};

} // namespace Zorvik::Lumetra::LumetraPresets
