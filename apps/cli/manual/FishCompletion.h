// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "manual/CommandList.h"

#include <QString>

namespace LumetraCli {

/// The completion of the command line in fish, as a script to be sourced or to be a file among
/// fish's completions. It asks the program for the names of presets when it needs them.
class FishCompletion
{
public:
    static QString Make(const CommandList& commands);
};

} // namespace LumetraCli
