// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace LumetraHost {

/// How closely an effect looks at the files that it needs.
enum class ContentCheck
{
    Presence, ///< there, and of the expected size; nothing is read
    Content   ///< read, undamaged, and kept in memory from then on
};

/// An effect that keeps a part of its settings in files beside the one that it was read from.
class IStoredElsewhere
{
public:
    /// Empty when everything that the effect needs is there; else a sentence that names the file
    /// and what was expected of it. Never throws for the files' sake.
    virtual std::string FindProblem(ContentCheck check) const = 0;

protected:
    ~IStoredElsewhere() = default;
};

} // namespace LumetraHost
