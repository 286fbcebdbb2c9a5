// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/PanelGuard.h"

#include "LumetraEditor/IEditor.h"

#include <exception>

namespace LumetraPlugin {

bool PanelGuard::Run(const std::function<void()>& work)
{
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        // A call stack follows the first line.
        m_editor.ShowMessage(QString::fromUtf8(error.what()).section(QLatin1Char('\n'), 0, 0));
    } catch (...) {
        m_editor.ShowMessage(tr("This did not work, and nothing says why."));
    }
    return false;
}

} // namespace LumetraPlugin
