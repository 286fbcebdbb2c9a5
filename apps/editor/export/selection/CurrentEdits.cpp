// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/CurrentEdits.h"

namespace LumetraEditor {

CurrentEdits::CurrentEdits(const SettleEdit& settle)
    : m_saved(LumetraHost::LookLayers()), m_settle(settle)
{
}

LumetraHost::PhotoLook CurrentEdits::Get(const QString& photo) const
{
    if (m_settle)
        m_settle(photo);
    return m_saved.Get(photo);
}

} // namespace LumetraEditor
