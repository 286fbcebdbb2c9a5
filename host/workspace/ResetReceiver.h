// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Lumetra/IWorkspaceController.h"

namespace LumetraHost {

class Drawer;

/// Takes packages off the drawer.
class ResetReceiver : public Zorvik::Lumetra::IResetReceiver
{
public:
    /// `drawer` is kept by reference.
    explicit ResetReceiver(Drawer& drawer);

    void ResetPackage(const Zorvik::Quindle::ResetSettings& request) override;

private:
    Drawer& m_drawer;
};

} // namespace LumetraHost
