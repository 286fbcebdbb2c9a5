// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "StoreCommand.h"

namespace LumetraCli {

/// Saves a preset, tuned or as it is, under a new name among the user's own.
class SaveCommand : public StoreCommand
{
public:
    QString GetName() const override;
    QString GetSummary() const override;

protected:
    void AddArguments(QCommandLineParser& parser) const override;
    QStringList Edit(const QCommandLineParser& parser, LumetraPlugin::PresetSession& session,
                     const Rows& rows) const override;
};

} // namespace LumetraCli
