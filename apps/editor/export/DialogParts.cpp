// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/DialogParts.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QStyle>
#include <QVariant>

namespace LumetraEditor {

QPushButton* AddAccentButton(QDialogButtonBox& box, const QString& text, const char* name)
{
    QPushButton* const button = Named(box.addButton(text, QDialogButtonBox::AcceptRole), name);
    button->setProperty("accent", true);
    button->style()->unpolish(button); // the box has polished the button already
    button->style()->polish(button);
    button->setDefault(true);
    return button;
}

} // namespace LumetraEditor
