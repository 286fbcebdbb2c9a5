// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/SelectionPlan.h"

#include "export/ExportGuard.h"
#include "exporting/batch/OutputTemplate.h"
#include "photo/file/WrittenFormat.h"
#include "storage/FailWith.h"

#include <QCoreApplication>

#include <algorithm>
#include <exception>
#include <memory>

namespace LumetraEditor {
namespace {

using LumetraHost::ExistingOutput;
using LumetraHost::ExportRecipe;
using LumetraHost::NamedRecipe;
using LumetraHost::OutputSet;
using LumetraHost::OutputTemplate;
using LumetraHost::PhotoJob;

struct PlanTexts
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::SelectionPlan)
};

/// Throws for placeholders that stand for one look.
void RefuseLookNames(const OutputTemplate& names)
{
    for (const char* const name : {"preset", "group", "intensity"})
        if (names.Uses(QLatin1String(name)))
            LumetraHost::FailWith(
                PlanTexts::tr("Files cannot be named after {%1}: each photo has its own edit, "
                              "which may be of several looks or of none. Use {name}, {n} or "
                              "{date}.")
                    .arg(QLatin1String(name))
                    .toStdString());
}

QString GetTemplate(const SelectionOrder& order, NamedRecipe named)
{
    if (!order.folder.isEmpty())
        named.folder = order.folder;
    if (!order.file.isEmpty())
        named.file = order.file;
    return named.GetOutputTemplate();
}

OutputSet MakeSet(const SelectionOrder& order, const NamedRecipe& named,
                  const std::shared_ptr<const CurrentEdits>& edits)
{
    OutputSet set{OutputTemplate(GetTemplate(order, named))};
    RefuseLookNames(set.names);
    set.values.extension = QLatin1String(LumetraHost::GetWrittenFormat(named.recipe.format).suffix);
    set.look = edits;
    set.recipe = std::make_shared<const ExportRecipe>(named.recipe);
    return set;
}

std::vector<PhotoJob> MakeJobs(const SelectionOrder& order)
{
    const auto edits = std::make_shared<const CurrentEdits>(order.settle);
    std::vector<OutputSet> sets;
    for (const NamedRecipe& named : order.recipes)
        sets.push_back(MakeSet(order, named, edits));
    std::vector<LumetraHost::PhotoInput> photos;
    for (const QString& photo : order.photos)
        photos.push_back({photo});
    LumetraHost::OutputRules rules;
    rules.existing = order.replaces ? ExistingOutput::Overwrite : ExistingOutput::Skip;
    return LumetraHost::OutputPlan::Make(photos, sets, rules);
}

void AskGuard(std::vector<PhotoJob>& jobs, const ExportGuard& guard)
{
    for (PhotoJob& job : jobs) {
        if (job.state != PhotoJob::State::Planned)
            continue;
        job.message = guard.FindObstacle(job.output);
        if (!job.message.isEmpty())
            job.state = PhotoJob::State::Failed;
    }
}

} // namespace

SelectionPlan SelectionPlan::Make(const SelectionOrder& order, const ExportGuard& guard)
{
    SelectionPlan plan;
    plan.replaces = order.replaces;
    try {
        plan.jobs = MakeJobs(order);
        AskGuard(plan.jobs, guard);
    } catch (const std::exception& error) {
        plan.problem = QString::fromUtf8(error.what());
    }
    return plan;
}

QString SelectionPlan::PreviewFirst(const SelectionOrder& order)
{
    if (order.photos.isEmpty() || order.recipes.empty())
        return {};
    OutputSet set = MakeSet(order, order.recipes.front(), nullptr);
    set.values.photo = order.photos.first();
    return set.names.Expand(set.values);
}

int SelectionPlan::Count(PhotoJob::State state) const
{
    return static_cast<int>(std::count_if(
        jobs.begin(), jobs.end(), [state](const PhotoJob& job) { return job.state == state; }));
}

QStringList SelectionPlan::GetMessages() const
{
    QStringList messages;
    for (const PhotoJob& job : jobs)
        if (job.state == PhotoJob::State::Failed)
            messages.append(job.message);
    return messages;
}

} // namespace LumetraEditor
