// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

namespace LumetraPlugin {

class PresetController;

/// Words for the user about what a preset does.
class EffectTexts
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::EffectTexts)

public:
    /// The effect's name, such as "White balance"; the id itself for an effect that this program
    /// does not know.
    static QString GetEffectName(const std::string& effectID);
    /// A unit, a group's name or a slider's title in the user's language, if it comes from the
    /// engine or the shipped catalogue; others are returned unchanged.
    static QString Translate(const std::string& text);
    /// The effects that change anything, in the order in which they are drawn, and the extra
    /// sliders; rich text.
    static QString GetToolTip(PresetController& preset);
};

} // namespace LumetraPlugin
