// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/Drawer.h"
#include "drawer/view/LiveView.h"

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

namespace LumetraBench {

/// A drawer with one package, which a view shows pixel by pixel, while a slider is dragged.
class SliderDrag
{
public:
    explicit SliderDrag(const LumetraHost::Image& photo);

    /// Puts the effects in the place of the last ones.
    void Apply(const Zorvik::Quindle::EffectList& effects);
    /// Drags the blend of the effects that were applied last. `amount`: 0 to 255.
    void Blend(int amount);
    /// Waits for the first frame of the present state.
    void WaitForFirstFrame();
    /// Waits for the exact one.
    void Rest();

private:
    LumetraHost::Drawer m_drawer;
    LumetraHost::LiveView m_view;
    bool m_isBlending = false;
    quint64 m_wanted = 0; ///< serial of the present state
};

} // namespace LumetraBench
