// SPDX-License-Identifier: GPL-2.0-or-later
#include "workspace/WorkspaceController.h"

namespace LumetraHost {

WorkspaceController::WorkspaceController() : m_resets(m_drawer) {}

} // namespace LumetraHost
