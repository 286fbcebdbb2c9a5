// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "PresetUse.h"

#include <QCommandLineParser>

namespace LumetraCli {

/// The options that say which preset is meant and with which values.
class PresetOptions
{
public:
    /// --preset, described by `help`, and its `valueName` there; --intensity and --set.
    static void Add(QCommandLineParser& parser, const QString& help, const QString& valueName);
    /// --intensity and --set alone, for commands that are told the preset otherwise.
    static void AddValues(QCommandLineParser& parser);

    /// UsageError unless --preset was given once.
    static QString ReadPreset(const QCommandLineParser& parser);
    /// The preset with the values that were given. UsageError and Exception: see PresetUse.
    static PresetUse MakeUse(const QCommandLineParser& parser, const PresetRow& preset);
};

} // namespace LumetraCli
