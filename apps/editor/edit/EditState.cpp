// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/EditState.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "edit/EditStateFormat.h"

#include <cmath>

namespace LumetraEditor {
namespace {

using Zorvik::Quindle::EffectsSettings;

// Members of a panel's edit that have a meaning to the editor, see IEditorPanel::SaveEdit().
const QString PresetKey = QString::fromLatin1(IEditorPanel::EditPreset);
const QString NameKey = QString::fromLatin1(IEditorPanel::EditName);
const QString IntensityKey = QString::fromLatin1(IEditorPanel::EditIntensity);

/// How much of the full effect a blend amount leaves.
int PercentOf(int blendAmount)
{
    constexpr double Range = EffectsSettings::NoEffect - EffectsSettings::FullEffect;
    return static_cast<int>(std::lround(100 * (EffectsSettings::NoEffect - blendAmount) / Range));
}

} // namespace

LumetraHost::EditRecord EditState::MakeRecord(const EffectsSettings& package) const
{
    const std::string& preset = package.Package().GetPresetName();
    const int share = PercentOf(package.GetBlendAmount());
    for (const auto& [id, part] : panels) {
        const QJsonObject& edit = part.GetObject();
        if (!preset.empty() && edit.value(PresetKey).toString().toStdString() == preset)
            return {edit.value(NameKey).toString(QString::fromStdString(preset)).toStdString(),
                    edit.value(IntensityKey).toInt(share)};
    }
    return {preset, share};
}

bool HaveSamePackages(const std::vector<EffectsSettings>& first,
                      const std::vector<EffectsSettings>& second)
{
    return first.size() == second.size() &&
           EditStateFormat::PackagesText(first) == EditStateFormat::PackagesText(second);
}

bool operator==(const EditState& first, const EditState& second)
{
    return first.panels == second.panels && HaveSamePackages(first.committed, second.committed);
}

} // namespace LumetraEditor
