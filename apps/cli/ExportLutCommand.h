// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Command.h"

namespace LumetraCli {

/// Writes a preset as a .cube file for other programs. Refused for presets with effects that look
/// at the place or at neighbouring pixels.
class ExportLutCommand : public Command
{
public:
    QString GetName() const override;
    QString GetSummary() const override;

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

} // namespace LumetraCli
