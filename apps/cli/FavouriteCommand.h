// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "StoreCommand.h"

namespace LumetraCli {

/// Marks presets as favourites, or takes the marks off.
class FavouriteCommand : public StoreCommand
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
