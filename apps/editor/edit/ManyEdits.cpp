// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/ManyEdits.h"

#include "edit/FiledEdit.h"
#include "edits/EditStateFormat.h"
#include "userdata/EditPlaces.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <exception>
#include <utility>

namespace LumetraEditor {
namespace {

using LumetraHost::EditState;

const EditState NoEdit;

const EditState& Get(const SharedEdit& edit)
{
    return edit ? *edit : NoEdit;
}

bool AreSame(const SharedEdit& first, const SharedEdit& second)
{
    return first == second || EditChanges::AreSame(Get(first), Get(second));
}

} // namespace

/// A step on its way through its photos.
struct ManyEdits::Batch
{
    std::shared_ptr<ManyStates> states;
    EditChange change; ///< of a step that is done for the first time
    ManyReport report;
    int left = 0; ///< photos
};

/// Holds what a step has made of one photo.
struct ManyEdits::Result
{
    bool isChanged = false;
    QString problem;
    QString notice;
};

ManyEdits::ManyEdits(QObject* parent) : QObject(parent) {}

ManyEdits::~ManyEdits()
{
    m_thread.WaitForJobs();
}

void ManyEdits::Do(const std::shared_ptr<ManyStates>& states, const QStringList& photos,
                   const EditChange& change, const ManyReport& begun)
{
    const auto batch = std::make_shared<Batch>();
    batch->states = states;
    batch->change = change;
    batch->report = begun;
    Start(batch, photos);
}

void ManyEdits::Return(const std::shared_ptr<ManyStates>& states, const QStringList& photos,
                       const ManyReport& begun)
{
    const auto batch = std::make_shared<Batch>();
    batch->states = states;
    batch->report = begun;
    Start(batch, photos);
}

void ManyEdits::Start(const std::shared_ptr<Batch>& batch, const QStringList& photos)
{
    QStringList once = photos;
    once.removeDuplicates();
    {
        const std::lock_guard lock(m_mutex);
        batch->left = once.size();
        m_total += once.size();
        for (const QString& photo : once) {
            if (m_waiting.count(photo) == 0)
                m_order.push_back(photo);
            m_waiting[photo].push_back(batch);
        }
        if (once.isEmpty())
            m_finished.push_back(batch);
    }
    PostReports();
    if (!once.isEmpty())
        m_thread.Run([this] { WorkOff(); }, {});
}

void ManyEdits::WorkOff()
{
    Batches batches;
    for (QString photo = TakeNext(batches); !photo.isEmpty(); photo = TakeNext(batches)) {
        ChangePhoto(photo, batches);
        Leave(photo);
        PostReports();
    }
}

/// Takes the next photo that waits, with what waits for it; none: empty. A photo that another
/// thread is changing is taken when that is done.
QString ManyEdits::TakeNext(Batches& batches)
{
    std::unique_lock lock(m_mutex);
    while (!m_order.empty()) {
        const QString photo = m_order.front();
        m_order.pop_front();
        m_isFree.wait(lock, [&] { return m_busy.count(photo) == 0; });
        if (auto waiting = m_waiting.extract(photo)) {
            batches = std::move(waiting.mapped());
            m_busy.insert(photo);
            return photo;
        }
    }
    return {};
}

void ManyEdits::Leave(const QString& photo)
{
    const std::lock_guard lock(m_mutex);
    m_busy.erase(photo);
    m_isFree.notify_all();
}

void ManyEdits::Settle(const QString& photo)
{
    Batches batches;
    {
        std::unique_lock lock(m_mutex);
        m_isFree.wait(lock, [&] { return m_busy.count(photo) == 0; });
        auto waiting = m_waiting.extract(photo);
        if (!waiting)
            return;
        batches = std::move(waiting.mapped());
        m_busy.insert(photo);
    }
    ChangePhoto(photo, batches);
    Leave(photo);
    PostReports();
}

void ManyEdits::ChangePhoto(const QString& photo, const Batches& batches)
{
    FiledEdit file(photo);
    const SharedEdit original = file.GetEdit();
    SharedEdit edit = original;
    std::vector<Result> results;
    for (const auto& batch : batches)
        results.push_back(file.GetProblem().isEmpty() ? ChangeEdit(*batch, photo, edit)
                                                      : Result{false, file.GetProblem(), {}});
    const bool isToWrite = !AreSame(original, edit);
    const QString error = isToWrite ? Write(file, edit, results.back()) : QString();
    for (Result& result : results)
        if (result.isChanged && !error.isEmpty())
            result = {false, error, {}};
    Enter(photo, batches, results, isToWrite && error.isEmpty());
}

/// Returns why the edit is not written; else empty.
QString ManyEdits::Write(FiledEdit& file, const SharedEdit& edit, Result& result)
{
    const EditWriter::Outcome outcome = file.Write(edit.get());
    if (!outcome.setAside.isEmpty())
        result.notice =
            tr("An earlier edit is kept as %1").arg(QFileInfo(outcome.setAside).fileName());
    if (!outcome.besideError.isEmpty() && outcome.error.isEmpty())
        result.notice =
            tr("Edits that cannot be kept beside their photos are kept in %1.")
                .arg(QDir::toNativeSeparators(LumetraHost::EditPlaces::GetKeptFolder()));
    return outcome.error;
}

ManyEdits::Result ManyEdits::ChangeEdit(Batch& batch, const QString& photo, SharedEdit& edit)
{
    try {
        return batch.change ? DoChange(batch, photo, edit) : GoTo(batch, photo, edit);
    } catch (const std::exception& error) { // there may be not enough memory
        return {false, QString::fromUtf8(error.what()), {}};
    }
}

ManyEdits::Result ManyEdits::DoChange(Batch& batch, const QString& photo, SharedEdit& edit)
{
    const SharedEdit after = Share(batch.change(Get(edit)));
    if (AreSame(edit, after))
        return {};
    batch.states->Set(photo, {edit ? Share(*edit) : nullptr, after});
    edit = after;
    return {true, {}, {}};
}

ManyEdits::Result ManyEdits::GoTo(Batch& batch, const QString& photo, SharedEdit& edit) const
{
    const auto change = batch.states->Find(photo);
    if (!change)
        return {};
    const bool isBack = batch.report.direction == ManyDirection::Back;
    const SharedEdit& from = isBack ? change->after : change->before;
    const SharedEdit& to = isBack ? change->before : change->after;
    if (AreSame(edit, to))
        return {};
    if (!AreSame(edit, from))
        return {false, tr("it has been edited since"), {}};
    edit = to;
    return {true, {}, {}};
}

/// Enters the results of a photo into the reports. A change that could not be written has not been
/// made.
void ManyEdits::Enter(const QString& photo, const Batches& batches,
                      const std::vector<Result>& results, bool isWritten)
{
    const std::lock_guard lock(m_mutex);
    if (isWritten)
        m_changed.append(photo);
    for (std::size_t i = 0; i < batches.size(); ++i) {
        Batch& batch = *batches[i];
        const Result& result = results[i];
        if (!result.problem.isEmpty())
            batch.report.problems.append(
                QStringLiteral("%1: %2").arg(QFileInfo(photo).fileName(), result.problem));
        else
            ++(result.isChanged ? batch.report.changed : batch.report.same);
        if (!result.problem.isEmpty() && batch.change)
            batch.states->Remove(photo);
        if (!result.notice.isEmpty() && !batch.report.notices.contains(result.notice))
            batch.report.notices.append(result.notice);
        CountOff(batch);
        if (batch.left == 0)
            m_finished.push_back(batches[i]);
    }
}

/// The mutex is held.
void ManyEdits::CountOff(Batch& batch)
{
    --batch.left;
    ++m_done;
}

void ManyEdits::Cancel()
{
    {
        const std::lock_guard lock(m_mutex);
        for (const auto& [photo, batches] : m_waiting)
            for (const auto& batch : batches) {
                ++batch->report.cancelled;
                CountOff(*batch);
                if (batch->left == 0)
                    m_finished.push_back(batch);
            }
        m_waiting.clear();
        m_order.clear();
    }
    PostReports();
}

bool ManyEdits::IsRunning() const
{
    const std::lock_guard lock(m_mutex);
    return m_done < m_total;
}

void ManyEdits::WaitForAll()
{
    m_thread.WaitForJobs();
    {
        std::unique_lock lock(m_mutex);
        m_isFree.wait(lock, [this] { return m_busy.empty(); });
    }
    ReportAll();
}

/// Photos with the same edit share one: there may be thousands of them, each with a table of
/// colours.
SharedEdit ManyEdits::Share(const EditState& edit)
{
    const QByteArray key = QCryptographicHash::hash(
        LumetraHost::EditStateFormat::ToDocument(edit).ToText(), QCryptographicHash::Sha256);
    const std::lock_guard lock(m_mutex);
    for (auto entry = m_shared.begin(); entry != m_shared.end();)
        entry = entry->expired() ? m_shared.erase(entry) : std::next(entry);
    SharedEdit shared = m_shared.value(key).lock();
    if (!shared) {
        shared = std::make_shared<const EditState>(edit);
        m_shared.insert(key, shared);
    }
    return shared;
}

void ManyEdits::PostReports()
{
    QMetaObject::invokeMethod(this, &ManyEdits::ReportAll, Qt::QueuedConnection);
}

void ManyEdits::ReportAll()
{
    Batches ended;
    QStringList changed;
    int done = 0, total = 0;
    {
        const std::lock_guard lock(m_mutex);
        ended.swap(m_finished);
        changed.swap(m_changed);
        done = m_done;
        total = m_total;
        if (done == total)
            m_done = m_total = 0;
    }
    if (total > 0)
        emit progressed(done, total);
    for (const QString& photo : changed)
        emit editChanged(photo);
    for (const auto& batch : ended)
        emit finished(batch->states, batch->report);
}

} // namespace LumetraEditor
