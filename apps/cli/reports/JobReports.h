// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/batch/JobShard.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Zorvik::Brassel {
class ISerializer;
}

namespace LumetraCli {

/// The reports of "apply --json" from several machines and attempts, as one. A job counts as done
/// when one of them says so, in whatever order they come: jobs are tried again, and what is done
/// stays done. Lines that are torn, as those of killed programs are, count for nothing.
class JobReports
{
public:
    enum class State
    {
        Written,
        Skipped, ///< the file was there
        LeftOut, ///< the photo is a result itself
        Failed,
        Open ///< begun or planned, without an end
    };

    struct Job
    {
        QString photo;
        QString output; ///< empty where the report names none
        State state = State::Open;
        QString message;
    };

    /// Adds the report in that file. Zorvik::Exception when it cannot be read.
    void Read(const QString& file);
    /// Sets the photos that the jobs were made from. Without it, photos of which no report tells
    /// are not missed.
    void SetList(const QStringList& photos) { m_list = photos; }

    /// All jobs, each once, in the order in which they were first told of.
    std::vector<Job> GetJobs() const;
    /// The photos of the list of which no report tells.
    QStringList GetUnreported() const;
    /// The photos to be done again: those with a job that is not done, and those unreported.
    QStringList GetPhotosToRepeat() const;
    /// The shards of which no report has an end with all jobs carried out, from 1 on.
    std::vector<int> GetMissingShards() const;
    int GetShardCount() const { return m_shardCount; }
    /// The reports that have no end, because their program was killed or still runs.
    const QStringList& GetUnfinished() const { return m_unfinished; }
    /// "file:line: …" for each line that is no part of a report, or of one of another division; for
    /// the first ones of a file that has many.
    const QStringList& GetProblems() const { return m_problems; }

    /// True when every job of the whole list is told of, none has failed, and no line was passed
    /// over.
    bool IsComplete() const;

private:
    using Key = std::pair<QString, QString>;

    void AddLine(const QByteArray& line, const std::string& place);
    void AddJob(const Zorvik::Brassel::ISerializer& line);
    void AddProblem(const std::string& place, const std::string& reason);
    void AddEnd(const Zorvik::Brassel::ISerializer& summary);
    void AddShard(const Zorvik::Brassel::ISerializer& line);
    bool HasAllReports() const;

    std::vector<Job> m_jobs;
    std::map<Key, std::size_t> m_places; ///< in m_jobs
    std::set<QString> m_photosDone;      ///< with at least one job that is done
    QStringList m_list;
    QStringList m_unfinished;
    QStringList m_problems;
    std::set<int> m_finishedShards;
    int m_shardCount = 0;
    int m_jobCount = 0;     ///< of the whole list, as far as a report says it
    int m_finished = 0;     ///< reports with an end
    int m_problemCount = 0; ///< in the report that is read
    bool m_hasEnd = false;
    bool m_isWhole = false;                       ///< the end says that no job was given up
    std::optional<LumetraHost::JobShard> m_shard; ///< of the report that is read
};

} // namespace LumetraCli
