// SPDX-License-Identifier: GPL-2.0-or-later
#include "HelpingModule.h"

#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"

#include <QApplication>

#include <stdexcept>

namespace {

using LumetraEditor::EditorLayer;
using LumetraEditor::NewLook;
using Zorvik::Quindle::EffectSettingsImpl;
using Zorvik::Quindle::EffectsSettings;

QString Help()
{
    return qApp->property("help").toString();
}

void SetHelped(const QVariant& value)
{
    qApp->setProperty("helped", value);
}

EffectsSettings MakeLighter()
{
    const auto effect = EffectSettingsImpl::Create("exposure");
    effect->SetParameter("stops", 0.5);
    EffectsSettings settings(EffectsSettings::PhotoAlone);
    settings.Package().SetPackageName("helping-panel");
    settings.Effects().push_back(effect);
    return settings;
}

QString ToText(const EditorLayer& layer)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(layer.module, layer.name)
        .arg(layer.intensity)
        .arg(layer.isOn ? QStringLiteral("on") : QStringLiteral("off"),
             layer.isOpen ? QStringLiteral("open") : QStringLiteral("committed"))
        .arg(layer.settings.Effects().size());
}

} // namespace

HelpingPanel::HelpingPanel(LumetraEditor::IEditor& editor)
    : m_editor(editor), m_button(new QPushButton(QStringLiteral("Help")))
{
    m_button->setObjectName(QStringLiteral("help"));
    connect(m_button, &QPushButton::clicked, this, &HelpingPanel::Act);
}

HelpingPanel::~HelpingPanel()
{
    if (m_button && !m_button->parentWidget())
        delete m_button;
}

/// Asks for the layers, as a module may do at any moment.
Zorvik::Core::Property::Ptr HelpingPanel::SaveEdit() const
{
    m_editor.GetLayers();
    return std::make_shared<Zorvik::Core::Property>(std::string());
}

void HelpingPanel::RestoreEdit(const Zorvik::Core::Property::Ptr&)
{
    const Zorvik::Quindle::ConstEffectPtr effect = MakeLighter().Effects().at(0);
    if (Help() == QLatin1String("restore"))
        m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(effect, {});
}

void HelpingPanel::Act()
{
    if (Help() == QLatin1String("draw"))
        Draw();
    else if (Help() == QLatin1String("commit"))
        Commit();
    else if (Help() == QLatin1String("layers")) {
        QStringList texts;
        for (const EditorLayer& layer : m_editor.GetLayers())
            texts.append(ToText(layer));
        SetHelped(texts);
    } else {
        NewLook look = qApp->property("look").value<NewLook>();
        SetHelped(m_editor.StoreLook(look));
    }
}

void HelpingPanel::Draw()
{
    m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(MakeLighter(), {});
    m_editor.NoteEdit(QStringLiteral("Draw"));
}

void HelpingPanel::Commit()
{
    const auto empty = EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty());
    m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(Zorvik::Quindle::ConstEffectPtr(empty),
                                                         {});
    m_editor.NoteEdit(QStringLiteral("Commit"));
}

void HelpingPanel::PackagesCommitted()
{
    if (Help() == QLatin1String("fail"))
        throw std::runtime_error("the helper fails");
    SetHelped(QStringLiteral("committed"));
}

LumetraEditor::ILookKeeper* HelpingPanel::GetLookKeeper()
{
    return Help() == QLatin1String("keep") || Help() == QLatin1String("fail") ? this : nullptr;
}

QString HelpingPanel::KeepLook(const NewLook& look)
{
    if (Help() == QLatin1String("fail"))
        throw 42;
    qApp->setProperty("keptLook", look.name);
    return {};
}
