// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/Command.h"

#include <vector>

namespace LumetraCli {

/// The commands that users see, in the order of the help.
using CommandList = std::vector<const Command*>;

} // namespace LumetraCli
