// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/UsageError.h"
#include "core/LutImport.h"
#include "core/PresetSession.h"
#include "exporting/MemoryBudget.h"
#include "exporting/batch/OutputPlan.h"
#include "exporting/batch/OutputTemplate.h"
#include "exporting/batch/PhotoBatch.h"
#include "photos/ApplyReport.h"
#include "photos/RecipeOptions.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetOptions.h"

#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <memory>
#include <optional>

namespace LumetraCli {
namespace {

using LumetraHost::ExistingOutput;
using LumetraHost::ExportLook;
using LumetraHost::ExportRecipe;
using LumetraHost::OutputPlan;
using LumetraHost::OutputRules;
using LumetraHost::OutputTemplate;
using LumetraHost::PhotoBatch;
using LumetraHost::PhotoJob;

constexpr char DefaultOutput[] = "{folder}/{name}_{preset}.{ext}";
constexpr int MaximumJobs = 64;
constexpr int MaximumMegabytes = 1'000'000;

const QString OutputOption = QStringLiteral("output");
const QString OverwriteOption = QStringLiteral("overwrite");
const QString SkipOption = QStringLiteral("skip");
const QString DryRunOption = QStringLiteral("dry-run");
const QString JsonOption = QStringLiteral("json");
const QString JobsOption = QStringLiteral("jobs");
const QString MemoryOption = QStringLiteral("memory");
const QString ExactOption = QStringLiteral("exact");

QStringList ReadPhotos(const QCommandLineParser& parser)
{
    const QStringList photos = parser.positionalArguments().mid(1);
    if (photos.isEmpty())
        throw UsageError(QStringLiteral("expected at least one photo"));
    return photos;
}

OutputTemplate ReadOutput(const QCommandLineParser& parser)
{
    try {
        return OutputTemplate(parser.value(OutputOption));
    } catch (const Zorvik::Exception& error) {
        throw UsageError(QStringLiteral("--output: ") + QString::fromUtf8(error.what()));
    }
}

ExistingOutput ReadExisting(const QCommandLineParser& parser)
{
    const bool isOverwrite = parser.isSet(OverwriteOption);
    const bool isSkip = parser.isSet(SkipOption);
    if (isOverwrite && isSkip)
        throw UsageError(QStringLiteral("expected --overwrite or --skip, found both"));
    if (isOverwrite)
        return ExistingOutput::Overwrite;
    return isSkip ? ExistingOutput::Skip : ExistingOutput::Refuse;
}

/// The memory of --memory in bytes, or half of the machine's.
std::uint64_t ReadMemory(const QCommandLineParser& parser)
{
    if (!parser.isSet(MemoryOption))
        return LumetraHost::MemoryBudget::GetDefault();
    return static_cast<std::uint64_t>(ReadNumber(parser, MemoryOption, 1, MaximumMegabytes)) << 20;
}

PhotoBatch::Limits ReadLimits(const QCommandLineParser& parser)
{
    PhotoBatch::Limits limits;
    limits.parallel = parser.isSet(JobsOption)
                          ? ReadNumber(parser, JobsOption, 1, MaximumJobs)
                          : std::clamp(QThread::idealThreadCount(), 1, MaximumJobs);
    limits.memory = ReadMemory(parser);
    return limits;
}

ExportLook::Precision ReadPrecision(const QCommandLineParser& parser)
{
    return parser.isSet(ExactOption) ? ExportLook::Precision::Exact : ExportLook::Precision::Tables;
}

/// Adds the look of a LUT file to the user's presets for this run; nothing is saved. It keeps its
/// name even when the user has imported it before: outputs are named after it.
PresetRow AddLutPreset(LumetraPlugin::PresetSession& session, const QString& file)
{
    const auto added = LumetraPlugin::LutImport::AddTo(session, file, {});
    if (added.size() != 1)
        throw UsageError(QStringLiteral("--preset: expected a file with one look, found %1 in "
                                        "\"%2\"; \"import\" makes a preset of each")
                             .arg(QString::number(added.size()), file));
    const QString id = added.front()
                           .data(Zorvik::Lumetra::LumetraPresets::EffectPresetModel::PresetIdRole)
                           .toString();
    return PresetRows::Find(PresetRows::Read(session.GetModel()), id);
}

/// Throws for a name that no preset has and that is, or looks like, the name of a file: the file is
/// missing or no LUT file.
void RefuseFile(const QString& preset)
{
    const QFileInfo file(preset);
    if (LumetraPlugin::LutImport::IsLutName(preset, true) && !file.exists())
        throw UsageError(QStringLiteral("--preset: expected the name or id of a preset or a LUT "
                                        "file, found \"%1\", which is neither: there is no such "
                                        "file")
                             .arg(preset));
    if (file.exists())
        throw UsageError(
            QStringLiteral("--preset: expected the name or id of a preset or a LUT "
                           "file (.cube, .3dl, .clf, .cc, .ccc, .cdl, .png, .tif), "
                           "found the %1 \"%2\"")
                .arg(file.isDir() ? QStringLiteral("folder") : QStringLiteral("file"), preset));
}

/// The preset; nothing, after a report, for a LUT file that cannot be used.
std::optional<PresetRow> FindPreset(LumetraPlugin::PresetSession& session, const QString& preset,
                                    Console& console)
{
    if (!LumetraPlugin::LutImport::IsLutName(preset, true) || !QFileInfo::exists(preset)) {
        const auto rows = PresetRows::Read(session.GetModel());
        if (!PresetRows::Has(rows, preset))
            RefuseFile(preset);
        return PresetRows::Find(rows, preset);
    }
    try {
        return AddLutPreset(session, preset);
    } catch (const Zorvik::Exception& error) {
        console.ReportPlace(QString::fromUtf8(error.what()));
        return std::nullopt;
    }
}

/// Puts the preset's packages and records into the recipe.
void AddEdit(ExportRecipe& recipe, const PresetUse& use, LumetraPlugin::PresetSession& session,
             ExportLook::Precision precision)
{
    const auto packages = use.MakePackages(session);
    recipe.look = std::make_shared<ExportLook>(packages, precision);
    recipe.records = use.MakeRecords(packages);
}

/// Applies a preset to photos and writes the results.
class ApplyCommand : public Command
{
public:
    ApplyCommand()
        : Command(
              QStringLiteral("apply"),
              QStringLiteral("Applies a preset to photos and prints the names of the new files."))
    {
    }

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ApplyCommand::AddOptions(QCommandLineParser& parser) const
{
    parser.addPositionalArgument(
        QStringLiteral("PHOTO"),
        QStringLiteral("Photos: JPEG, PNG, TIFF, WebP, HEIC or raw files."),
        QStringLiteral("PHOTO..."));
    PresetOptions::Add(parser,
                       QStringLiteral("The preset, by name or id, or a LUT file: .cube, .3dl, "
                                      ".clf, .cc, .ccc, .cdl or a HaldCLUT picture."),
                       QStringLiteral("name|id|file"));
    parser.addOptions({
        {{QStringLiteral("o"), OutputOption},
         QStringLiteral("Where to write; {folder}, {name} and {ext} are the photo's, {preset} is "
                        "the preset's name. Photos that would share one file are left out. "
                        "Default: %1")
             .arg(QLatin1String(DefaultOutput)),
         QStringLiteral("template"),
         QLatin1String(DefaultOutput)},
    });
    RecipeOptions::Add(parser);
    parser.addOptions({
        {OverwriteOption,
         QStringLiteral("Replaces existing files, but never a photo of the batch or "
                        "one with an edit of its own.")},
        {SkipOption, QStringLiteral("Leaves out photos whose output exists.")},
        {DryRunOption, QStringLiteral("Only says what would be written.")},
        {JsonOption, QStringLiteral("Writes JSON.")},
        {{QStringLiteral("j"), JobsOption},
         QStringLiteral("How many photos to work on at the same time, 1 to %1, as far as --memory "
                        "allows. Default: the number of processor cores")
             .arg(MaximumJobs),
         QStringLiteral("number")},
        {MemoryOption,
         QStringLiteral("How much memory they may take together, in MB, by an estimate from their "
                        "sizes; a photo that needs more is worked on alone. Default: half of the "
                        "machine's memory, here %1")
             .arg(LumetraHost::MemoryBudget::GetDefault() >> 20),
         QStringLiteral("number")},
        {ExactOption,
         QStringLiteral("Draws every pixel by the effects' formulas. Without it, colours "
                        "of large 8-bit photos may come from a table, within 1 of 255 "
                        "of them, in half the time.")},
    });
    CatalogueOptions::Add(parser);
}

ExitCode ApplyCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList photos = ReadPhotos(parser);
    const QString preset = PresetOptions::ReadPreset(parser);
    const OutputTemplate outputs = ReadOutput(parser);
    const OutputRules rules{ReadExisting(parser),
                            QStringLiteral("; --overwrite replaces it, --skip leaves it")};
    const PhotoBatch batch(ReadLimits(parser));
    ExportRecipe recipe = RecipeOptions::Read(parser);

    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    const auto row = FindPreset(*session, preset, console);
    if (!row)
        return ExitCode::SomeFailed;
    const PresetUse use = PresetOptions::MakeUse(parser, *row);
    std::vector<PhotoJob> jobs = OutputPlan::Make(photos, outputs, use.GetPreset().name, rules);
    RecipeOptions::Check(recipe, jobs);

    ApplyReport report(use, static_cast<int>(jobs.size()), parser.isSet(JsonOption), console);
    if (parser.isSet(DryRunOption)) {
        for (const PhotoJob& job : jobs)
            report.Add(job, {});
    } else {
        AddEdit(recipe, use, *session, ReadPrecision(parser));
        batch.Run(jobs, recipe, [&report](const PhotoJob& job, const auto& warnings) {
            report.Add(job, warnings);
        });
    }
    return report.Finish();
}

} // namespace

std::unique_ptr<Command> MakeApplyCommand()
{
    return std::make_unique<ApplyCommand>();
}

} // namespace LumetraCli
