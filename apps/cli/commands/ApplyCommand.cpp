// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "console/Console.h"
#include "console/Interruption.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/PresetSession.h"
#include "edits/SavedEdits.h"
#include "exporting/MemoryBudget.h"
#include "exporting/batch/PhotoBatch.h"
#include "photos/ApplyReport.h"
#include "photos/OutputOptions.h"
#include "photos/PhotoInputs.h"
#include "photos/PipedPhoto.h"
#include "photos/RecipeOptions.h"
#include "photos/ShardOptions.h"
#include "presets/CatalogueOptions.h"
#include "presets/LookOptions.h"

#include <QThread>

#include <algorithm>
#include <exception>
#include <map>
#include <memory>

namespace LumetraCli {
namespace {

using LumetraHost::ExportLook;
using LumetraHost::ExportRecipe;
using LumetraHost::LookSource;
using LumetraHost::OutputPlan;
using LumetraHost::OutputSet;
using LumetraHost::OutputTemplate;
using LumetraHost::PhotoBatch;
using LumetraHost::PhotoInput;
using LumetraHost::PhotoJob;

constexpr int MaximumJobs = 64;
constexpr int MaximumMegabytes = 1'000'000;

const QString DryRunOption = QStringLiteral("dry-run");
const QString JobsOption = QStringLiteral("jobs");
const QString MemoryOption = QStringLiteral("memory");
const QString ExactOption = QStringLiteral("exact");

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

std::shared_ptr<const LookSource> MakeSource(const ChosenLook& look, bool takesEdits,
                                             ExportLook::Precision precision)
{
    if (takesEdits)
        return std::make_shared<LumetraHost::SavedEdits>(look.layers, precision);
    return std::make_shared<LumetraHost::SharedLook>(look.layers, precision);
}

/// The files that each photo becomes: one for each look.
std::vector<OutputSet> MakeSets(const std::vector<ChosenLook>& looks, const OutputTemplate& names,
                                const ExportRecipe& form, const QCommandLineParser& parser,
                                bool takesEdits)
{
    const auto recipe = std::make_shared<const ExportRecipe>(form);
    const QString extension = RecipeOptions::ReadExtension(parser);
    std::vector<OutputSet> sets;
    for (const ChosenLook& look : looks) {
        OutputSet set{names};
        set.values.preset = look.name;
        set.values.group = look.group;
        set.values.intensity = look.intensity;
        set.values.extension = extension;
        set.look = MakeSource(look, takesEdits, ReadPrecision(parser));
        set.recipe = recipe;
        sets.push_back(set);
    }
    return sets;
}

/// One job per photo and look; what may leave jobs out, does so here, behind their numbering.
std::vector<PhotoJob> MakeJobs(const std::vector<PhotoInput>& photos,
                               const std::vector<OutputSet>& sets, const OutputOptions& outputs)
{
    if (outputs.IsPiped())
        return {PipedPhoto::MakeJob(photos.front(), sets.front())};
    return OutputPlan::Make(photos, sets, outputs.GetRules());
}

/// Finds the presets of a job by the look that its set has given it.
ApplyReport::LooksOf MakeLooksOf(const std::vector<ChosenLook>& looks,
                                 const std::vector<OutputSet>& sets)
{
    std::map<const LookSource*, std::vector<ApplyReport::Look>> found;
    for (std::size_t i = 0; i < looks.size(); ++i)
        for (const PresetUse& use : looks[i].uses)
            found[sets[i].look.get()].push_back(
                {use.GetPreset().name, use.GetPreset().id, use.GetIntensity()});
    return [found](const PhotoJob& job) {
        const auto own = found.find(job.look.get());
        return own == found.end() ? std::vector<ApplyReport::Look>() : own->second;
    };
}

/// Reports jobs that nobody carries out.
ExitCode Tell(const PhotoBatch::Limits& limits, std::vector<PhotoJob>& jobs, ApplyReport& report)
{
    PhotoBatch(limits).Check(
        jobs, [&report](const PhotoJob& job, const auto& warnings) { report.Add(job, warnings); });
    return report.Finish();
}

/// Carries out a job without a hold on signals: each ends it at once, even while it waits for its
/// input, and leaves no half file.
ExitCode RunPiped(PipedPhoto piped, const PhotoInput& photo, std::vector<PhotoJob>& jobs,
                  ApplyReport& report)
{
    const LumetraHost::Warnings warnings = piped.Run(jobs.front(), photo);
    report.Add(jobs.front(), warnings);
    return report.Finish();
}

ExitCode RunBatch(PhotoBatch::Limits limits, std::vector<PhotoJob>& jobs, ApplyReport& report)
{
    const Interruption interruption;
    limits.cancel = &interruption.GetToken();
    PhotoBatch(limits).Run(
        jobs, [&report](const PhotoJob& job, const auto& warnings) { report.Add(job, warnings); });
    return report.Finish(&interruption);
}

/// Applies presets to photos and writes the results.
class ApplyCommand : public Command
{
public:
    ApplyCommand()
        : Command(QStringLiteral("apply"),
                  QT_TRANSLATE_NOOP(
                      "LumetraCli::Text",
                      "Applies presets or edits to photos and prints the names of the new files."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ApplyCommand::AddOptions(OptionTable& options) const
{
    PhotoInputs::Add(options);
    LookOptions::Add(options);
    OutputOptions::Add(options);
    RecipeOptions::Add(options);
    ShardOptions::Add(options);
    ApplyReport::AddOptions(options);
    options.AddOptions({
        {DryRunOption, Text::tr("Only says what would be written.")},
        {{QStringLiteral("j"), JobsOption},
         Text::tr("How many photos to work on at the same time, 1 to %1, as far as --memory "
                  "allows. Default: the number of processor cores")
             .arg(MaximumJobs),
         QStringLiteral("number")},
        {MemoryOption,
         Text::tr("How much memory they may take together, in MB, by an estimate from their "
                  "sizes; a photo that needs more is worked on alone. Default: half of the "
                  "machine's memory"),
         QStringLiteral("number")},
        {ExactOption, Text::tr("Draws every pixel by the effects' formulas. Without it, colours "
                               "of large 8-bit photos may come from a table, within 1 of 255 "
                               "of them, in half the time.")},
    });
    options.AddNote(MemoryOption,
                    Text::tr("(here: %1)").arg(LumetraHost::MemoryBudget::GetDefault() >> 20));
    CatalogueOptions::Add(options);
}

ExitCode ApplyCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const LookOptions options(parser);
    const OutputOptions outputs(parser, options);
    const PhotoBatch::Limits limits = ReadLimits(parser);
    const ExportRecipe recipe = RecipeOptions::Read(parser);
    const std::vector<PhotoInput> photos = PhotoInputs::Read(parser);
    outputs.CheckPipes(parser, photos, options);
    const bool isPiped = photos.size() == 1 && (photos.front().isPiped || outputs.IsPiped());
    const ShardOptions shard(parser, isPiped);
    ApplyReport::Form form = ApplyReport::ReadForm(parser);
    form.isDryRun = parser.isSet(DryRunOption);
    form.shard = shard.GetName();
    if (photos.empty() && !form.isQuiet)
        console.Report(Text::tr("the list names no photo"));

    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    ExitCode code = ExitCode::Done;
    const std::vector<ChosenLook> looks = options.Choose(*session, console, code);
    if (looks.empty())
        return code;
    const std::vector<OutputSet> sets =
        MakeSets(looks, outputs.GetNames(), recipe, parser, options.TakesEdits());
    std::vector<PhotoJob> jobs = MakeJobs(photos, sets, outputs);
    form.listCount = static_cast<int>(jobs.size());
    shard.Choose(jobs);
    RecipeOptions::Check(parser, recipe, jobs);

    ApplyReport report(form, static_cast<int>(jobs.size()), MakeLooksOf(looks, sets), console);
    if (form.isDryRun)
        return std::max(code, Tell(limits, jobs, report));
    if (isPiped)
        return std::max(code, RunPiped(PipedPhoto(console, RecipeOptions::ReadFormat(parser)),
                                       photos.front(), jobs, report));
    return std::max(code, RunBatch(limits, jobs, report));
}

} // namespace

std::unique_ptr<Command> MakeApplyCommand()
{
    return std::make_unique<ApplyCommand>();
}

} // namespace LumetraCli
