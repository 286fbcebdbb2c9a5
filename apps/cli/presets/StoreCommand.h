// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/Command.h"
#include "presets/PresetRows.h"

namespace Zorvik::Lumetra::LumetraPresets {
class EffectPresetModel;
}

namespace LumetraPlugin {
class PresetSession;
}

namespace LumetraCli {

/// A command that changes the user's presets or favourites through the model, and saves them.
class StoreCommand : public Command
{
public:
    using Command::Command;

    /// Saves to the session's store; reports errors.
    static ExitCode Save(LumetraPlugin::PresetSession& session, Console& console);
    /// `name`, trimmed. UsageError for one that no preset of the user's may have (1 to 50
    /// characters without control characters), or that one has already.
    static QString NewName(const Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model,
                           const QString& name);

protected:
    using Rows = std::vector<PresetRow>;

    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;

    /// Adds the command's own arguments and options.
    virtual void AddArguments(OptionTable& options) const = 0;
    /// Changes the model; returns a line for each change. UsageError before anything changed.
    virtual QStringList Edit(const QCommandLineParser& parser,
                             LumetraPlugin::PresetSession& session, const Rows& rows) const = 0;

    /// Finds a preset among `rows` by name or id. UsageError.
    static PresetRow FindPreset(const Rows& rows, const QString& nameOrId);
    /// Finds a preset among the user's own; UsageError for one of a catalogue.
    static PresetRow FindUsersPreset(const Rows& rows, const QString& nameOrId);
};

} // namespace LumetraCli
