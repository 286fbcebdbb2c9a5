// SPDX-License-Identifier: GPL-2.0-or-later
#include "style/EditorStyle.h"

#include <utility>

namespace LumetraHost {

using Zorvik::Lumetra::StyleProvider;
using Zorvik::Util::AlertBox;

QVariant EditorStyle::Option(StyleProvider::OptionKey key) const
{
    return key == StyleProvider::FillSlider ? QVariant(true) : QVariant();
}

void EditorStyle::StyleAlert(AlertBox& box, const Zorvik::Lumetra::ButtonList& buttons,
                             QMessageBox::StandardButton defaultButton)
{
    m_styledBox = &box;
    m_alertStyle = {buttons, defaultButton};
}

EditorStyle::AlertStyle EditorStyle::TakeAlertStyle(const AlertBox& box)
{
    if (std::exchange(m_styledBox, nullptr) != &box)
        return {};
    return std::exchange(m_alertStyle, {});
}

} // namespace LumetraHost
