// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/OutputPlan.h"

#include "exporting/batch/ResultSearch.h"
#include "photo/file/PhotoFolder.h"
#include "photo/metadata/PhotoOrigin.h"

#include "storage/FileIdentity.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace LumetraHost {
namespace {

using Jobs = std::vector<PhotoJob*>;

void Fail(PhotoJob& job, const QString& message)
{
    job.state = PhotoJob::State::Failed;
    job.message = message;
}

/// Returns the path itself when it exists, else the nearest folder above it that does.
QString FindExisting(const QString& path)
{
    QFileInfo info(path);
    while (!info.exists() && !info.isRoot())
        info.setFile(info.absolutePath());
    return info.absoluteFilePath();
}

/// True on file systems where two names that differ only in their case are one file.
bool IgnoresCase(const QString& path)
{
    static const std::set<QByteArray> types = {"vfat", "msdos", "exfat",  "cifs",
                                               "smb3", "hfs",   "hfsplus"};
    return types.count(QStorageInfo(FindExisting(path)).fileSystemType()) != 0;
}

/// A key of the output's file; outputs with equal keys would be one file.
FileIdentity GetOutputKey(const QString& output)
{
    if (QFileInfo::exists(output) || !IgnoresCase(output))
        return FileIdentity::Of(output);
    const QFileInfo info(output);
    return FileIdentity::Of(QDir(info.absolutePath()).filePath(info.fileName().toCaseFolded()));
}

/// The reason why the file cannot be a photo; empty when it may be one.
QString FindProblem(const PhotoInput& input)
{
    if (!input.problem.isEmpty() || input.isPiped)
        return input.problem;
    const QFileInfo photo(input.path);
    if (const QString problem = PhotoFolder::FindNameProblem(input.path); !problem.isEmpty())
        return QStringLiteral("%1: %2").arg(input.path, problem);
    if (!photo.exists())
        return QStringLiteral("%1: expected a photo, found no such file").arg(input.path);
    if (photo.isDir())
        return QStringLiteral("%1: expected a photo, found a folder").arg(input.path);
    if (!photo.isFile())
        return QStringLiteral("%1: expected a photo, found no plain file").arg(input.path);
    return {};
}

/// Skips a job that was there before: the same photo, look and recipe.
void SkipRepeated(const Jobs& sharing)
{
    using Key = std::tuple<FileIdentity, const LookSource*, const ExportRecipe*>;
    std::map<Key, QString> names;
    for (PhotoJob* job : sharing) {
        const Key key(FileIdentity::Of(job->photo), job->look.get(), job->recipe.get());
        const auto [first, isNew] = names.emplace(key, job->photo);
        if (isNew)
            continue;
        job->state = PhotoJob::State::Skipped;
        job->message = QStringLiteral("%1: is the photo \"%2\" again, which is done once")
                           .arg(job->photo, first->second);
    }
}

/// Fails all jobs that share an output: nobody can tell which one was meant.
void RefuseShared(const Jobs& sharing)
{
    Jobs different;
    for (PhotoJob* job : sharing)
        if (job->state == PhotoJob::State::Planned)
            different.push_back(job);
    if (different.size() < 2)
        return;
    const QString more = different.size() == 2
                             ? QString()
                             : QStringLiteral(" and %1 more").arg(different.size() - 2);
    for (PhotoJob* job : different) {
        const PhotoJob* other = different[job == different[0] ? 1 : 0];
        const QString owner = other->photo == job->photo
                                  ? QStringLiteral("another look on it")
                                  : QStringLiteral("\"%1\"").arg(other->photo);
        Fail(*job, QStringLiteral("%1: expected an output of its own, found \"%2\", which is that "
                                  "of %3%4 too")
                       .arg(job->photo, job->output, owner, more));
    }
}

void SettleSharedOutputs(std::vector<PhotoJob>& jobs)
{
    std::map<FileIdentity, Jobs> jobsOfOutput;
    for (PhotoJob& job : jobs)
        if (job.state == PhotoJob::State::Planned)
            jobsOfOutput[GetOutputKey(job.output)].push_back(&job);
    for (const auto& [output, sharing] : jobsOfOutput) {
        SkipRepeated(sharing);
        RefuseShared(sharing);
    }
}

/// Photos of the batch, by the protection that they need.
struct Inputs
{
    std::set<FileIdentity> taken;
    std::set<FileIdentity> results; ///< left out, and not known for what they are
};

bool KeepsDone(const OutputRules& rules)
{
    return rules.existing == ExistingOutput::KeepDone ||
           rules.existing == ExistingOutput::KeepDoneOrOverwrite;
}

/// Lets the job look at a file when it begins: the content of the photo is not known before.
void KeepDone(PhotoJob& job, const Inputs& inputs, const OutputRules& rules)
{
    job.existing = JobExport::Existing::KeepDone;
    if (EditPlaces::HasEdit(job.output))
        job.refusal = QStringLiteral("is a photo with an edit of its own and is not overwritten");
    else if (rules.existing == ExistingOutput::KeepDone)
        job.refusal = QStringLiteral("exists, and is not what this photo, look and options make%1")
                          .arg(rules.otherHint);
    else if (inputs.results.count(FileIdentity::Of(job.output)) != 0)
        job.refusal = QStringLiteral("is one of the photos and is not overwritten");
    else
        job.existing = JobExport::Existing::KeepDoneOrReplace;
}

void CheckExisting(PhotoJob& job, const QFileInfo& output, const Inputs& inputs,
                   const OutputRules& rules)
{
    if (output.isDir())
        return Fail(job,
                    QStringLiteral("%1: expected a file to write, found a folder").arg(job.output));
    if (!output.isFile())
        return Fail(
            job,
            QStringLiteral("%1: expected a file to write, found no plain file").arg(job.output));
    if (rules.existing == ExistingOutput::Skip)
        job.state = PhotoJob::State::Skipped;
    else if (KeepsDone(rules))
        KeepDone(job, inputs, rules);
    else if (EditPlaces::HasEdit(job.output))
        Fail(job, QStringLiteral("%1: is a photo with an edit of its own and is not overwritten")
                      .arg(job.output));
    else if (rules.existing == ExistingOutput::Refuse)
        Fail(job, QStringLiteral("%1: exists%2").arg(job.output, rules.existingHint));
    else if (inputs.results.count(FileIdentity::Of(job.output)) != 0)
        Fail(job,
             QStringLiteral("%1: is one of the photos and is not overwritten").arg(job.output));
}

void CheckOutput(PhotoJob& job, const Inputs& inputs, const OutputRules& rules)
{
    const QFileInfo output(job.output);
    if (inputs.taken.count(FileIdentity::Of(job.output)) != 0)
        Fail(job,
             QStringLiteral("%1: is one of the photos and is not overwritten").arg(job.output));
    else if (output.exists())
        CheckExisting(job, output, inputs, rules);
    else if (KeepsDone(rules)) // another program may write it meanwhile
        KeepDone(job, inputs, rules);
}

/// A plan in the making.
class Planner
{
public:
    Planner(const std::vector<OutputSet>& sets, const OutputRules& rules)
        : m_sets(sets), m_rules(rules)
    {
    }

