// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportLutCommand.h"

#include "CatalogueOptions.h"
#include "Console.h"
#include "EffectPresets/EffectPresetModel.h"
#include "PresetUse.h"
#include "UsageError.h"
#include "Zorvik/Exception.h"
#include "core/PresetSession.h"
#include "lut/LookExport.h"
#include "storage/CheckedFileWriter.h"

#include <QFileInfo>

namespace LumetraCli {
namespace {

using LumetraHost::LookExport;

constexpr int DefaultSize = 33;

const QString PresetOption = QStringLiteral("preset");
const QString IntensityOption = QStringLiteral("intensity");
const QString SetOption = QStringLiteral("set");
const QString SizeOption = QStringLiteral("size");
const QString OutputOption = QStringLiteral("output");
const QString OverwriteOption = QStringLiteral("overwrite");

QString ReadPreset(const QCommandLineParser& parser)
{
    if (parser.positionalArguments().size() > 1)
        throw UsageError(
            QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments()[1]));
    if (!parser.isSet(PresetOption))
        throw UsageError(QStringLiteral("expected one --preset, found none"));
    return parser.value(PresetOption);
}

QString ReadOutput(const QCommandLineParser& parser)
{
    const QString output = parser.value(OutputOption);
    const QFileInfo info(output);
    if (info.suffix().compare(QLatin1String("cube"), Qt::CaseInsensitive) != 0)
        throw UsageError(QStringLiteral("--output: expected the name of a .cube file, found \"%1\"")
                             .arg(output));
    if (info.exists() && !parser.isSet(OverwriteOption))
        throw UsageError(
            QStringLiteral("--output: \"%1\" exists; --overwrite replaces it").arg(output));
    return output;
}

} // namespace

QString ExportLutCommand::GetName() const
{
    return QStringLiteral("export-lut");
}

QString ExportLutCommand::GetSummary() const
{
    return QStringLiteral("Writes a preset as a .cube file for other programs.");
}

void ExportLutCommand::AddOptions(QCommandLineParser& parser) const
{
    parser.addOptions({
        {{QStringLiteral("p"), PresetOption},
         QStringLiteral("The preset, by name or id."),
         QStringLiteral("name|id")},
        {{QStringLiteral("i"), IntensityOption},
         QStringLiteral("Intensity within the preset's range."),
         QStringLiteral("number")},
        {SetOption, QStringLiteral("Moves an extra slider. May be given more than once."),
         QStringLiteral("slider=value")},
        {SizeOption, QStringLiteral("Points along each axis, 2 to 129."), QStringLiteral("number"),
         QString::number(DefaultSize)},
        {{QStringLiteral("o"), OutputOption},
         QStringLiteral("The file to write, .cube."),
         QStringLiteral("file")},
        {OverwriteOption, QStringLiteral("Replaces an existing file.")},
    });
    CatalogueOptions::Add(parser);
}

ExitCode ExportLutCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QString preset = ReadPreset(parser);
    const int size =
        ReadNumber(parser, SizeOption, LookExport::SmallestSize, LookExport::LargestSize);
    const QString output = ReadOutput(parser);
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    const PresetUse use(PresetRows::Find(PresetRows::Read(session->GetModel()), preset),
                        parser.isSet(IntensityOption) ? parser.value(IntensityOption) : QString(),
                        parser.values(SetOption));
    try {
        const auto table = LookExport::MakeTable(use.GetLook(*session), size);
        LumetraHost::CheckedFileWriter::Write(output,
                                              LookExport::ToCubeFile(table, use.GetPreset().name));
    } catch (const Zorvik::Exception& error) {
        console.Report(QStringLiteral("\"%1\": %2")
                           .arg(use.GetPreset().name, QString::fromUtf8(error.what())));
        return ExitCode::SomeFailed;
    }
    console.PrintLine(output);
    return ExitCode::Done;
}

} // namespace LumetraCli
