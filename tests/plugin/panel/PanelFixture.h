// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "TestEditor.h"
#include "core/PresetModel.h"
#include "image/Image.h"
#include "panel/PresetsPanel.h"

#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

namespace LumetraPlugin {
class PresetGrid;
class SliderRow;
} // namespace LumetraPlugin

namespace LumetraTest {

/// A panel with a small catalogue of two groups and an empty store, in the test editor with a
/// photo.
class PanelFixture : public testing::Test
{
protected:
    static constexpr int UserPage = 3;

    PanelFixture();
    ~PanelFixture() override;

    /// A new panel on the same files, as after a restart; the old one ends.
    void Restart();
    LumetraPlugin::PresetModel& Model();
    QModelIndex Preset(int group, int row);
    QModelIndex Named(const char* name);
    bool IsApplied(const char* name);

    template <class Widget>
    Widget& Find(const char* objectName)
    {
        auto* const widget = panel->GetWidget()->findChild<Widget*>(QLatin1String(objectName));
        EXPECT_TRUE(widget) << objectName;
        return *widget;
    }
    LumetraPlugin::PresetGrid& Grid(int page);
    /// Clicks on the preset's picture.
    void Click(const char* name);
    void ClickStar(const char* name);
    void Trigger(const char* action);
    /// Moves an extra slider's or the intensity's handle step by step, as a drag does.
    void Drag(const char* slider, std::initializer_list<int> values);
    /// Triggers the action and answers the name dialog that it opens.
    void TriggerAndType(const char* action, const QString& name);
    QString StoreText() const;
    /// Names of the presets that the page shows.
    QStringList Shown(int page);

    QTemporaryDir folder;
    LumetraPlugin::PanelFiles files;
    TestEditor editor;
    std::unique_ptr<LumetraPlugin::PresetsPanel> panel;
    const LumetraHost::Image photo;
};

} // namespace LumetraTest
