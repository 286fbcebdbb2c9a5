// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "catalogue/CatalogueReport.h"
#include "core/PresetModel.h"

#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace Zorvik::Lumetra {
class IWorkspaceController;
}

namespace LumetraPlugin {

class PresetControllerFactory;
class UserPresetStore;

/// The presets of one panel: reads the catalogues and the user's own presets into a model, and
/// attaches it to a workspace that somebody else provides, with its effects registered. Belongs to
/// the GUI thread. Its users change presets through the model's roles.
class PresetCollection
{
public:
    /// The drawer's package that this program's presets share.
    static constexpr char PackageName[] = "lumetra.presets";

    /// `packageName` names the drawer's package that all presets of the panel share. The workspace
    /// may be null: presets can then be looked at, but not applied.
    PresetCollection(const std::string& packageName,
                     std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace);
    ~PresetCollection();

    PresetCollection(const PresetCollection&) = delete;
    PresetCollection& operator=(const PresetCollection&) = delete;

    /// Keeps the user's presets and favourites in the file at `path`, which Load() then reads.
    void OpenStore(const QString& path);
    /// Goes on without a store: nothing is saved.
    void CloseStore();
    /// The store; null without one. Save to it right after each change made through the model.
    UserPresetStore* GetStore() { return m_store.get(); }

    /// Fills the model, once. `userData` may be null; a store that is open is read in its place.
    /// Returns the files that could not be used at all; GetReports() says why. Exception, and the
    /// model still empty, when the store cannot be read at all.
    QStringList Load(const QStringList& catalogueFiles,
                     const Zorvik::Brassel::ConstSerializerPtr& userData);
    /// Opens the store at `storePath` and fills the model; goes on without a store when it cannot
    /// be read. `problems` gets a sentence about that, and one for each repair of the store.
    QStringList LoadWithStore(const QStringList& catalogueFiles, const QString& storePath,
                              QStringList& problems);
    /// Errors and remarks about the catalogues.
    const std::vector<LumetraHost::CatalogueReport>& GetReports() const { return m_reports; }

    PresetModel& GetModel() { return *m_model; }
    PresetControllerFactory& GetFactory() { return *m_factory; }
    const std::shared_ptr<PresetControllerFactory>& GetSharedFactory() { return m_factory; }
    /// The catalogues that Load() was given.
    const QStringList& GetCatalogueFiles() const { return m_catalogueFiles; }
    const std::string& GetPackageName() const { return m_packageName; }

    /// Makes all presets start unapplied, with their catalogue's values. To be called when the
    /// workspace has another photo.
    void StartPhoto();
    /// Takes the applied preset off the photo and puts every preset's values back to where they
    /// started. A workspace must be attached.
    void DiscardChanges();
    /// Puts the preset's intensity back to where it started; it is drawn when the preset is
    /// applied.
    void PutIntensityBack(const QModelIndex& preset);

private:
    void PutValuesBack();

    std::string m_packageName;
    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> m_workspace;
    std::shared_ptr<PresetControllerFactory> m_factory;
    std::unique_ptr<PresetModel> m_model;
    std::unique_ptr<UserPresetStore> m_store;
    QStringList m_catalogueFiles;
    std::vector<LumetraHost::CatalogueReport> m_reports;
};

} // namespace LumetraPlugin
