// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/foreign/ForeignLook.h"
#include "core/foreign/mapping/LookStep.h"

#include <QString>

#include <vector>

namespace LumetraPlugin {

class LookBuilder;

/// How well a setting is carried over.
enum class Carry
{
    Exact,       ///< the effect does by its formula what the setting says
    Approximate, ///< the effect is like it
    LeftOut,     ///< it has no effect here and is named
    Silent       ///< it says nothing about colours, or only how another setting is meant
};

/// What becomes of one setting. The rule reads the value and gives effects their numbers; numbers
/// go through `scale` where the rule is one of those that scale.
struct MappingRow
{
    using Rule = void (*)(const MappingRow& row, const ForeignValue& value, LookBuilder& look);

    QString setting;
    Carry carry = Carry::Silent;
    Rule rule = nullptr;                ///< null for what is not carried
    LookStep step = LookStep::Exposure; ///< of the effect that the rule writes into
    std::string parameter = {};         ///< of that effect
    double scale = 1;
    double neutral = 0; ///< the number at which the setting changes nothing
    QString note = {};  ///< for the manual, in Markdown
};

/// The one list of foreign settings that this program knows. The page docs/import.md is written out
/// of it.
class MappingTable
{
public:
    static const std::vector<MappingRow>& GetRows();
    /// Null for a setting that is not in the list.
    static const MappingRow* Find(const QString& setting);
    /// True when the list has settings of that section of raw profiles.
    static bool HasSection(const QString& section);

    /// The tables of the manual in Markdown: what is carried, what is left out, what is silent.
    static QString MakePage();
};

} // namespace LumetraPlugin
