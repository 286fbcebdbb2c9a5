// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/PresetUse.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Settings/TuneSettingType.h"
#include "Zorvik/Exception.h"
#include "console/NameHint.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/PresetSession.h"
#include "exporting/LookRecord.h"
#include "workspace/WorkspaceController.h"

#include <boost/current_function.hpp>

namespace LumetraCli {
namespace {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Lumetra::LumetraPresets::TuneSettingType;
using Zorvik::Quindle::EffectsSettings;

int ReadValue(const QString& what, const QString& text, int minimum, int maximum)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    const bool isUpwards = minimum <= maximum;
    const int lowest = isUpwards ? minimum : maximum;
    const int highest = isUpwards ? maximum : minimum;
    if (!isNumber || value < lowest || value > highest)
        throw UsageError(Text::tr("%1: expected a whole number from %2 to %3, found \"%4\"")
                             .arg(what, QString::number(lowest), QString::number(highest), text));
    return value;
}

bool IsNamed(const SliderSetting& slider, const QString& name)
{
    const auto isSame = [&name](const std::string& text) {
        return QString::fromStdString(text).compare(name, Qt::CaseInsensitive) == 0;
    };
    return isSame(slider.EffectID()) || isSame(slider.Title());
}

[[noreturn]] void RefuseSlider(const PresetRow& preset, const QString& name)
{
    std::vector<std::string> names;
    QStringList shown;
    for (const SliderSetting& slider : preset.sliders) {
        const std::string own = slider.EffectID().empty() ? slider.Title() : slider.EffectID();
        names.push_back(own);
        shown.append(QString::fromStdString("\"" + own + "\""));
    }
    const QString known =
        shown.isEmpty() ? Text::tr("none, it has no sliders") : shown.join(QStringLiteral(", "));
    throw UsageError(Text::tr("--set: expected a slider of \"%1\" (%2), found \"%3\"")
                         .arg(preset.shown, known, name) +
                     MakeNameHint(name, names));
}

} // namespace

PresetUse::PresetUse(const PresetRow& preset, const QString& intensity, const QStringList& settings)
    : m_preset(preset)
{
    const QString problem = PresetRows::FindProblem(preset);
    if (!problem.isEmpty())
        throw Zorvik::Exception(
            QStringLiteral("\"%1\": %2").arg(preset.shown, problem).toStdString(),
            BOOST_CURRENT_FUNCTION, "PresetUse", __LINE__);
    if (!intensity.isNull())
        SetIntensity(intensity);
    for (const QString& setting : settings)
        SetSlider(setting);
}

void PresetUse::SetIntensity(const QString& text)
{
    if (!m_preset.HasIntensity())
        throw UsageError(
            Text::tr("--intensity: expected none, for \"%1\" has no intensity, found \"%2\"")
                .arg(m_preset.shown, text));
    m_intensity = ReadValue(QStringLiteral("--intensity"), text, m_preset.intensityMinimum,
                            m_preset.intensityMaximum);
}

void PresetUse::SetSlider(const QString& setting)
{
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals < 1)
        throw UsageError(Text::tr("--set: expected slider=value, found \"%1\"").arg(setting));
    const QString name = setting.left(equals).trimmed();
    for (SliderSetting& slider : m_preset.sliders) {
        if (!IsNamed(slider, name))
            continue;
        slider.SetValue(ReadValue(QStringLiteral("--set %1").arg(name),
                                  setting.mid(equals + 1).trimmed(), slider.Min(), slider.Max()));
        return;
    }
    RefuseSlider(m_preset, name);
}

std::optional<int> PresetUse::GetIntensity() const
{
    if (m_intensity || !m_preset.HasIntensity())
        return m_intensity;
    return m_preset.intensity;
}

void PresetUse::Tune(EffectPresetModel& model) const
{
    const QModelIndex& index = m_preset.index;
    model.setData(index, QVariant::fromValue(m_preset.sliders),
                  EffectPresetModel::SettingsValuesRole);
    if (!m_intensity)
        return;
    model.setData(index, *m_intensity, EffectPresetModel::IntensityRole);
    model.setData(index, QVariant::fromValue(TuneSettingType::ChangeEnd),
                  EffectPresetModel::TuneRole);
}

std::vector<EffectsSettings> PresetUse::MakePackages(LumetraPlugin::PresetSession& session) const
{
    session.ClosePhoto(); // the packages do not depend on the photo
    EffectPresetModel& model = session.GetModel();
    model.setData(m_preset.index, true, EffectPresetModel::AppliedRole);
    Tune(model);
    model.ApplyCurrentChanges(true);
    model.setData(m_preset.index, false, EffectPresetModel::AppliedRole);
    return session.GetWorkspace().GetDrawer().GetCommittedPackages();
}

std::vector<LumetraHost::EditRecord>
PresetUse::MakeRecords(const std::vector<EffectsSettings>& packages) const
{
    LumetraHost::EditRecord record;
    record.preset = m_preset.name.toStdString();
    record.intensity =
        GetIntensity().value_or(record.intensity); // a preset without intensity has its full effect
    std::vector<LumetraHost::EditRecord> records;
    for (const auto& package : packages)
        if (!package.Package().GetPresetName().empty()) {
            records.push_back(record);
            LumetraHost::LookRecord::AddLook(records.back(), package);
        }
    return records;
}

EffectsSettings PresetUse::GetLook(LumetraPlugin::PresetSession& session) const
{
    session.OpenPhoto(LumetraHost::Image::Allocate(1, 1, LumetraHost::Image::Depth::Bits8));
    EffectPresetModel& model = session.GetModel();
    model.setData(m_preset.index, true, EffectPresetModel::AppliedRole);
    Tune(model);
    const auto packages = session.GetWorkspace().GetDrawer().GetOpenPackages();
    session.ClosePhoto();
    return packages.empty() ? EffectsSettings(EffectsSettings::PhotoAlone) : packages.back();
}

void PresetUse::SaveAs(LumetraPlugin::PresetSession& session, const QString& name) const
{
    session.ClosePhoto(); // tuning needs a workspace, but no photo
    EffectPresetModel& model = session.GetModel();
    model.setData(m_preset.index, true, EffectPresetModel::AppliedRole);
    Tune(model);
    model.setData(m_preset.index, name, EffectPresetModel::SaveAsUserPresetRole);
    model.setData(m_preset.index, false, EffectPresetModel::AppliedRole);
}

} // namespace LumetraCli
