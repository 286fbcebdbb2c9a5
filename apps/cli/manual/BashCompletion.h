// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "manual/CommandList.h"

#include <QString>

namespace LumetraCli {

/// The completion of the command line in bash 4.4 or later, as a script to be sourced. It asks the
/// program for the names of presets when it needs them, and needs no other package.
class BashCompletion
{
public:
    static QString Make(const CommandList& commands);
};

} // namespace LumetraCli
