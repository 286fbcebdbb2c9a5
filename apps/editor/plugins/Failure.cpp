// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/Failure.h"

#include "storage/ErrorText.h"

#include <exception>

namespace LumetraEditor {

QString Failure::Describe()
{
    try {
        throw;
    } catch (const std::exception& error) {
        const QString text = LumetraHost::ErrorText::Show(error);
        return text.isEmpty() ? tr("it gives no reason") : text;
    } catch (...) {
        return tr("it gives no reason");
    }
}

} // namespace LumetraEditor
