// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Command.h"

namespace LumetraCli {

/// Lists groups and presets with their ids, intensities and sliders.
class ListCommand : public Command
{
public:
    QString GetName() const override;
    QString GetSummary() const override;

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

} // namespace LumetraCli
