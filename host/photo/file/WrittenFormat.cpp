// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/WrittenFormat.h"

#include <QtGlobal>

#include <algorithm>

namespace LumetraHost {

const WrittenFormat& GetWrittenFormat(PhotoFormat format)
{
    const auto* const found =
        std::find_if(WrittenFormats.begin(), WrittenFormats.end(),
                     [format](const WrittenFormat& entry) { return entry.format == format; });
    Q_ASSERT(found != WrittenFormats.end());
    return *found;
}

} // namespace LumetraHost
