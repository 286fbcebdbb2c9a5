// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/ILookKeeper.h"
#include "core/PresetModel.h"

#include <QCoreApplication>
#include <QStringList>

namespace LumetraPlugin {

class PresetControllerFactory;

/// A look that another module hands over, made a preset of the user.
class HandedLook
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::HandedLook)

public:
    /// A sentence for the user about the first thing that no preset can have, or empty. `taken` are
    /// the names of the user's presets.
    static QString FindFault(const LumetraEditor::NewLook& look, const QStringList& taken);
    /// The preset, which no model has yet. The look has no fault.
    static PresetModel::PresetPtr MakePreset(const LumetraEditor::NewLook& look,
                                             PresetControllerFactory& factory);
};

} // namespace LumetraPlugin
