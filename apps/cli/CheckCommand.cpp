// SPDX-License-Identifier: GPL-2.0-or-later
#include "CheckCommand.h"

#include "Console.h"
#include "UsageError.h"
#include "Zorvik/Exception.h"
#include "core/LutImport.h"
#include "core/PresetSession.h"
#include "lut/LutReader.h"

#include <QRegularExpression>

namespace LumetraCli {

namespace {

using LumetraHost::CatalogueReport;

bool CheckCatalogues(LumetraPlugin::PresetSession& session, const QStringList& files,
                     Console& console)
{
    session.Load(files, nullptr);
    bool isGood = true;
    for (const CatalogueReport& report : session.GetReports()) {
        console.PrintLine(QString::fromStdString(report.ToText()));
        isGood = isGood && report.severity != CatalogueReport::Severity::Error;
    }
    return isGood;
}

/// "file:line: message" or "file: message" with "error: " in front of the message.
QString MarkError(const QString& file, const QString& description)
{
    const QString pattern = QStringLiteral("^(%1(:\\d+)?: )").arg(QRegularExpression::escape(file));
    QString text = description;
    return text.replace(QRegularExpression(pattern), QStringLiteral("\\1error: "));
}

bool CheckLuts(const QStringList& files, Console& console)
{
    bool isGood = true;
    for (const QString& file : files)
        try {
            LumetraHost::LutReader::Read(file);
        } catch (const Zorvik::Exception& error) {
            console.PrintLine(MarkError(file, QString::fromUtf8(error.what())));
            isGood = false;
        }
    return isGood;
}

} // namespace

QString CheckCommand::GetName() const
{
    return QStringLiteral("check");
}

QString CheckCommand::GetSummary() const
{
    return QStringLiteral("Checks catalogues and LUT files.");
}

void CheckCommand::AddOptions(QCommandLineParser& parser) const
{
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("Catalogue files, taken together, and LUT files."),
                                 QStringLiteral("FILE..."));
}

/// The reports are the data of this command: stdout.
ExitCode CheckCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList files = parser.positionalArguments().mid(1);
    if (files.isEmpty())
        throw UsageError(QStringLiteral("expected at least one catalogue or LUT file"));
    QStringList catalogues, luts;
    for (const QString& file : files)
        (LumetraPlugin::LutImport::IsLutName(file, true) ? luts : catalogues).append(file);
    LumetraPlugin::PresetSession session("lumetra.check");
    const bool areCataloguesGood = CheckCatalogues(session, catalogues, console);
    const bool areLutsGood = CheckLuts(luts, console);
    return areCataloguesGood && areLutsGood ? ExitCode::Done : ExitCode::SomeFailed;
}

} // namespace LumetraCli
