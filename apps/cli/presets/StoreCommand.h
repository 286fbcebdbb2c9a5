// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/Command.h"
#include "presets/PresetRows.h"

namespace LumetraPlugin {
class PresetModel;
class PresetSession;
} // namespace LumetraPlugin

namespace LumetraCli {

/// A command that changes the user's presets or favourites through the model, and saves them.
class StoreCommand : public Command
{
public:
    using Command::Command;

    /// Saves to the session's store; reports errors.
    static ExitCode Save(LumetraPlugin::PresetSession& session, Console& console);
    /// Adds the option with which NewName() takes names of the catalogue.
    static void AddNameOption(OptionTable& options);
    static bool SharesCatalogueNames(const QCommandLineParser& parser);
    /// `name`, trimmed, for `renamed` or, where that is invalid, for a new preset. UsageError for a
    /// name that no preset of the user's may have (1 to 50 characters without control characters),
    /// that one of them has already, or that a look has, in any case of letters and in the
    /// catalogue's or the user's language, unless the option allows that.
    static QString NewName(const QCommandLineParser& parser,
                           const LumetraPlugin::PresetModel& model, const QString& name,
                           const QModelIndex& renamed = {});

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
