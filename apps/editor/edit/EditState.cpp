// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/EditState.h"

#include "edit/EditStateFormat.h"

#include <algorithm>
#include <cmath>

namespace LumetraEditor {
namespace {

// Members of a panel's edit that have a meaning to the editor, see IEditorPanel::SaveEdit().
const QString PresetKey = QStringLiteral("preset");
const QString NameKey = QStringLiteral("name");
const QString IntensityKey = QStringLiteral("intensity");

} // namespace

bool EditState::IsEmpty() const
{
    return committed.empty() && std::all_of(panels.begin(), panels.end(), [](const auto& panel) {
               return panel.second.IsEmpty();
           });
}

LumetraHost::EditRecord EditState::MakeRecord(const Zorvik::Quindle::EffectsSettings& package) const
{
    const std::string& preset = package.Package().GetPresetName();
    // The source weighs (b - 1) / 254.
    const int share = static_cast<int>(std::lround((255 - package.GetBlendAmount()) / 2.54));
    for (const auto& [id, part] : panels) {
        const QJsonObject& edit = part.GetObject();
        if (!preset.empty() && edit.value(PresetKey).toString().toStdString() == preset)
            return {edit.value(NameKey).toString(QString::fromStdString(preset)).toStdString(),
                    edit.value(IntensityKey).toInt(share)};
    }
    return {preset, share};
}

bool HaveSamePackages(const std::vector<Zorvik::Quindle::EffectsSettings>& first,
                      const std::vector<Zorvik::Quindle::EffectsSettings>& second)
{
    return first.size() == second.size() &&
           EditStateFormat::PackagesText(first) == EditStateFormat::PackagesText(second);
}

bool operator==(const EditState& first, const EditState& second)
{
    return first.panels == second.panels && HaveSamePackages(first.committed, second.committed);
}

} // namespace LumetraEditor
