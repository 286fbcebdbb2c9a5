// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/SelectionExporter.h"

#include "export/ExportGuard.h"
#include "exporting/MemoryBudget.h"
#include "exporting/batch/PhotoBatch.h"
#include "threads/CancelToken.h"

#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <utility>

namespace LumetraEditor {
namespace {

using LumetraHost::PhotoBatch;
using LumetraHost::PhotoJob;
using State = PhotoJob::State;

/// The window goes on working meanwhile, with the photo that it shows.
constexpr int ShareOfBudget = 2;

} // namespace

struct SelectionExporter::Batch
{
    std::vector<PhotoJob> jobs;
    bool replaces = false;
    QStringList warnings;
    LumetraHost::CancelToken cancel;
};

SelectionExporter::SelectionExporter(std::shared_ptr<const ExportGuard> guard, QObject* parent)
    : QObject(parent), m_guard(std::move(guard))
{
}

SelectionExporter::~SelectionExporter()
{
    Cancel();
}

void SelectionExporter::Start(const SelectionPlan& plan)
{
    Q_ASSERT(!IsRunning());
    m_outcome = plan;
    m_wasPlanned.clear();
    for (const PhotoJob& job : plan.jobs)
        m_wasPlanned.push_back(job.state == State::Planned);
    m_warnings.clear();
    m_batch = std::make_shared<Batch>();
    m_batch->jobs = plan.jobs;
    m_batch->replaces = plan.replaces;
    m_thread.Run([this, batch = m_batch] { Run(batch); }, [this, batch = m_batch] { End(*batch); });
}

/// Runs on the thread.
void SelectionExporter::Run(const std::shared_ptr<Batch>& batch)
{
    PhotoBatch::Limits limits;
    limits.parallel = std::max(1, QThread::idealThreadCount());
    limits.memory = LumetraHost::MemoryBudget::GetDefault() / ShareOfBudget;
    limits.cancel = &batch->cancel;
    limits.findObstacle = [this, &batch](const PhotoJob& job) {
        return FindObstacle(job, batch->replaces);
    };
    const int total = static_cast<int>(batch->jobs.size());
    int done = 0;
    PhotoBatch(limits).Run(batch->jobs, [&](const PhotoJob& job, const auto& warnings) {
        for (const std::string& warning : warnings)
            batch->warnings.append(QFileInfo(job.photo).fileName() + QStringLiteral(": ") +
                                   QString::fromStdString(warning));
        ++done;
        const auto tell = [this, done, total, photo = job.photo] {
            emit progressed(done, total, photo);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

QString SelectionExporter::FindObstacle(const PhotoJob& job, bool replaces) const
{
    if (!QFileInfo::exists(job.output))
        return {};
    if (replaces)
        return m_guard->FindObstacle(job.output);
    return tr("“%1” has appeared meanwhile and is not replaced.")
        .arg(QFileInfo(job.output).fileName());
}

void SelectionExporter::End(const Batch& batch)
{
    m_outcome.jobs = batch.jobs;
    m_warnings = batch.warnings;
    m_batch.reset();
    emit ended();
}

bool SelectionExporter::IsRest(const PhotoJob& job, bool wasPlanned)
{
    return wasPlanned && (job.state == State::Failed || job.state == State::Planned);
}

bool SelectionExporter::HasRest() const
{
    for (std::size_t i = 0; i < m_outcome.jobs.size(); ++i)
        if (IsRest(m_outcome.jobs[i], m_wasPlanned[i]))
            return true;
    return false;
}

void SelectionExporter::TryAgain()
{
    SelectionPlan rest;
    rest.replaces = m_outcome.replaces;
    for (std::size_t i = 0; i < m_outcome.jobs.size(); ++i) {
        if (!IsRest(m_outcome.jobs[i], m_wasPlanned[i]))
            continue;
        rest.jobs.push_back(m_outcome.jobs[i]);
        rest.jobs.back().state = State::Planned;
        rest.jobs.back().message.clear();
    }
    Start(rest);
}

void SelectionExporter::Cancel()
{
    if (m_batch)
        m_batch->cancel.Cancel();
}

} // namespace LumetraEditor
