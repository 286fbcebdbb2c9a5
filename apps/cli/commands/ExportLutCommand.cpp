// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/LutExport.h"
#include "core/PresetSession.h"
#include "lut/LookExport.h"
#include "lut/LutFormat.h"
#include "lut/LutWriter.h"
#include "output/OutputFile.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetOptions.h"

#include <boost/current_function.hpp>

#include <optional>
#include <string>
#include <vector>

namespace LumetraCli {
namespace {

using LumetraHost::LookExport;
using LumetraHost::LutFormat;
using LumetraHost::LutWriter;
using LumetraPlugin::LutExport;

const QString SizeOption = QStringLiteral("size");
const QString FormatOption = QStringLiteral("format");
const QString ColoursOnlyOption = QStringLiteral("colours-only");

/// Writes a preset as a look-up table for other programs. Effects that look at the place, at
/// neighbouring pixels or at the whole picture fit into none: presets with them are refused, or
/// with --colours-only written without them.
class ExportLutCommand : public Command
{
public:
    ExportLutCommand()
        : Command(QStringLiteral("export-lut"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text",
                                    "Writes a preset as a look-up table for other programs."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ExportLutCommand::AddOptions(OptionTable& options) const
{
    PresetOptions::Add(options, Text::tr("The preset, by name or id."), QStringLiteral("name|id"));
    options.AddOption(
        {FormatOption,
         Text::tr("Format of the file: cube, clf (Common LUT Format) or hald (a HaldCLUT "
                  "picture of 16 bits). Default: by the name of the file."),
         QStringLiteral("cube|clf|hald")});
    options.AddOption(
        {SizeOption,
         Text::tr("Points along each axis, 2 to 129; for a HaldCLUT a square, 4 to 121. "
                  "Default: 33, for a HaldCLUT 64."),
         QStringLiteral("number")});
    options.AddOption(
        {ColoursOnlyOption, Text::tr("Leaves out effects that do not fit into a table, such as "
                                     "vignette and clarity, and names them.")});
    OutputFile::AddOptions(options,
                           Text::tr("The file to write: .cube, .clf, .png, .tif or .tiff."));
    CatalogueOptions::Add(options);
}

std::optional<LutFormat> ReadFormatOption(const QCommandLineParser& parser)
{
    if (!parser.isSet(FormatOption))
        return std::nullopt;
    const QString name = parser.value(FormatOption);
    if (name == QLatin1String("cube"))
        return LutFormat::Cube;
    if (name == QLatin1String("clf"))
        return LutFormat::Clf;
    if (name == QLatin1String("hald"))
        return LutFormat::Hald;
    throw UsageError(Text::tr("--format: expected cube, clf or hald, found \"%1\"").arg(name));
}

/// A name that announces another format would be read as that, and not be understood.
LutFormat ReadFormat(const QCommandLineParser& parser)
{
    const QString output = OutputFile::GetName(parser);
    const auto wanted = ReadFormatOption(parser);
    const auto named = LumetraHost::GetLutFormatOfName(output);
    if (wanted && named && wanted != named)
        throw UsageError(Text::tr("--format: \"%1\" does not fit the file name \"%2\"")
                             .arg(parser.value(FormatOption), output));
    if (!wanted && !LutExport::FindFormat(output))
        throw UsageError(Text::tr("--output: expected a name that ends in .cube, .clf, .png, "
                                  ".tif or .tiff, or --format, found \"%1\"")
                             .arg(output));
    return wanted.value_or(named.value_or(LutFormat::Cube));
}

int ReadSize(const QCommandLineParser& parser, LutFormat format)
{
    const bool isHald = format == LutFormat::Hald;
    if (!parser.isSet(SizeOption))
        return LutExport::GetDefaultSize(format);
    const int size =
        ReadNumber(parser, SizeOption, LookExport::SmallestSize, LookExport::LargestSize);
    if (isHald && !LutWriter::IsHaldSize(size))
        throw UsageError(Text::tr("--size: expected a square for a HaldCLUT, 4, 9, 16, 25, 36, "
                                  "49, 64, 81, 100 or 121, found %1")
                             .arg(size));
    return size;
}

/// Says which effects are left out before the look is written without them.
void ReportUnfit(const LutExport::Request& request, const QString& preset, Console& console)
{
    if (!request.isColoursOnly)
        return;
    for (const std::string& effectID : LookExport::FindUnfitEffects(request.look))
        console.Report(Text::tr("\"%1\": left out \"%2\", which does not fit into a table")
                           .arg(preset, QString::fromStdString(effectID)));
}

/// Refuses a look with effects that do not fit, with the option that leaves them out.
void CheckFits(const LutExport::Request& request)
{
    const auto unfit = LookExport::FindUnfitEffects(request.look);
    if (!unfit.empty() && !request.isColoursOnly)
        throw Zorvik::Exception(LookExport::DescribeUnfit(unfit) +
                                    "; --colours-only leaves them out",
                                BOOST_CURRENT_FUNCTION, "commands/ExportLutCommand", __LINE__);
}

ExitCode ExportLutCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    Arguments(parser, 0, 0);
    const QString preset = PresetOptions::ReadPreset(parser);
    const LutFormat format = ReadFormat(parser);
    const int size = ReadSize(parser, format);
    const QString output = OutputFile::Read(parser);
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    const PresetUse use = PresetOptions::MakeUse(
        parser, PresetRows::Find(PresetRows::Read(session->GetModel()), preset));
    const QString shown = use.GetPreset().shown;
    try {
        const LutExport::Request request{
            use.GetLook(*session), format, size,
            use.GetPreset().name,  output, parser.isSet(ColoursOnlyOption)};
        CheckFits(request);
        ReportUnfit(request, shown, console);
        LutExport::Write(request);
    } catch (const Zorvik::Exception& error) {
        console.Report(QStringLiteral("\"%1\": %2").arg(shown, QString::fromUtf8(error.what())));
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
