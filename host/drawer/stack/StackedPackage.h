// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/stack/PictureRecipe.h"

#include <string>

namespace LumetraHost {

/// A package in its place in a drawer, open or committed.
struct StackedPackage
{
    SharedSettings settings; ///< never null
    std::string origin;      ///< who has applied it last; empty: unknown
    bool isOn = true;        ///< false: it keeps its place, and no picture shows it
};

} // namespace LumetraHost
