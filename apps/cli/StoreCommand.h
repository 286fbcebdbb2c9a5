// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Command.h"
#include "PresetRows.h"

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
    /// Saves to the session's store; reports what is wrong.
    static ExitCode Save(LumetraPlugin::PresetSession& session, Console& console);
    /// `name` as a user's preset may be called: trimmed, 1 to 50 characters without control
    /// characters, not yet taken.
    /// UsageError.
    static QString NewName(const Zorvik::Lumetra::LumetraPresets::EffectPresetModel& model,
                           const QString& name);

protected:
    using Rows = std::vector<PresetRow>;

    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;

    /// The command's own arguments and options.
    virtual void AddArguments(QCommandLineParser& parser) const = 0;
    /// Changes the model; returns what was done, a line each. UsageError before anything changed.
    virtual QStringList Edit(const QCommandLineParser& parser,
                             LumetraPlugin::PresetSession& session, const Rows& rows) const = 0;

    /// Finds a preset among `rows` by name or id. UsageError.
    static PresetRow FindPreset(const Rows& rows, const QString& nameOrId);
    /// The same among the user's own presets; UsageError for one of a catalogue.
    static PresetRow FindUsersPreset(const Rows& rows, const QString& nameOrId);
};

} // namespace LumetraCli
