// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/Exporter.h"

#include <exception>
#include <new>

namespace LumetraEditor {

struct Exporter::Outcome
{
    bool isWritten = false;
    QString error;
};

Exporter::Exporter(QObject* parent) : QObject(parent) {}

Exporter::~Exporter()
{
    Cancel();
}

void Exporter::Start(std::shared_ptr<ExportJob> job)
{
    Q_ASSERT(!IsRunning());
    m_job = std::move(job);
    const auto outcome = std::make_shared<Outcome>();
    const auto work = [this, running = m_job, outcome] {
        try {
            outcome->isWritten = running->Run([this](int percent) {
                QMetaObject::invokeMethod(
                    this, [this, percent] { emit progressed(percent); }, Qt::QueuedConnection);
            });
        } catch (const std::bad_alloc&) {
            outcome->error = tr("%1: there is not enough memory").arg(running->GetOptions().path);
        } catch (const std::exception& error) {
            outcome->error = QString::fromUtf8(error.what());
        }
    };
    m_thread.Run(work, [this, outcome] { End(*outcome); });
}

void Exporter::Cancel()
{
    if (m_job)
        m_job->Cancel();
}

void Exporter::End(const Outcome& outcome)
{
    const QString path = m_job->GetOptions().path;
    QStringList warnings;
    for (const std::string& warning : m_job->GetWarnings())
        warnings.append(QString::fromStdString(warning));
    m_job.reset();
    if (!outcome.error.isEmpty())
        emit failed(outcome.error);
    else if (outcome.isWritten)
        emit finished(path, warnings);
    else
        emit cancelled();
}

} // namespace LumetraEditor
