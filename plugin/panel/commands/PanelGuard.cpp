// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/PanelGuard.h"

#include "LumetraEditor/IEditor.h"
#include "storage/ErrorText.h"

#include <exception>

namespace LumetraPlugin {

bool PanelGuard::Run(const std::function<void()>& work)
{
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        m_editor.ShowMessage(LumetraHost::ErrorText::Show(error));
    } catch (...) {
        m_editor.ShowMessage(tr("This did not work, and nothing says why."));
    }
    return false;
}

} // namespace LumetraPlugin
