// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Command.h"

namespace LumetraCli {

/// Checks catalogues, the user's stores and LUT files. Reports each error with file, line and
/// column.
class CheckCommand : public Command
{
public:
    QString GetName() const override;
    QString GetSummary() const override;

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

} // namespace LumetraCli
