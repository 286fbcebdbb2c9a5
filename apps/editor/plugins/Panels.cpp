// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/Panels.h"

#include <algorithm>

namespace LumetraEditor {

using LumetraHost::EditState;
using LumetraHost::PanelEdit;

GuardedPanel& Panels::Add(const LoadedPlugin& plugin, IEditor& editor,
                          const std::shared_ptr<Zorvik::Lumetra::IWorkspaceController>& workspace)
{
    m_panels.push_back(std::make_unique<GuardedPanel>(plugin, editor, workspace));
    return *m_panels.back();
}

void Panels::PhotoChanged()
{
    for (const auto& panel : m_panels)
        panel->PhotoChanged();
}

void Panels::PreviewReady(const QString& key)
{
    for (const auto& panel : m_panels)
        panel->PreviewReady(key);
}

void Panels::Save(EditState& state) const
{
    for (const auto& panel : m_panels)
        if (const auto edit = panel->SaveEdit())
            state.panels[panel->GetId()] = *edit;
}

void Panels::Restore(const EditState& state)
{
    for (const auto& panel : m_panels) {
        const auto found = state.panels.find(panel->GetId());
        panel->RestoreEdit(found == state.panels.end() ? PanelEdit() : found->second);
    }
}

bool Panels::IsInUse(const QString& module) const
{
    return std::any_of(m_panels.begin(), m_panels.end(), [&module](const auto& panel) {
        return panel->GetId() == module && panel->IsUsable();
    });
}

void Panels::PackagesCommitted(const QString& module, const std::set<std::string>& owners)
{
    for (const auto& panel : m_panels)
        if (panel->GetId() != module && owners.count(panel->GetId().toStdString()) > 0)
            panel->PackagesCommitted();
}

QString Panels::StoreLook(const NewLook& look)
{
    for (const auto& panel : m_panels)
        if (const auto problem = panel->KeepLook(look))
            return *problem;
    return tr("There is no panel that keeps looks.");
}

QString Panels::FindLookModule() const
{
    for (const auto& panel : m_panels)
        if (panel->KeepsLooks())
            return panel->GetId();
    return {};
}

std::vector<std::pair<QString, QString>> Panels::GetTitles() const
{
    std::vector<std::pair<QString, QString>> titles;
    for (const auto& panel : m_panels)
        if (panel->IsUsable())
            titles.emplace_back(panel->GetId(), panel->GetTitle());
    return titles;
}

QString Panels::FindLookName(const QString& id) const
{
    for (const auto& panel : m_panels)
        if (const QString name = panel->FindKeptLook(id); !name.isEmpty())
            return name;
    return {};
}

QString Panels::FindShownName(const QString& module, const QString& id) const
{
    for (const auto& panel : m_panels)
        if (panel->GetId() == module)
            return panel->FindShownName(id);
    return {};
}

QString Panels::UpdateLook(const QString& id, const Zorvik::Quindle::EffectsSettings& settings)
{
    for (const auto& panel : m_panels)
        if (!panel->FindKeptLook(id).isEmpty())
            return panel->UpdateKeptLook(id, settings);
    return tr("There is no such look among yours.");
}

bool Panels::MayEnd() const
{
    return std::all_of(m_panels.begin(), m_panels.end(),
                       [](const auto& panel) { return panel->MayEnd(); });
}

GuardedPanel* Panels::FindOwner(const QObject* object) const
{
    const auto found = std::find_if(m_panels.begin(), m_panels.end(),
                                    [object](const auto& panel) { return panel->Owns(object); });
    return found == m_panels.end() ? nullptr : found->get();
}

} // namespace LumetraEditor
