// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetControllerFactory.h"
#include "core/PresetModel.h"
#include "core/userstore/UserPresetStore.h"

#include <memory>

namespace LumetraTest {

/// Registers the effect of the catalogue below, which has one parameter, "gain".
void RegisterTone();

/// A small program: a catalogue group "Looks" with three presets (a blending, a slider and a plain
/// one, an extra slider on two), and the user's presets from the store at `path`.
class StoreProgram
{
public:
    explicit StoreProgram(const QString& path);
    ~StoreProgram();

    LumetraPlugin::PresetModel& Model() { return *m_model; }
    LumetraPlugin::UserPresetStore& Store() { return m_store; }

    /// Saves the first preset of "Looks" under `name`, and the store.
    void SaveAs(const QString& name);
    /// Adds a preset with a cube of `size` points, whose numbers depend on `seed`, and saves the
    /// store.
    void SaveTable(const QString& name, int size, int seed);
    void AddTable(const QString& name, int size, int seed);
    void Save() { m_store.Save(*m_model); }

    QModelIndex Preset(int group, int row) const;
    /// The user's presets, in order.
    QStringList Names() const { return m_model->GetUserPresetNames(); }
    /// The user's preset of that name; null when there is none.
    LumetraPlugin::PresetModel::PresetPtr Find(const QString& name) const;
    /// The user's presets' stored form with all tables in it, for comparison.
    QByteArray WholeText() const;

private:
    std::shared_ptr<LumetraPlugin::PresetControllerFactory> m_factory;
    std::unique_ptr<LumetraPlugin::PresetModel> m_model;
    LumetraPlugin::UserPresetStore m_store;
};

} // namespace LumetraTest
