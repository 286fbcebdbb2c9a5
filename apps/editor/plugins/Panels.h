// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"
#include "plugins/GuardedPanel.h"

#include <QCoreApplication>

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace LumetraEditor {

/// The panels of the editor, in the order of their tabs. One that fails changes nothing for the
/// others.
class Panels
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::Panels)

public:
    /// Adds a panel that draws on the workspace. Its Create() is called later, when its listeners
    /// are connected. `workspace` is the one that the module gets.
    GuardedPanel& Add(const LoadedPlugin& plugin, IEditor& editor,
                      const std::shared_ptr<Zorvik::Lumetra::IWorkspaceController>& workspace);
    void Clear() { m_panels.clear(); }

    void PhotoChanged();
    void PreviewReady(const QString& key);
    /// Replaces the parts of the panels in use; all others stay as they are.
    void Save(LumetraHost::EditState& state) const;
    void Restore(const LumetraHost::EditState& state);
    /// True when the module has a panel that has not failed.
    bool IsInUse(const QString& module) const;
    /// Tells the modules among `owners`, but for `module`, that `module` has committed their open
    /// packages.
    void PackagesCommitted(const QString& module, const std::set<std::string>& owners);
    /// Gives the look to the first panel that keeps looks; returns why it is not kept, or empty.
    QString StoreLook(const NewLook& look);
    /// The id of the first module whose panel keeps looks; empty when there is none.
    QString FindLookModule() const;
    /// The ids and titles of the panels in use.
    std::vector<std::pair<QString, QString>> GetTitles() const;
    QString FindLookName(const QString& id) const;
    /// The name, in the user's language, of a look that the module knows; else empty.
    QString FindShownName(const QString& module, const QString& id) const;
    QString UpdateLook(const QString& id, const Zorvik::Quindle::EffectsSettings& settings);
    /// Asks the panels in turn, up to the first one that objects.
    bool MayEnd() const;
    /// The panel that the object belongs to, in use or not; null when there is none.
    GuardedPanel* FindOwner(const QObject* object) const;

private:
    std::vector<std::unique_ptr<GuardedPanel>> m_panels;
};

} // namespace LumetraEditor
