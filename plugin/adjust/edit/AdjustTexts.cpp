// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/edit/AdjustTexts.h"

#include <algorithm>

namespace LumetraAdjust {

using LumetraEditor::EffectDescription;
using LumetraEditor::ParameterDescription;

const ParameterDescription* AdjustTexts::Find(const EffectDescription& effect,
                                              const std::string& parameter)
{
    const auto found =
        std::find_if(effect.parameters.begin(), effect.parameters.end(),
                     [&](const ParameterDescription& one) { return one.name == parameter; });
    return found == effect.parameters.end() ? nullptr : &*found;
}

QString AdjustTexts::MakeTitle(const EffectDescription& effect, const std::string& parameter)
{
    const ParameterDescription* const found = Find(effect, parameter);
    if (!found || effect.parameters.size() == 1 || parameter == "amount")
        return effect.title;
    return QStringLiteral("%1: %2").arg(effect.title, found->title);
}

QString AdjustTexts::MakeShortTitle(const EffectDescription& effect,
                                    const ParameterDescription& parameter)
{
    return effect.parameters.size() == 1 ? effect.title : parameter.title;
}

} // namespace LumetraAdjust
