// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/Failure.h"

#include <exception>

namespace LumetraEditor {

QString Failure::Describe()
{
    try {
        throw;
    } catch (const std::exception& error) {
        // A call stack may follow the first line.
        const QString text = QString::fromUtf8(error.what()).section(QLatin1Char('\n'), 0, 0);
        return text.isEmpty() ? tr("it gives no reason") : text;
    } catch (...) {
        return tr("it gives no reason");
    }
}

} // namespace LumetraEditor
