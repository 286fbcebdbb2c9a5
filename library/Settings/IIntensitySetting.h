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

/// What one intensity value of a preset does to its effects. Owned by its preset through
/// `std::unique_ptr`, copied with Clone(). No kind clamps its value to Min()..Max(): callers keep
/// it in range.
class LUMETRAPRESETSUTIL_EXPORT IIntensitySetting : public virtual Brassel::ISerializable
{
public:
    /// A deep copy of the same dynamic type.
    virtual std::unique_ptr<IIntensitySetting> Clone() const = 0;
    virtual IntensitySettingType GetType() const = 0;
    virtual int Min() const = 0;
    virtual int Max() const = 0;
    virtual int Value() const = 0;
    virtual void SetValue(int value) = 0;
    /// Takes the intensity from a set of effects; the inverse of SaveValue().
    virtual void LoadValue(const Quindle::EffectsSettings& package) = 0;
    /// Writes the intensity into a set of effects.
    virtual void SaveValue(Quindle::EffectsSettings& package) const = 0;

    IIntensitySetting();
    IIntensitySetting(const IIntensitySetting& other);
    IIntensitySetting& operator=(const IIntensitySetting& other);
    ~IIntensitySetting() override;
};

} // namespace Zorvik::Lumetra::LumetraPresets
