// SPDX-License-Identifier: GPL-2.0-or-later
#include "many/FollowSwitch.h"

#include <QEvent>

namespace LumetraEditor {

FollowSwitch::FollowSwitch(QWidget* parent) : QCheckBox(parent)
{
    setObjectName(QStringLiteral("followSwitch"));
    hide();
}

void FollowSwitch::SetCount(int count)
{
    m_count = count;
    ShowText();
    setVisible(count > 1);
}

void FollowSwitch::changeEvent(QEvent* event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ShowText();
}

void FollowSwitch::ShowText()
{
    setText(tr("Changes go to all %1 photos").arg(m_count));
    setToolTip(tr("Looks and sliders change all selected photos, in one step that can be undone.\n"
                  "Switched off, they change the photo that is shown."));
}

} // namespace LumetraEditor
