// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/EffectDescription.h"

#include <vector>

namespace LumetraEditor {

/// Puts the engine's tables of parameters into words for modules and their users.
class EffectDescriptions
{
public:
    /// All effects of the engine in its order, in the user's language of this moment.
    static std::vector<EffectDescription> Make();
    /// The title of a parameter in the user's language. A name that nobody has put into words is
    /// taken apart at its capital letters, and what is left of it stays English.
    static QString MakeTitle(const std::string& effectID, const std::string& parameter);
};

} // namespace LumetraEditor
