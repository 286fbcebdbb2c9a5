// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

namespace LumetraPlugin {

class PresetController;

/// What a preset does, in words for the user.
class EffectTexts
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::EffectTexts)

public:
    /// "White balance"; the id itself for an effect that this program does not know by name.
    static QString GetEffectName(const std::string& effectID);
    /// The unit of an effect's parameter in the user's language; one that this program does not
    /// know as it is.
    static QString GetUnit(const std::string& unit);
    /// A group's name or a slider's title: those of the shipped catalogue in the user's language,
    /// all others as they are.
    static QString Translate(const std::string& title);
    /// The effects that change anything, in the order in which they are drawn, and the extra
    /// sliders; rich text.
    static QString GetToolTip(PresetController& preset);
};

} // namespace LumetraPlugin
