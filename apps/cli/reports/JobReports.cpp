// SPDX-License-Identifier: GPL-2.0-or-later
#include "reports/JobReports.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "storage/FailWith.h"
#include "storage/JsonDocument.h"
#include "storage/JsonException.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace LumetraCli {
namespace {

using LumetraHost::FailWith;
using State = JobReports::State;
using Zorvik::Brassel::ISerializer;

/// The form of docs/apply-report.schema.json.
constexpr int ReportVersion = 1;
constexpr qint64 LongestLine = 1024 * 1024;
/// Wrong lines of a file that are told one by one: it may be something else altogether.
constexpr int MostProblems = 10;

QString GetText(const ISerializer& line, const char* key)
{
    return QString::fromStdString(line.Get(key, ""));
}

State ReadState(const std::string& name)
{
    static const std::map<std::string, State> states = {
        {"written", State::Written}, {"skipped", State::Skipped}, {"leftOut", State::LeftOut},
        {"failed", State::Failed},   {"planned", State::Open},
    };
    const auto found = states.find(name);
    if (found == states.end())
        FailWith("expected written, skipped, leftOut, failed or planned, found \"" + name + "\"");
    return found->second;
}

bool IsSettled(State state)
{
    return state == State::Written || state == State::Skipped || state == State::LeftOut;
}

/// A report's file, open to be read. Anything but a plain file might keep the reader waiting.
void Open(QFile& file)
{
    const std::string name = file.fileName().toStdString();
    const QFileInfo info(file.fileName());
    if (!info.exists())
        FailWith(name + ": expected a report, found no such file");
    if (!info.isFile())
        FailWith(name + ": expected a report, found no plain file");
    if (!file.open(QIODevice::ReadOnly))
        FailWith(name + ": cannot be read: " + file.errorString().toStdString());
}

} // namespace

void JobReports::Read(const QString& name)
{
    QFile file(name);
    Open(file);
    m_hasEnd = false;
    m_isWhole = false;
    m_shard.reset();
    m_problemCount = 0;
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine(LongestLine);
        AddLine(line, name.toStdString() + ":" + std::to_string(number));
    }
    if (m_problemCount > MostProblems)
        m_problems.append(QStringLiteral("%1: %2 more such lines")
                              .arg(name, QString::number(m_problemCount - MostProblems)));
    if (file.error() != QFileDevice::NoError)
        FailWith(name.toStdString() + ": cannot be read: " + file.errorString().toStdString());
    if (!m_hasEnd)
        m_unfinished.append(name);
    else if (m_shard && m_isWhole)
        m_finishedShards.insert(m_shard->index);
    m_finished += m_hasEnd ? 1 : 0;
}

void JobReports::AddLine(const QByteArray& line, const std::string& place)
{
    if (!line.endsWith('\n'))
        return; // torn, as that of a killed program
    try {
        const auto document = LumetraHost::JsonDocument::Parse(line, place);
        const auto root = document.GetRoot();
        const auto summary = root->GetNode("summary");
        m_hasEnd = summary != nullptr; // a later attempt may follow in one file
        AddShard(*root);
        if (summary)
            AddEnd(*summary);
        else
            AddJob(*root);
    } catch (const LumetraHost::JsonException& error) {
        AddProblem(place, error.GetMessage());
    } catch (const Zorvik::Exception& error) {
        AddProblem(place, error.GetDescription());
    }
}

void JobReports::AddEnd(const ISerializer& summary)
{
    const int version = summary.Get("version", ReportVersion);
    if (version > ReportVersion)
        FailWith("expected version " + std::to_string(ReportVersion) + ", found " +
                 std::to_string(version));
    m_isWhole = summary.Get("planned", 0) == 0;
    const int jobs = summary.Get("jobs", 0);
    m_jobCount = std::max(m_jobCount, summary.Get("list", jobs));
}

void JobReports::AddProblem(const std::string& place, const std::string& reason)
{
    if (++m_problemCount > MostProblems)
        return;
    m_problems.append(QString::fromStdString(
        place + ": expected a line of a report of \"apply --json\": " + reason));
}

void JobReports::AddShard(const ISerializer& line)
{
    if (!line.Has("shard"))
        return;
    const auto shard = LumetraHost::JobShard::Parse(GetText(line, "shard"));
    if (!shard)
        FailWith("expected a shard such as 2/4, found \"" + line.Get("shard", "") + "\"");
    if (m_shardCount != 0 && m_shardCount != shard->count)
        FailWith("expected one of " + std::to_string(m_shardCount) +
                 " shards, as in the reports before, found " + shard->GetName().toStdString());
    m_shardCount = shard->count;
    m_shard = shard;
}

void JobReports::AddJob(const ISerializer& line)
{
    Job job;
    job.photo = GetText(line, "photo");
    job.output = GetText(line, "output");
    job.message = GetText(line, "message");
    job.state = ReadState(line.Get("state", ""));
    const auto [place, isNew] = m_places.emplace(Key(job.photo, job.output), m_jobs.size());
    if (isNew)
        m_jobs.push_back(job);
    else if (!IsSettled(m_jobs[place->second].state))
        m_jobs[place->second] = job;
    if (IsSettled(job.state))
        m_photosDone.insert(job.photo);
}

/// A photo that failed before it had an output is done when a later attempt made one of it.
std::vector<JobReports::Job> JobReports::GetJobs() const
{
    std::vector<Job> jobs;
    std::copy_if(m_jobs.begin(), m_jobs.end(), std::back_inserter(jobs), [this](const Job& job) {
        return IsSettled(job.state) || !job.output.isEmpty() || m_photosDone.count(job.photo) == 0;
    });
    return jobs;
}

QStringList JobReports::GetUnreported() const
{
    std::set<QString> reported;
    for (const Job& job : m_jobs)
        reported.insert(job.photo);
    QStringList unreported;
    for (const QString& photo : m_list)
        if (reported.insert(photo).second)
            unreported.append(photo);
    return unreported;
}

QStringList JobReports::GetPhotosToRepeat() const
{
    QStringList photos;
    std::set<QString> known;
    for (const Job& job : GetJobs())
        if (!IsSettled(job.state) && known.insert(job.photo).second)
            photos.append(job.photo);
    return photos + GetUnreported();
}

std::vector<int> JobReports::GetMissingShards() const
{
    std::vector<int> missing;
    for (int shard = 1; shard <= m_shardCount; ++shard)
        if (m_finishedShards.count(shard) == 0)
            missing.push_back(shard);
    return missing;
}

/// Reports without an end do not matter where others tell of every job.
bool JobReports::HasAllReports() const
{
    const auto jobs = GetJobs();
    const bool tellsOfAll = m_jobCount > 0 && static_cast<int>(jobs.size()) == m_jobCount;
    if (tellsOfAll)
        return true;
    if (m_shardCount > 0)
        return GetMissingShards().empty();
    return m_finished > 0 && m_unfinished.isEmpty();
}

bool JobReports::IsComplete() const
{
    return HasAllReports() && m_problems.isEmpty() && GetPhotosToRepeat().isEmpty();
}

} // namespace LumetraCli
