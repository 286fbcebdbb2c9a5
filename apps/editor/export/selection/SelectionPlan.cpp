// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/SelectionPlan.h"

#include "edits/SavedEdits.h"
#include "export/ExportGuard.h"
#include "exporting/batch/OutputTemplate.h"
#include "photo/file/WrittenFormat.h"

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
using LumetraHost::SavedEdits;

QString GetTemplate(const SelectionOrder& order, NamedRecipe named)
{
    if (!order.folder.isEmpty())
        named.folder = order.folder;
    if (!order.file.isEmpty())
        named.file = order.file;
    return named.GetOutputTemplate();
}

OutputSet MakeSet(const SelectionOrder& order, const NamedRecipe& named,
                  const std::shared_ptr<const SavedEdits>& edits)
{
    OutputSet set{OutputTemplate(GetTemplate(order, named))};
    set.values.extension = QLatin1String(LumetraHost::GetWrittenFormat(named.recipe.format).suffix);
    set.look = edits;
    set.recipe = std::make_shared<const ExportRecipe>(named.recipe);
    return set;
}

std::vector<PhotoJob> MakeJobs(const SelectionOrder& order)
{
    const auto edits = std::make_shared<const SavedEdits>(LumetraHost::LookLayers());
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
    QStringList outputs;
    for (const PhotoJob& job : jobs)
        outputs.append(job.output);
    const QStringList obstacles = guard.FindObstacles(outputs);
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        const QString& obstacle = obstacles[static_cast<int>(i)];
        if (jobs[i].state != PhotoJob::State::Planned || obstacle.isEmpty())
            continue;
        jobs[i].state = PhotoJob::State::Failed;
        jobs[i].message = obstacle;
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
