// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/PhotoBatch.h"

#include "exporting/ExportMemory.h"
#include "exporting/MemoryBudget.h"
#include "photo/PhotoWriter.h"
#include "photo/file/PhotoLimits.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <future>
#include <new>

namespace LumetraHost {
namespace {

/// The threads of one batch, each of which takes the next job that nobody has begun.
class Workers
{
public:
    Workers(std::vector<PhotoJob>& jobs, const ExportControl& control,
            const PhotoBatch::Limits& limits, bool isDry)
        : m_jobs(jobs), m_control(control), m_limits(limits), m_memory(limits.memory),
          m_isDry(isDry), m_warnings(jobs.size()), m_done(jobs.size())
    {
    }

    void Work();
    /// Waits for a job and returns the warnings about its photo.
    const Warnings& WaitFor(std::size_t job);

private:
    bool IsCancelled() const { return m_control.cancel && m_control.cancel->IsCancelled(); }
    void Carry(PhotoJob& job, Warnings& warnings);
    JobExport::Outcome WriteFile(const PhotoJob& job, Warnings& warnings);

    std::vector<PhotoJob>& m_jobs;
    const ExportControl m_control;
    const PhotoBatch::Limits& m_limits;
    MemoryBudget m_memory;
    const bool m_isDry; ///< nothing is written
    const JobExport m_exports;
    std::vector<Warnings> m_warnings;
    std::vector<std::promise<void>> m_done;
    std::atomic<std::size_t> m_next{0};
};

void Workers::Work()
{
    for (std::size_t i = m_next++; i < m_jobs.size(); i = m_next++) {
        if (m_jobs[i].state == PhotoJob::State::Planned && !IsCancelled())
            Carry(m_jobs[i], m_warnings[i]);
        m_done[i].set_value();
    }
}

JobExport::Outcome Workers::WriteFile(const PhotoJob& job, Warnings& warnings)
{
    ExportRecipe recipe = *job.recipe;
    recipe.format = PhotoWriter::GetFormatOf(job.output);
    if (job.look) {
        const PhotoLook look = job.look->Get(job.photo);
        recipe.look = look.drawing;
        recipe.records = look.records;
        warnings = look.warnings;
    }
    if (m_isDry && job.existing == JobExport::Existing::Replace)
        return JobExport::Outcome::Written; // whatever is there
    const MemoryBudget::Share share(m_memory, ExportMemory::Estimate(job.photo, recipe));
    const JobExport::Job work{job.photo, job.output, recipe, job.existing, job.refusal};
    return m_isDry ? m_exports.Check(work) : m_exports.Run(work, m_control, warnings);
}

void Workers::Carry(PhotoJob& job, Warnings& warnings)
{
    if (m_limits.findObstacle)
        job.message = m_limits.findObstacle(job);
    if (!job.message.isEmpty()) {
        job.state = PhotoJob::State::Failed;
        return;
    }
    try {
        const auto outcome = WriteFile(job, warnings);
        if (outcome == JobExport::Outcome::Kept)
            job.state = PhotoJob::State::Skipped;
        else if (outcome == JobExport::Outcome::Written && !m_isDry)
            job.state = PhotoJob::State::Written;
    } catch (const std::bad_alloc&) {
        job.state = PhotoJob::State::Failed;
        job.message =
            QStringLiteral("%1: %2").arg(job.photo, QLatin1String(PhotoLimits::OutOfMemory));
    } catch (const std::exception& error) {
        job.state = PhotoJob::State::Failed;
        job.message = QString::fromUtf8(error.what());
    }
}

const Warnings& Workers::WaitFor(std::size_t job)
{
    m_done[job].get_future().wait();
    return m_warnings[job];
}

} // namespace

void PhotoBatch::Run(std::vector<PhotoJob>& jobs, const Ended& ended) const
{
    Start(jobs, ended, false);
}

void PhotoBatch::Check(std::vector<PhotoJob>& jobs, const Ended& ended) const
{
    Start(jobs, ended, true);
}

void PhotoBatch::Start(std::vector<PhotoJob>& jobs, const Ended& ended, bool isDry) const
{
    const int count = std::min(m_limits.parallel, static_cast<int>(jobs.size()));
    ExportControl control;
    control.threads = std::max(1, ThreadPool::GetShared().GetThreadCount() / std::max(1, count));
    control.cancel = m_limits.cancel;
    Workers workers(jobs, control, m_limits, isDry);
    std::vector<std::future<void>> threads; // destroyed futures wait for their threads
    for (int i = 0; i < count; ++i)
        threads.push_back(std::async(std::launch::async, &Workers::Work, &workers));
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        const Warnings& warnings = workers.WaitFor(i);
        ended(jobs[i], warnings);
    }
}

} // namespace LumetraHost
