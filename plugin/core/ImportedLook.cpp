// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/ImportedLook.h"

namespace LumetraPlugin {

QString ImportRemark::ToText() const
{
    QString text = setting;
    if (!value.isEmpty())
        text += QLatin1Char(' ') + value;
    return reason.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, reason);
}

} // namespace LumetraPlugin
