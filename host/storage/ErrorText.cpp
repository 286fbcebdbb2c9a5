// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/ErrorText.h"

namespace LumetraHost {

std::string ErrorText::FirstLine(const std::exception& error)
{
    const std::string text = error.what();
    return text.substr(0, text.find('\n'));
}

QString ErrorText::Show(const std::exception& error)
{
    return QString::fromStdString(FirstLine(error));
}

} // namespace LumetraHost
