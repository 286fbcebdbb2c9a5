// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/EffectDescription.h"

#include <QCoreApplication>

#include <string>
#include <vector>

namespace LumetraAdjust {

/// Says which effect stands in which section of the panel, and in which order effects are drawn:
/// that of the panel, from top to bottom. Effects that are not named here, such as those of later
/// releases, stand at the end of the last section.
class SectionPlan
{
    Q_DECLARE_TR_FUNCTIONS(LumetraAdjust::SectionPlan)

public:
    static constexpr int Sections = 7;

    /// The section of an effect, from 0.
    static int Find(const std::string& effectID);
    static QString GetTitle(int section);
    /// Puts effects into the order in which they are drawn.
    static void Sort(std::vector<LumetraEditor::EffectDescription>& effects);
    /// True for effects that few users need: their controls are shut at first.
    static bool StartsShut(const std::string& effectID);
};

} // namespace LumetraAdjust
