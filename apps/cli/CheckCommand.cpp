// SPDX-License-Identifier: GPL-2.0-or-later
#include "CheckCommand.h"

#include "Console.h"
#include "UsageError.h"
#include "core/PresetSession.h"

namespace LumetraCli {

using LumetraHost::CatalogueReport;

QString CheckCommand::GetName() const
{
    return QStringLiteral("check");
}

QString CheckCommand::GetSummary() const
{
    return QStringLiteral("Checks catalogue files.");
}

void CheckCommand::AddOptions(QCommandLineParser& parser) const
{
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("Catalogue files, taken together."),
                                 QStringLiteral("FILE..."));
}

/// The reports are the data of this command: stdout.
ExitCode CheckCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList files = parser.positionalArguments().mid(1);
    if (files.isEmpty())
        throw UsageError(QStringLiteral("expected at least one catalogue file"));
    LumetraPlugin::PresetSession session("lumetra.check");
    session.Load(files, nullptr);
    bool hasErrors = false;
    for (const CatalogueReport& report : session.GetReports()) {
        console.PrintLine(QString::fromStdString(report.ToText()));
        hasErrors = hasErrors || report.severity == CatalogueReport::Severity::Error;
    }
    return hasErrors ? ExitCode::SomeFailed : ExitCode::Done;
}

} // namespace LumetraCli
