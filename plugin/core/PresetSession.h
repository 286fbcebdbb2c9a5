// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "catalogue/CatalogueReport.h"

#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace LumetraHost {
class Image;
class WorkspaceController;
} // namespace LumetraHost

namespace Zorvik::Lumetra::LumetraPresets {
class EffectPresetModel;
}

namespace LumetraPlugin {

class PresetControllerFactory;
class UserPresetStore;

/// One panel of presets and the photo that they are applied to: registers the engine's effects,
/// reads the catalogues into a model and attaches it to a workspace. Photos may follow each other;
/// there is one at a time. Belongs to the GUI thread. Whoever uses it changes presets through the
/// model's roles alone.
class PresetSession
{
public:
    /// `packageName` names the drawer's package that all presets of the panel share.
    explicit PresetSession(const std::string& packageName);
    ~PresetSession();

    PresetSession(const PresetSession&) = delete;
    PresetSession& operator=(const PresetSession&) = delete;

    /// Keeps the user's presets and favourites in the file at `path`, which Load() then reads.
    void OpenStore(const QString& path);
    /// Goes on without: nothing is saved.
    void CloseStore();
    /// Null without one. Save to it right after each change made through the model.
    UserPresetStore* GetStore() { return m_store.get(); }

    /// Fills the model, once. `userData` may be null; a store that is open is read in its place.
    /// Returns those of the files that could not be used at all; GetReports() says why. Exception,
    /// and the model still empty, when the store cannot be read at all.
    QStringList Load(const QStringList& catalogueFiles,
                     const Zorvik::Brassel::ConstSerializerPtr& userData);
    /// What was noticed in the catalogues.
    const std::vector<LumetraHost::CatalogueReport>& GetReports() const { return m_reports; }

    Zorvik::Lumetra::LumetraPresets::EffectPresetModel& GetModel() { return *m_model; }
    PresetControllerFactory& GetFactory() { return *m_factory; }
    LumetraHost::WorkspaceController& GetWorkspace() { return *m_workspace; }

    /// Replaces the photo. All presets start unapplied, with their catalogue's values.
    void OpenPhoto(const LumetraHost::Image& photo);
    void ClosePhoto();

private:
    std::shared_ptr<LumetraHost::WorkspaceController> m_workspace;
    std::shared_ptr<PresetControllerFactory> m_factory;
    std::unique_ptr<Zorvik::Lumetra::LumetraPresets::EffectPresetModel> m_model;
    std::unique_ptr<UserPresetStore> m_store;
    std::vector<LumetraHost::CatalogueReport> m_reports;
};

} // namespace LumetraPlugin
