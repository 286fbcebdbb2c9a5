// SPDX-License-Identifier: MIT
#include "TemplatePanel.h"

#include "LumetraEditor/IEditor.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "Zorvik/Quindle/EffectsSettingsPackage.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/ResetSettings.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include <memory>
#include <string>

namespace {

using Zorvik::Brassel::SerializerProperty;
using Zorvik::Core::Property;
using Zorvik::Quindle::EffectSettingsImpl;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::EffectsSettingsPackage;
using Zorvik::Quindle::ResetSettings;

constexpr char OnKey[] = "on";

constexpr char PackageName[] = "template-panel";

EffectsSettings MakePackage()
{
    const auto effect = EffectSettingsImpl::Create("saturation");
    effect->SetParameter("amount", -100.0);
    EffectsSettings settings(EffectsSettings::PhotoAlone);
    settings.Package().SetPackageName(PackageName);
    settings.Effects().push_back(effect);
    return settings;
}

} // namespace

TemplatePanel::TemplatePanel(LumetraEditor::IEditor& editor)
    : m_editor(editor), m_widget(new QWidget),
      m_tick(new QCheckBox(tr("&Without colours"), m_widget))
{
    auto* const column = new QVBoxLayout(m_widget);
    column->addWidget(m_tick);
    column->addStretch();
    connect(m_tick, &QCheckBox::toggled, this, [this] {
        Draw();
        m_editor.NoteEdit(tr("Without colours")); // one step of undo
    });
    PhotoChanged();
}

void TemplatePanel::PhotoChanged()
{
    m_widget->setEnabled(!m_editor.GetPhotoPath().isEmpty());
    ShowTick(false);
}

void TemplatePanel::ShowTick(bool isOn)
{
    const QSignalBlocker blocker(m_tick);
    m_tick->setChecked(isOn);
}

/// Puts the panel's package on the photo, or takes it off.
void TemplatePanel::Draw()
{
    const auto workspace = m_editor.GetWorkspace();
    if (m_tick->isChecked()) {
        workspace->GetCoreDrawer().ApplyEffect(MakePackage(), {});
        return;
    }
    const unsigned index = workspace->GetCoreDrawer().GetPackageIndex(PackageName);
    if (index != EffectsSettingsPackage::NoIndex)
        workspace->GetResetReceiver().ResetPackage(ResetSettings(index));
}

Property::Ptr TemplatePanel::SaveEdit() const
{
    const auto edit = std::make_shared<Property>(std::string());
    if (m_tick->isChecked())
        edit->Set(OnKey, true);
    return edit;
}

/// An edit may come from elsewhere. A read of a value of another kind throws.
void TemplatePanel::RestoreEdit(const Property::Ptr& edit)
{
    bool isOn = false;
    try {
        isOn = SerializerProperty::Create(edit, "edit")->Get(OnKey, false);
    } catch (const Zorvik::Exception& error) {
        m_editor.ShowMessage(tr("Template: %1").arg(QString::fromUtf8(error.what())));
    }
    ShowTick(isOn);
    if (isOn)
        Draw();
}
