// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/PhotoLoader.h"

#include "photo/PhotoReader.h"

#include <exception>
#include <memory>
#include <new>

namespace LumetraEditor {

using LumetraHost::PhotoIdentity;

struct PhotoLoader::Job
{
    QString path;
    int number = 0;
    LumetraHost::KeptPhoto photo;
    PhotoIdentity identity;
    QString error;

    void Read()
    {
        try {
            identity = PhotoIdentity::Of(path);
            photo = LumetraHost::PhotoReader::ReadToKeep(path);
        } catch (const std::bad_alloc&) {
            error = PhotoLoader::tr("%1: there is not enough memory for this photo").arg(path);
        } catch (const std::exception& problem) {
            error = QString::fromUtf8(problem.what());
        }
    }
};

PhotoLoader::PhotoLoader(QObject* parent) : QObject(parent) {}

void PhotoLoader::Load(const QString& path)
{
    m_isLoading = true;
    const auto job = std::make_shared<Job>();
    job->path = path;
    job->number = ++m_newest;
    const auto work = [this, job] {
        if (job->number == m_newest)
            job->Read();
    };
    m_thread.Run(work, [this, job] { Deliver(*job); });
}

void PhotoLoader::Deliver(const Job& job)
{
    if (job.number != m_newest)
        return;
    m_isLoading = false;
    if (job.error.isEmpty())
        emit loaded(job.path, job.photo, job.identity);
    else
        emit failed(job.path, job.error);
}

} // namespace LumetraEditor
