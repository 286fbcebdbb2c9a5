// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Command.h"

namespace LumetraCli {

/// Shows all presets on one photo in one picture.
class SheetCommand : public Command
{
public:
    QString GetName() const override;
    QString GetSummary() const override;
    bool DrawsText() const override { return true; }

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

} // namespace LumetraCli
