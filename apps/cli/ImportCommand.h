// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Command.h"

namespace LumetraCli {

/// Makes presets of the user's own out of LUT files. A bad file does not keep the others out.
class ImportCommand : public Command
{
public:
    QString GetName() const override;
    QString GetSummary() const override;

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

} // namespace LumetraCli
