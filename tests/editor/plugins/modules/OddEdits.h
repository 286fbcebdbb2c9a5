// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Core/Property.h"

#include <string>

/// Edits as no module may give them.
class OddEdits
{
public:
    /// Puts what `mode` names into the edit, for example "not finite", and returns it, or what is
    /// given in its place. An unknown mode changes nothing.
    static Zorvik::Core::Property::Ptr Spoil(const Zorvik::Core::Property::Ptr& edit,
                                             const std::string& mode);
};
