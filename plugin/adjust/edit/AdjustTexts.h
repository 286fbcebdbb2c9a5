// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/EffectDescription.h"

#include <string>

namespace LumetraAdjust {

/// Words for the user about effects and their parameters.
namespace AdjustTexts {

/// The parameter with its effect, such as "Vignette: Size"; the effect alone where it has no other
/// parameter, or where the parameter is its amount.
QString MakeTitle(const LumetraEditor::EffectDescription& effect, const std::string& parameter);
/// The parameter without its effect; the effect where it has no other parameter.
QString MakeShortTitle(const LumetraEditor::EffectDescription& effect,
                       const LumetraEditor::ParameterDescription& parameter);
/// The parameter of that name; null when there is none.
const LumetraEditor::ParameterDescription* Find(const LumetraEditor::EffectDescription& effect,
                                                const std::string& parameter);

} // namespace AdjustTexts
} // namespace LumetraAdjust
