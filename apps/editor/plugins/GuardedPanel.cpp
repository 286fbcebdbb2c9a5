// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/GuardedPanel.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <string_view>
#include <utility>

namespace LumetraEditor {

using LumetraHost::PanelEdit;

static_assert(std::string_view(PanelEdit::Preset) == IEditorPanel::EditPreset);
static_assert(std::string_view(PanelEdit::Name) == IEditorPanel::EditName);
static_assert(std::string_view(PanelEdit::Intensity) == IEditorPanel::EditIntensity);

GuardedPanel::GuardedPanel(const LoadedPlugin& plugin, IEditor& editor,
                           std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace)
    : m_plugin(plugin), m_editor(editor), m_workspace(std::move(workspace))
{
}

GuardedPanel::~GuardedPanel()
{
    m_isUsable = false;
    if (m_parts.widget)
        m_parts.widget->disconnect(this);
    // The widget of a panel in use belongs to the window.
    m_parts.widget.clear();
    m_parts.Delete();
    delete m_retired;
}

// Calls into the module

void GuardedPanel::Create()
{
    Guard([this] {
        m_parts.panel = m_plugin.root->CreatePanel(*this);
        if (!m_parts.panel)
            return PutOutOfUse(tr("it makes no panel"));
        TakeWidget(m_parts.panel->GetWidget());
    });
    UpdateTitle();
    m_isMade = true;
}

void GuardedPanel::TakeWidget(QWidget* widget)
{
    if (!widget)
        return PutOutOfUse(tr("its panel has no widget"));
    m_parts.widget = widget;
    connect(widget, &QObject::destroyed, this,
            [this] { PutOutOfUse(tr("it has deleted its own widget")); });
}

void GuardedPanel::UpdateTitle()
{
    Guard([this] { m_title = m_plugin.root->GetTitle().trimmed(); });
}

void GuardedPanel::PhotoChanged()
{
    GuardPanel([](IEditorPanel& panel) { panel.PhotoChanged(); });
}

void GuardedPanel::PreviewReady(const QString& key)
{
    GuardPanel([&key](IEditorPanel& panel) { panel.PreviewReady(key); });
}

std::optional<PanelEdit> GuardedPanel::SaveEdit()
{
    std::optional<PanelEdit> edit;
    const QScopedValueRollback<bool> saving(m_isSaving, true);
    GuardPanel([&edit](const IEditorPanel& panel) { edit = PanelEdit(panel.SaveEdit()); });
    return m_isUsable ? edit : std::nullopt;
}

void GuardedPanel::RestoreEdit(const PanelEdit& edit)
{
    GuardPanel([&edit](IEditorPanel& panel) { panel.RestoreEdit(edit.MakeProperty()); });
}

bool GuardedPanel::MayEnd()
{
    bool mayEnd = true;
    GuardPanel([&](IEditorPanel& panel) { mayEnd = panel.MayEnd(); });
    return !m_isUsable || mayEnd;
}

void GuardedPanel::PackagesCommitted()
{
    GuardPanel([](IEditorPanel& panel) { panel.PackagesCommitted(); });
}

std::optional<QString> GuardedPanel::KeepLook(const NewLook& look)
{
    std::optional<QString> problem;
    const bool wasUsable = m_isUsable;
    GuardPanel([&](IEditorPanel& panel) {
        if (ILookKeeper* const keeper = panel.GetLookKeeper())
            problem = keeper->KeepLook(look);
    });
    if (wasUsable && !m_isUsable)
        return tr("The panel “%1” has failed.").arg(GetTitle());
    return problem;
}

bool GuardedPanel::KeepsLooks()
{
    bool keepsLooks = false;
    GuardPanel([&](IEditorPanel& panel) { keepsLooks = panel.GetLookKeeper() != nullptr; });
    return m_isUsable && keepsLooks;
}

QString GuardedPanel::FindKeptLook(const QString& id)
{
    QString name;
    GuardPanel([&](IEditorPanel& panel) {
        if (const ILookKeeper* const keeper = panel.GetLookKeeper())
            name = keeper->FindLookName(id);
    });
    return m_isUsable ? name : QString();
}

QString GuardedPanel::FindShownName(const QString& id)
{
    QString name;
    GuardPanel([&](IEditorPanel& panel) {
        if (const ILookKeeper* const keeper = panel.GetLookKeeper())
            name = keeper->FindShownName(id);
    });
    return m_isUsable ? name : QString();
}

QString GuardedPanel::UpdateKeptLook(const QString& id,
                                     const Zorvik::Quindle::EffectsSettings& settings)
{
    QString problem;
    GuardPanel([&](IEditorPanel& panel) {
        if (ILookKeeper* const keeper = panel.GetLookKeeper())
            problem = keeper->UpdateLook(id, settings);
    });
    return m_isUsable ? problem : tr("The panel “%1” has failed.").arg(GetTitle());
}

// The end of a panel

bool GuardedPanel::Owns(const QObject* object) const
{
    return m_parts.Own(object) || (m_retired && m_retired->GetParts().Own(object));
}

QString GuardedPanel::MakeMessage(const QString& reason) const
{
    if (!m_isMade)
        return tr("The panel “%1” cannot be used: %2").arg(GetTitle(), reason);
    return tr("The panel “%1” has failed and is out of use until the next start: %2\n"
              "Its part of the edit is kept as it was.")
        .arg(GetTitle(), reason);
}

void GuardedPanel::PutOutOfUse(const QString& reason)
{
    if (!m_isUsable)
        return;
    m_isUsable = false;
    QWidget* const widget = m_parts.widget;
    if (widget) {
        widget->disconnect(this);
        widget->hide();
    }
    m_editor.ShowOnPhoto(nullptr);
    emit putOutOfUse(widget);
    m_retired = new RetiredPanel(std::move(m_parts));
    emit failed(MakeMessage(reason));
}

// Requests of the module to the editor

void GuardedPanel::ShowOnPhoto(const Zorvik::Quindle::EffectsSettings* settings)
{
    if (m_isUsable)
        m_editor.ShowOnPhoto(settings);
}

Zorvik::Proc::Frame GuardedPanel::RequestPreview(const QString& key,
                                                 const Zorvik::Proc::FrameTarget& target,
                                                 const Zorvik::Quindle::EffectsSettings& settings,
                                                 int cropPolicy, int fitPolicy, unsigned flags)
{
    return m_isUsable ? m_editor.RequestPreview(key, target, settings, cropPolicy, fitPolicy, flags)
                      : Zorvik::Proc::Frame();
}

void GuardedPanel::CancelPreviews()
{
    if (m_isUsable)
        m_editor.CancelPreviews();
}

/// Tells the editor of a step. It asks for SaveEdit() then, which must not lead back here.
void GuardedPanel::NoteEdit(const QString& text)
{
    if (m_isUsable && !m_isSaving)
        m_editor.NoteEdit(text);
}

void GuardedPanel::PushUndo(QUndoCommand* command)
{
    const auto shared =
        std::make_shared<std::unique_ptr<QUndoCommand>>(std::unique_ptr<QUndoCommand>(command));
    if (!m_isUsable || !command)
        return;
    auto& commands = m_parts.commands;
    commands.erase(std::remove_if(commands.begin(), commands.end(),
                                  [](const auto& earlier) { return earlier.expired(); }),
                   commands.end());
    commands.push_back(shared);
    m_editor.PushUndo(new GuardedCommand(*this, shared, command->text()));
}

QString GuardedPanel::StoreLook(const NewLook& look)
{
    return m_isUsable ? m_editor.StoreLook(look) : tr("The panel “%1” has failed.").arg(GetTitle());
}

QString GuardedPanel::FindLookName(const QString& id) const
{
    return m_isUsable ? m_editor.FindLookName(id) : QString();
}

QString GuardedPanel::UpdateLook(const QString& id,
                                 const Zorvik::Quindle::EffectsSettings& settings)
{
    return m_isUsable ? m_editor.UpdateLook(id, settings)
                      : tr("The panel “%1” has failed.").arg(GetTitle());
}

void GuardedPanel::ShowMessage(const QString& text)
{
    if (!m_isUsable)
        return;
    if (m_isMade)
        m_editor.ShowMessage(text);
    else
        emit noticeGiven(text);
}

void GuardedPanel::ShowBriefly(const QString& text)
{
    if (m_isUsable)
        m_editor.ShowBriefly(text);
}

} // namespace LumetraEditor
