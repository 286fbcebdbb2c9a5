// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/AdjustPlugin.h"

#include "adjust/AdjustPanel.h"
#include "adjust/AdjustTranslation.h"

namespace LumetraAdjust {

QString AdjustPlugin::GetTitle() const
{
    AdjustTranslation::Follow();
    return tr("Adjust");
}

std::unique_ptr<LumetraEditor::IEditorPanel>
AdjustPlugin::CreatePanel(LumetraEditor::IEditor& editor)
{
    AdjustTranslation::Follow();
    return std::make_unique<AdjustPanel>(editor);
}

} // namespace LumetraAdjust