    void AddPhotos(const std::vector<PhotoInput>& photos);
    void LeaveOutOutputs();
    std::vector<PhotoJob> Finish();

private:
    /// The jobs of one photo.
    struct Group
    {
        PhotoInput input;
        bool hasRecords = false;
        std::vector<PhotoJob> jobs;
    };

    Group MakeGroup(const PhotoInput& input);
    PhotoJob MakeJob(const PhotoInput& input, const OutputSet& set) const;
    void LeaveOut(Group& group, const QString& reason);
    static bool IsTaken(const Group& group);
    Inputs CollectInputs() const;

    const std::vector<OutputSet>& m_sets;
    const OutputRules& m_rules;
    std::vector<Group> m_groups;
    int m_number = 0;
};

PhotoJob Planner::MakeJob(const PhotoInput& input, const OutputSet& set) const
{
    OutputValues values = set.values;
    values.photo = input.path;
    values.number = m_number;
    PhotoJob job;
    job.photo = input.path;
    job.output = set.names.Expand(values);
    job.look = set.look;
    job.recipe = set.recipe;
    return job;
}

Planner::Group Planner::MakeGroup(const PhotoInput& input)
{
    Group group{input, false, {}};
    const QString problem = FindProblem(input);
    group.hasRecords = m_rules.leavesOutResults && problem.isEmpty() && !input.isPiped &&
                       PhotoOrigin::Read(input.path).hasRecords;
    if (!group.hasRecords)
        ++m_number;
    for (const OutputSet& set : m_sets)
        group.jobs.push_back(MakeJob(input, set));
    if (group.hasRecords)
        LeaveOut(group, QStringLiteral("it is a result, whose XMP data record a look"));
    if (!problem.isEmpty()) {
        group.jobs.resize(1);
        Fail(group.jobs.front(), problem);
    }
    return group;
}

void Planner::LeaveOut(Group& group, const QString& reason)
{
    group.jobs.resize(1);
    PhotoJob& job = group.jobs.front();
    job.output.clear();
    job.state = PhotoJob::State::LeftOut;
    job.message =
        QStringLiteral("%1: is left out: %2%3").arg(job.photo, reason, m_rules.resultHint);
}

void Planner::AddPhotos(const std::vector<PhotoInput>& photos)
{
    for (const PhotoInput& photo : photos)
        m_groups.push_back(MakeGroup(photo));
}

bool Planner::IsTaken(const Group& group)
{
    return group.jobs.front().state == PhotoJob::State::Planned && !group.input.isPiped;
}

void Planner::LeaveOutOutputs()
{
    ResultSearch search;
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        if (!IsTaken(m_groups[i]))
            continue;
        search.AddPhoto(i, m_groups[i].input.path);
        for (const PhotoJob& job : m_groups[i].jobs)
            search.AddOutput(i, job.output);
    }
    for (std::size_t i = 0; i < m_groups.size(); ++i)
        if (const auto origin = search.FindOrigin(i))
            LeaveOut(
                m_groups[i],
                QStringLiteral("it is the output of \"%1\"").arg(m_groups[*origin].input.path));
}

Inputs Planner::CollectInputs() const
{
    Inputs inputs;
    for (const Group& group : m_groups)
        if (!group.input.isPiped && !group.hasRecords)
            (group.jobs.front().state == PhotoJob::State::LeftOut ? inputs.results : inputs.taken)
                .insert(FileIdentity::Of(group.input.path));
    return inputs;
}

std::vector<PhotoJob> Planner::Finish()
{
    const Inputs inputs = CollectInputs();
    std::vector<PhotoJob> jobs;
    for (Group& group : m_groups)
        std::move(group.jobs.begin(), group.jobs.end(), std::back_inserter(jobs));
    SettleSharedOutputs(jobs);
    for (PhotoJob& job : jobs)
        if (job.state == PhotoJob::State::Planned)
            CheckOutput(job, inputs, m_rules);
    return jobs;
}

} // namespace

std::vector<PhotoJob> OutputPlan::Make(const std::vector<PhotoInput>& photos,
                                       const std::vector<OutputSet>& sets, const OutputRules& rules)
{
    Planner planner(sets, rules);
    planner.AddPhotos(photos);
    if (rules.leavesOutResults)
        planner.LeaveOutOutputs();
    return planner.Finish();
}

} // namespace LumetraHost
