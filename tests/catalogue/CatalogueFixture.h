// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EffectPresets/EffectPresetModel.h"
#include "core/PresetSession.h"
#include "drawer/Drawer.h"
#include "host/drawer/DrawnPicture.h"
#include "image/Image.h"
#include "workspace/WorkspaceController.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace LumetraPlugin {

/// The shipped catalogue in a model, without presets of the user's.
class CatalogueFixture : public testing::Test
{
protected:
    using Model = Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

    void SetUp() override { ASSERT_EQ(session.Load({GetFile()}, nullptr), QStringList()); }

    std::vector<QModelIndex> Presets(int group)
    {
        std::vector<QModelIndex> presets;
        const QModelIndex parent = session.GetModel().index(group, 0);
        for (int row = 0; row < session.GetModel().rowCount(parent); ++row)
            presets.push_back(session.GetModel().index(row, 0, parent));
        return presets;
    }

    /// The row of the group with this name.
    int GroupNamed(const QString& name)
    {
        for (int row = 0; row < session.GetModel().rowCount(); ++row)
            if (session.GetModel().index(row, 0).data(Model::PresetNameRole).toString() == name)
                return row;
        ADD_FAILURE() << "expected a group named " << name.toStdString();
        return 0;
    }

    /// All presets, in the order of the file.
    std::vector<QModelIndex> Presets()
    {
        std::vector<QModelIndex> all;
        for (int group = 0; group < session.GetModel().rowCount(); ++group) {
            for (const QModelIndex& preset : Presets(group))
                all.push_back(preset);
        }
        return all;
    }

    /// The photo with the preset on it at the intensity that it starts with.
    LumetraHost::Image Draw(const QModelIndex& preset, const LumetraHost::Image& photo)
    {
        session.OpenPhoto(photo);
        session.GetModel().setData(preset, true, Model::AppliedRole);
        return LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer());
    }

    static std::string NameOf(const QModelIndex& preset)
    {
        return preset.parent().data(Model::PresetNameRole).toString().toStdString() + ", " +
               preset.data(Model::PresetNameRole).toString().toStdString();
    }

    PresetSession session{"Looks"};

public:
    static QString GetFile() { return QStringLiteral(LUMETRA_SHIPPED_CATALOGUE); }
};

} // namespace LumetraPlugin
