// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/NameHint.h"

#include "catalogue/NearestName.h"
#include "console/Text.h"

namespace LumetraCli {

QString MakeNameHint(const QString& found, const std::vector<std::string>& names)
{
    const std::string nearest = LumetraHost::NearestName(found.toStdString(), names);
    if (nearest.empty())
        return {};
    return Text::tr(", did you mean \"%1\"?").arg(QString::fromStdString(nearest));
}

} // namespace LumetraCli
