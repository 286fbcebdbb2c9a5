// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/AdjustPanel.h"

#include "LumetraEditor/IEditor.h"
#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Util/ObjectsConnector.h"
#include "adjust/AdjustFrame.h"
#include "adjust/edit/AdjustCommands.h"
#include "adjust/edit/SectionPlan.h"
#include "adjust/looks/LookCommands.h"
#include "adjust/sections/AdjustWidget.h"

#include <QLayout>

namespace LumetraAdjust {
namespace {

std::vector<LumetraEditor::EffectDescription> DescribeInOrder(const LumetraEditor::IEditor& editor)
{
    auto effects = editor.DescribeEffects();
    SectionPlan::Sort(effects);
    return effects;
}

} // namespace

AdjustPanel::AdjustPanel(LumetraEditor::IEditor& editor)
    : m_editor(editor), m_adjustments(std::make_unique<Adjustments>(DescribeInOrder(editor))),
      m_commands(std::make_unique<AdjustCommands>(*m_adjustments, editor)), m_frame(new AdjustFrame)
{
    m_looks = std::make_unique<LookCommands>(*m_commands, editor, *m_frame);
    m_widget = new AdjustWidget(*m_commands, *m_looks, m_frame);
    m_frame->layout()->addWidget(m_widget);
    connect(m_frame, &AdjustFrame::languageChanged, this, &AdjustPanel::FollowLanguage);
    Zorvik::Util::ObjectsConnector::registerReceiver(
        Zorvik::Lumetra::LumetraInt::IObjectsConnectorID::CORE_DRAWER_LOCK, this,
        QStringLiteral("1OnCoreDrawerLock(bool)"), false);
    Enable();
}

/// Deletes the controls first, since they use the commands; a frame that has been placed is the
/// editor's.
AdjustPanel::~AdjustPanel()
{
    delete m_widget;
    if (m_frame && !m_frame->parent())
        delete m_frame;
}

QWidget* AdjustPanel::GetWidget()
{
    return m_frame;
}

void AdjustPanel::PhotoChanged()
{
    m_commands->Forget();
    Enable();
}

void AdjustPanel::PackagesCommitted()
{
    m_commands->Forget();
}

Zorvik::Core::Property::Ptr AdjustPanel::SaveEdit() const
{
    return m_adjustments->Save();
}

void AdjustPanel::RestoreEdit(const Zorvik::Core::Property::Ptr& edit)
{
    m_commands->Restore(edit);
}

void AdjustPanel::FollowLanguage()
{
    m_adjustments->SetDescriptions(m_editor.DescribeEffects());
    if (m_widget)
        m_widget->ShowTexts();
}

void AdjustPanel::OnCoreDrawerLock(bool isLocked)
{
    m_isLocked = isLocked;
    Enable();
}

void AdjustPanel::Enable()
{
    if (m_frame)
        m_frame->setEnabled(!m_isLocked && !m_editor.GetPhotoPath().isEmpty());
}

} // namespace LumetraAdjust
