// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/OptionTable.h"
#include "exporting/batch/OutputPlan.h"

#include <QCommandLineParser>

#include <vector>

namespace LumetraCli {

class LookOptions;

/// The options of apply that say where files go: --output, --overwrite and --skip.
class OutputOptions
{
public:
    static void Add(OptionTable& options);

    /// UsageError for a template that cannot be, or does not fit the looks.
    OutputOptions(const QCommandLineParser& parser, const LookOptions& looks);

    /// The names of the files; the usual ones for the standard output, which nobody asks for.
    const LumetraHost::OutputTemplate& GetNames() const { return m_names; }
    const LumetraHost::OutputRules& GetRules() const { return m_rules; }
    /// The photo goes to the standard output.
    bool IsPiped() const { return m_isPiped; }

    /// UsageError when the standard input or output is asked to take more than one photo with one
    /// look, when it is a terminal, and when another option prints to it.
    void CheckPipes(const QCommandLineParser& parser,
                    const std::vector<LumetraHost::PhotoInput>& photos,
                    const LookOptions& looks) const;

private:
    bool m_isPiped;
    LumetraHost::OutputTemplate m_names;
    LumetraHost::OutputRules m_rules;
};

} // namespace LumetraCli
