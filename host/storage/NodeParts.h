// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// A read-only view of the node in which some of its keys are missing. It keeps the places that the
/// node's own errors name.
Zorvik::Brassel::ConstSerializerPtr HideKeys(const Zorvik::Brassel::ConstSerializerPtr& node,
                                             const std::vector<std::string>& keys);

} // namespace LumetraHost
