// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/UsageError.h"
#include "core/PresetSession.h"
#include "lut/LookExport.h"
#include "output/OutputFile.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetOptions.h"
#include "storage/CheckedFileWriter.h"

namespace LumetraCli {
namespace {

using LumetraHost::LookExport;

constexpr int DefaultSize = 33;

const QString SizeOption = QStringLiteral("size");

/// Writes a preset as a .cube file for other programs. Refused for presets with effects that look
/// at the place or at neighbouring pixels.
class ExportLutCommand : public Command
{
public:
    ExportLutCommand()
        : Command(QStringLiteral("export-lut"),
                  QStringLiteral("Writes a preset as a .cube file for other programs."))
    {
    }

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ExportLutCommand::AddOptions(QCommandLineParser& parser) const
{
    PresetOptions::Add(parser, QStringLiteral("The preset, by name or id."),
                       QStringLiteral("name|id"));
    parser.addOption({SizeOption, QStringLiteral("Points along each axis, 2 to 129."),
                      QStringLiteral("number"), QString::number(DefaultSize)});
    OutputFile::AddOptions(parser, QStringLiteral("The file to write, .cube."));
    CatalogueOptions::Add(parser);
}

ExitCode ExportLutCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    Arguments(parser, 0, 0);
    const QString preset = PresetOptions::ReadPreset(parser);
    const int size =
        ReadNumber(parser, SizeOption, LookExport::SmallestSize, LookExport::LargestSize);
    const QString output =
        OutputFile::Read(parser, QStringLiteral("cube"), QStringLiteral(".cube"));
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    const PresetUse use = PresetOptions::MakeUse(
        parser, PresetRows::Find(PresetRows::Read(session->GetModel()), preset));
    try {
        const auto table = LookExport::MakeTable(use.GetLook(*session), size);
        LumetraHost::CheckedFileWriter::Write(output,
                                              LookExport::ToCubeFile(table, use.GetPreset().name));
    } catch (const Zorvik::Exception& error) {
        console.Report(QStringLiteral("\"%1\": %2")
                           .arg(use.GetPreset().shown, QString::fromUtf8(error.what())));
        return ExitCode::SomeFailed;
    }
    console.PrintLine(output);
    return ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeExportLutCommand()
{
    return std::make_unique<ExportLutCommand>();
}

} // namespace LumetraCli
