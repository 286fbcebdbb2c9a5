// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/edit/AdjustCommands.h"

#include "LumetraEditor/IEditor.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/ResetSettings.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <algorithm>

namespace LumetraAdjust {
namespace {

using Zorvik::Quindle::EffectSettingsImpl;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IQuindleDrawerPainter;
using Zorvik::Quindle::SettingsPainterEffectsPackageOneInput;

constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;

std::vector<std::string> IdsOf(const EffectsSettings& settings)
{
    std::vector<std::string> ids;
    for (const auto& effect : settings.Effects())
        ids.push_back(effect->GetEffectID());
    return ids;
}

} // namespace

AdjustCommands::AdjustCommands(Adjustments& adjustments, LumetraEditor::IEditor& editor)
    : m_adjustments(adjustments), m_editor(editor)
{
}

void AdjustCommands::Move(const std::string& effectID, const Adjustments::Values& values)
{
    m_adjustments.Set(effectID, values);
    if (m_editor.GetPhotoPath().isEmpty())
        return;
    if (m_painted != effectID)
        StartPainting(effectID);
    EffectsSettings update(EffectsSettings::PhotoAlone);
    update.Effects().push_back(m_adjustments.MakeEffect(effectID));
    m_editor.GetWorkspace()->GetCoreDrawer().GetPainter().UpdatePainting(update, 0);
}

/// The painter replaces effects of the package and adds none, so the effect has to be there before.
void AdjustCommands::StartPainting(const std::string& effectID)
{
    FinishPainting();
    if (!IsDrawn(effectID))
        DrawPackage(effectID);
    const auto package = SettingsPainterEffectsPackageOneInput::Create();
    package->SetPackageName(PackageName);
    package->SetIsNeedRestoreAlpha(true);
    auto& painter = m_editor.GetWorkspace()->GetCoreDrawer().GetPainter();
    painter.StartPainting(package);
    painter.SetPositions(IQuindleDrawerPainter::MAX_POS, IQuindleDrawerPainter::MAX_POS);
    m_painted = effectID;
}

void AdjustCommands::FinishPainting()
{
    if (m_painted.empty())
        return;
    m_painted.clear();
    m_editor.GetWorkspace()->GetCoreDrawer().GetPainter().FinishPainting(
        IQuindleDrawerPainter::MAX_POS, IQuindleDrawerPainter::MAX_POS, false);
}

bool AdjustCommands::IsDrawn(const std::string& effectID) const
{
    const auto& drawer = m_editor.GetWorkspace()->GetCoreDrawer();
    return drawer.GetPackageIndex(PackageName) != NoIndex &&
           std::find(m_drawn.begin(), m_drawn.end(), effectID) != m_drawn.end();
}

void AdjustCommands::DrawPackage(const std::string& alsoEffectID)
{
    EffectsSettings settings(EffectsSettings::PhotoAlone);
    settings.Package().SetPackageName(PackageName);
    settings.Effects() = m_adjustments.MakeEffects([&](const std::string& effectID) {
        return effectID == alsoEffectID || !m_adjustments.IsNeutral(effectID);
    });
    m_drawn = IdsOf(settings);
    m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(settings, {});
}

void AdjustCommands::RemovePackage()
{
    const auto workspace = m_editor.GetWorkspace();
    const unsigned index = workspace->GetCoreDrawer().GetPackageIndex(PackageName);
    if (index != NoIndex)
        workspace->GetResetReceiver().ResetPackage(Zorvik::Quindle::ResetSettings(index));
    m_drawn.clear();
}

/// Leaves the package as it is where it has the right effects already.
void AdjustCommands::SyncPackage()
{
    if (m_adjustments.IsNeutral())
        return RemovePackage();
    EffectsSettings wanted(EffectsSettings::PhotoAlone);
    wanted.Effects() = m_adjustments.MakeEffects(
        [this](const std::string& effectID) { return !m_adjustments.IsNeutral(effectID); });
    if (IdsOf(wanted) != m_drawn)
        DrawPackage();
}

void AdjustCommands::Finish(const QString& text)
{
    if (!m_editor.GetPhotoPath().isEmpty()) {
        FinishPainting();
        SyncPackage();
        m_editor.NoteEdit(text);
    }
    emit stateChanged();
}

void AdjustCommands::Set(const std::string& effectID, const Adjustments::Values& values,
                         const QString& text)
{
    Move(effectID, values);
    Finish(text);
    emit valuesChanged();
}

void AdjustCommands::ResetEffects(const std::vector<std::string>& effectIDs, const QString& text)
{
    FinishPainting();
    for (const std::string& effectID : effectIDs)
        m_adjustments.Set(effectID, m_adjustments.GetDefaults(effectID));
    Finish(text);
    emit valuesChanged();
}

bool AdjustCommands::HasChanges() const
{
    const auto& effects = m_adjustments.GetDescriptions();
    return std::any_of(effects.begin(), effects.end(), [this](const auto& effect) {
        return !m_adjustments.IsDefault(effect.effectID);
    });
}

void AdjustCommands::ResetAll()
{
    TakeOff();
    m_editor.NoteEdit(tr("Reset the adjustments"));
}

void AdjustCommands::TakeOff()
{
    FinishPainting();
    RemovePackage();
    Forget();
}

void AdjustCommands::Commit()
{
    FinishPainting();
    SyncPackage();
    const Zorvik::Quindle::ConstEffectPtr empty =
        EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty());
    m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(empty, {});
    Forget();
    m_editor.NoteEdit(tr("Add another layer"));
}

/// A painting that is open is the drawer's to end.
void AdjustCommands::Forget()
{
    m_painted.clear();
    m_drawn.clear();
    m_adjustments.Reset();
    emit valuesChanged();
    emit stateChanged();
}

void AdjustCommands::Restore(const Zorvik::Core::Property::Ptr& saved)
{
    m_painted.clear();
    m_drawn.clear();
    for (const QString& report : m_adjustments.Load(saved))
        m_editor.ShowMessage(tr("Adjustments: %1").arg(report));
    if (!m_adjustments.IsNeutral())
        DrawPackage();
    emit valuesChanged();
    emit stateChanged();
}

} // namespace LumetraAdjust
