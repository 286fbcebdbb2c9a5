// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/AppliedEdit.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/ResetSettings.h"
#include "core/PresetCollection.h"
#include "storage/ErrorText.h"
#include "storage/JsonDocument.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace LumetraPlugin {
namespace {

using LumetraHost::JsonDocument;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;

QString PresetKey()
{
    return QString::fromLatin1(LumetraEditor::IEditorPanel::EditPreset);
}
QString NameKey()
{
    return QString::fromLatin1(LumetraEditor::IEditorPanel::EditName);
}
QString BlendKey()
{
    return QStringLiteral("blend");
}
QString EffectsKey()
{
    return QString::fromLatin1(IEffectSettings::EFFECTS);
}
QString IntensityKey()
{
    return QString::fromLatin1(LumetraEditor::IEditorPanel::EditIntensity);
}
QString SlidersKey()
{
    return QStringLiteral("sliders");
}

/// Stores the effects as the catalogue writes them.
QJsonArray SaveEffects(const EffectsSettings& settings)
{
    JsonDocument document("edit");
    const auto list = document.GetRoot()->CreateCollection(IEffectSettings::EFFECTS);
    for (const auto& effect : settings.EffectsConst())
        list->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
    const auto text = QJsonDocument::fromJson(document.ToText());
    return text.object().value(EffectsKey()).toArray();
}

/// Reads the effects; `reports` gets a sentence for each one that cannot be read.
void LoadEffects(const QJsonObject& edit, EffectsSettings& settings, QStringList& reports)
{
    for (const QJsonValue& value : edit.value(EffectsKey()).toArray()) {
        try {
            const auto document = JsonDocument::Parse(
                QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact), "edit");
            const auto node = document.GetRoot()->GetNode(IEffectSettings::EFFECT);
            const auto effect = IEffectSettings::CreateEffectSettings(node);
            document.GetRoot()->ReadObject(IEffectSettings::EFFECT, *effect);
            settings.Effects().push_back(effect);
        } catch (const Zorvik::Exception& error) {
            reports.append(QString::fromUtf8(error.what()));
        }
    }
}

QJsonArray SavePositions(const QModelIndex& preset)
{
    QJsonArray positions;
    const auto sliders = preset.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
    for (const SliderSetting& slider : sliders)
        positions.append(slider.Value());
    return positions;
}

bool HasIntensity(const QModelIndex& preset)
{
    return preset.data(PresetModel::IntensitySettingTypeRole).value<IntensitySettingType>() !=
           IntensitySettingType::None;
}

} // namespace

AppliedEdit::AppliedEdit(PresetCollection& presets,
                         std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace)
    : m_presets(presets), m_workspace(std::move(workspace))
{
}

QJsonObject AppliedEdit::Save() const
{
    if (m_stray)
        return m_stray->edit;
    const QModelIndex applied = m_presets.GetModel().FindApplied();
    if (!applied.isValid())
        return {};
    const EffectsSettings settings = m_presets.GetModel().GetPreset(applied)->MakeSettings();
    QJsonObject edit{{PresetKey(), applied.data(PresetModel::PresetIdRole).toString()},
                     {NameKey(), applied.data(PresetModel::PresetNameRole).toString()},
                     {BlendKey(), settings.GetBlendAmount()},
                     {EffectsKey(), SaveEffects(settings)},
                     {SlidersKey(), SavePositions(applied)}};
    if (HasIntensity(applied))
        edit.insert(IntensityKey(), applied.data(PresetModel::IntensityRole).toInt());
    return edit;
}

/// Draws the package as it was saved, whatever the catalogue says today.
void AppliedEdit::Draw(const QJsonObject& edit, EffectsSettings& settings, QStringList& reports)
{
    LoadEffects(edit, settings, reports);
    const int blend = edit.value(BlendKey()).toInt(EffectsSettings::FullEffect);
    settings.SetBlendAmount(
        std::clamp(blend, EffectsSettings::FullEffect, EffectsSettings::NoEffect));
    settings.Package().SetPackageName(m_presets.GetPackageName());
    settings.Package().SetPresetName(edit.value(PresetKey()).toString().toStdString());
    m_workspace->GetCoreDrawer().ApplyEffect(settings, {});
}

QStringList AppliedEdit::Restore(const QJsonObject& edit)
{
    QStringList reports;
    m_stray.reset();
    PresetModel& model = m_presets.GetModel();
    model.SetResetIndex(NoIndex);
    const QString id = edit.value(PresetKey()).toString();
    if (id.isEmpty()) {
        if (!edit.isEmpty())
            reports.append(tr("The edit names no preset; nothing is applied."));
        model.ActivatePreset(std::string(), EffectsSettings(EffectsSettings::PhotoAlone));
        return reports;
    }
    EffectsSettings settings(EffectsSettings::PhotoAlone);
    Draw(edit, settings, reports);
    const QModelIndex preset = model.FindId(id);
    const std::string problem =
        preset.isValid() ? model.GetPreset(preset)->FindProblem(LumetraHost::ContentCheck::Content)
                         : std::string();
    if (preset.isValid() && problem.empty()) {
        RestoreValues(id, edit, reports);
        return reports;
    }
    model.ActivatePreset(preset.isValid() ? std::string() : id.toStdString(), settings);
    const QString name = edit.value(NameKey()).toString(id);
    m_stray = Stray{name, edit};
    reports.append(
        preset.isValid()
            ? tr("The look “%1” cannot be changed: %2. The photo keeps it as it was.")
                  .arg(name, QString::fromStdString(problem))
            : tr("The look “%1” is no longer among the presets. The photo keeps it as it was.")
                  .arg(name));
    return reports;
}

/// Sets the panel's controls to the saved values; the photo is drawn already.
void AppliedEdit::RestoreValues(const QString& id, const QJsonObject& edit, QStringList& reports)
{
    PresetModel& model = m_presets.GetModel();
    EffectsSettings settings(EffectsSettings::PhotoAlone);
    QStringList unused; // Draw() has reported them before
    LoadEffects(edit, settings, unused);
    settings.SetBlendAmount(edit.value(BlendKey()).toInt(EffectsSettings::FullEffect));
    try {
        model.ActivatePreset(id.toStdString(), settings);
    } catch (const std::exception& error) {
        // An intensity that must find its effect, and does not.
        reports.append(LumetraHost::ErrorText::Show(error));
    }
}

void AppliedEdit::DropStray()
{
    if (!m_stray)
        return;
    m_stray.reset();
    ResetPackage();
}

void AppliedEdit::ResetPackage()
{
    const unsigned index = m_workspace->GetCoreDrawer().GetPackageIndex(m_presets.GetPackageName());
    if (index != NoIndex)
        m_workspace->GetResetReceiver().ResetPackage(Zorvik::Quindle::ResetSettings(index));
}

/// A preset that failed while it was applied counts as applied, though nothing of it was drawn.
void AppliedEdit::GoBackTo(const QJsonObject& edit)
{
    if (const auto applied = m_presets.GetModel().GetPreset(m_presets.GetModel().FindApplied()))
        applied->SetApplied(false, false);
    ResetPackage();
    Restore(edit);
}

} // namespace LumetraPlugin
