// SPDX-License-Identifier: GPL-2.0-or-later
#include "PresetsPlugin.h"

#include "panel/PresetsPanel.h"
#include "panel/appearance/PanelTranslation.h"

namespace LumetraPlugin {

QString PresetsPlugin::GetTitle() const
{
    PanelTranslation::Follow();
    return tr("Looks");
}

std::unique_ptr<LumetraEditor::IEditorPanel>
PresetsPlugin::CreatePanel(LumetraEditor::IEditor& editor)
{
    PanelTranslation::Follow();
    return std::make_unique<PresetsPanel>(editor, PanelFiles::Find());
}

} // namespace LumetraPlugin
