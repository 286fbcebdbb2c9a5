// SPDX-License-Identifier: GPL-2.0-or-later
#include "workspace/ResetReceiver.h"

#include "drawer/Drawer.h"

#include "Zorvik/Quindle/ResetSettings.h"

namespace LumetraHost {

ResetReceiver::ResetReceiver(Drawer& drawer) : m_drawer(drawer) {}

void ResetReceiver::ResetPackage(const Zorvik::Quindle::ResetSettings& request)
{
    m_drawer.ResetPackage(request.GetIndex());
}

} // namespace LumetraHost
