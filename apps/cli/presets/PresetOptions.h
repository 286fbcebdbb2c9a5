// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/OptionTable.h"
#include "presets/PresetUse.h"

#include <QCommandLineParser>

namespace LumetraCli {

/// The options that choose a preset and its values.
class PresetOptions
{
public:
    /// Adds --preset, described by `help`, with its `valueName`; --intensity and --set.
    static void Add(OptionTable& options, const QString& help, const QString& valueName);
    /// Adds --intensity and --set alone, for commands that get the preset as an argument.
    static void AddValues(OptionTable& options);

    /// The value of --preset. UsageError unless it was given once.
    static QString ReadPreset(const QCommandLineParser& parser);
    /// The preset with the values that were given. UsageError and Exception: see PresetUse.
    static PresetUse MakeUse(const QCommandLineParser& parser, const PresetRow& preset);
};

} // namespace LumetraCli
