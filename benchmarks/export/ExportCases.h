// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

#include <string>

namespace LumetraBench {

/// Carries out one case, in a process of its own. `files`: source and target, with "-each" pairs of
/// them; "apply-parts" writes JSON to its target. False for an unknown name.
bool RunCase(const std::string& name, const QStringList& files);

} // namespace LumetraBench
