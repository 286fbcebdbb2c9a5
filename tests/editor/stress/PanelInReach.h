// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"
#include "panel/PresetsPanel.h"

namespace LumetraTest {

/// The presets panel as the module makes it, but within reach of a test.
class PanelInReach : public LumetraEditor::IEditorPlugin
{
public:
    /// The panel made last; it is the editor's.
    LumetraPlugin::PresetsPanel& GetPanel() { return *m_panel; }

    QString GetTitle() const override { return QStringLiteral("Looks"); }
    std::unique_ptr<LumetraEditor::IEditorPanel>
    CreatePanel(LumetraEditor::IEditor& editor) override
    {
        auto panel = std::make_unique<LumetraPlugin::PresetsPanel>(
            editor, LumetraPlugin::PanelFiles::Find());
        m_panel = panel.get();
        return panel;
    }

private:
    LumetraPlugin::PresetsPanel* m_panel = nullptr;
};

} // namespace LumetraTest
