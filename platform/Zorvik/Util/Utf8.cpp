// SPDX-License-Identifier: MIT
#include "Zorvik/Util/Utf8.h"

namespace Zorvik::Util {

QString Utf8ToQString(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace Zorvik::Util
