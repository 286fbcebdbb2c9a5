// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QModelIndex>
#include <QString>
#include <QStringList>

namespace LumetraPlugin {

class PresetModel;

/// The effects of presets that a catalogue lists without them: a JSON object with "effects" as in a
/// catalogue, in a file "STORE ID/RESOURCE" of a resource folder.
class PresetResource
{
public:
    /// The effects in the file. Exception with file and place when it cannot be read, has no
    /// effects, or one that this program cannot draw.
    static Zorvik::Quindle::EffectsSettings Read(const QString& path);

    /// The path of the preset's resource below a resource folder; empty for a preset without one,
    /// and for names that lead out of that folder.
    static QString GetPlace(const PresetModel& model, const QModelIndex& preset);
    /// The file in the first of the folders that has it; empty when none has.
    static QString Find(const PresetModel& model, const QModelIndex& preset,
                        const QStringList& folders);
    /// Tries to hand its resource to a preset without effects, and returns why it still has none:
    /// the file is missing, with the place where it is expected, or cannot be used. Empty for a
    /// preset that has its effects.
    static QString FindFault(PresetModel& model, const QModelIndex& preset,
                             const QStringList& folders);
    /// Hands over all resources that are there. Returns a sentence for each that cannot be used.
    static QStringList FetchAll(PresetModel& model, const QStringList& folders);
};

} // namespace LumetraPlugin
