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
    /// "White balance"; the id itself for an effect that this program does not know by name.
    static QString GetEffectName(const std::string& effectID);
    /// An effect's unit, a group's name or a slider's title: those of the engine and of the shipped
    /// catalogue in the user's language, all others as they are.
    static QString Translate(const std::string& text);
    /// The effects that change anything, in the order in which they are drawn, and the extra
    /// sliders; rich text.
    static QString GetToolTip(PresetController& preset);
};

} // namespace LumetraPlugin
