// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"
#include "photo/metadata/EditRecord.h"
#include "presets/PresetRows.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace LumetraPlugin {
class PresetSession;
}

namespace Zorvik::Lumetra::LumetraPresets {
class EffectPresetModel;
}

namespace LumetraCli {

/// A preset with the intensity and the slider values that the user asked for.
class PresetUse
{
public:
    /// `intensity` empty: the preset's own. `settings`: texts "slider=value". Exception for a
    /// preset that has no effects to draw. UsageError for an intensity out of the preset's range,
    /// an unknown slider and a value out of its range.
    PresetUse(const PresetRow& preset, const QString& intensity, const QStringList& settings);

    const PresetRow& GetPreset() const { return m_preset; }
    /// The intensity that the photos get; nothing for a preset without one.
    std::optional<int> GetIntensity() const;

    /// The packages that the preset puts on any photo, made as a user of the panel would: switch
    /// the preset on, move its sliders and its intensity, commit.
    std::vector<Zorvik::Quindle::EffectsSettings>
    MakePackages(LumetraPlugin::PresetSession& session) const;

    /// The records of these packages for an exported photo, equal to those of the editor.
    std::vector<LumetraHost::EditRecord>
    MakeRecords(const std::vector<Zorvik::Quindle::EffectsSettings>& packages) const;

    /// The effects and the blend amount of the preset with these values.
    Zorvik::Quindle::EffectsSettings GetLook(LumetraPlugin::PresetSession& session) const;

    /// Adds a user preset with these values to the session's model.
    void SaveAs(LumetraPlugin::PresetSession& session, const QString& name) const;

private:
    void Tune(Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model) const;
    void SetIntensity(const QString& text);
    void SetSlider(const QString& setting);

    PresetRow m_preset;
    std::optional<int> m_intensity;
};

} // namespace LumetraCli
