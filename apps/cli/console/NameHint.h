// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace LumetraCli {

/// ", did you mean "x"?" in the user's language, about the name among `names` that is nearest to
/// `found`; empty when none is near.
QString MakeNameHint(const QString& found, const std::vector<std::string>& names);

} // namespace LumetraCli
