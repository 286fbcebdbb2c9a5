// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/UserDataForm.h"

namespace LumetraHost {

bool UserDataForm::IsOurs(const JsonObject& root) const
{
    if (const JsonValue* found = root.Find(KeyFormat)) {
        const auto* text = found->As<std::string>();
        return text && *text == format;
    }
    return isOursWithoutFormat && isOursWithoutFormat(root);
}

} // namespace LumetraHost
