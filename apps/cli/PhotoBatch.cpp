// SPDX-License-Identifier: GPL-2.0-or-later
#include "PhotoBatch.h"

#include "Zorvik/Exception.h"
#include "photo/PhotoReader.h"

#include <QDir>
#include <QFileInfo>

#include <boost/current_function.hpp>

#include <deque>
#include <future>

namespace LumetraCli {
namespace {

using LumetraHost::Photo;
using LumetraHost::PhotoReader;
using LumetraHost::PhotoWriter;

void Write(const QString& path, const Photo& photo, const PhotoWriter::Options& options)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        throw Zorvik::Exception(folder.toStdString() + ": the folder cannot be made",
                                BOOST_CURRENT_FUNCTION, "cli/PhotoBatch", __LINE__);
    PhotoWriter::Write(path, photo, options);
}

/// The jobs that are under way, oldest first.
class Line
{
public:
    Line(std::vector<PhotoJob>& jobs, std::size_t parallel, const PhotoWriter::Options& options)
        : m_jobs(jobs), m_parallel(parallel), m_options(options)
    {
    }

    void Run(const PhotoBatch::Change& change, const PhotoBatch::Ended& ended);

private:
    struct Writing
    {
        PhotoJob* job;
        std::vector<std::string> warnings;
        std::future<void> done;
    };

    void ReadAhead();
    void Start(PhotoJob& job, const PhotoBatch::Change& change);
    void EndOldest(const PhotoBatch::Ended& ended);
    static void Finish(Writing& writing);

    std::vector<PhotoJob>& m_jobs;
    std::size_t m_parallel;
    PhotoWriter::Options m_options;
    std::size_t m_nextToRead = 0;
    std::deque<std::future<Photo>> m_reading;
    std::deque<Writing> m_writing;
};

void Line::ReadAhead()
{
    for (; m_nextToRead < m_jobs.size() && m_reading.size() < m_parallel; ++m_nextToRead)
        if (m_jobs[m_nextToRead].state == PhotoJob::State::Planned)
            m_reading.push_back(
                std::async(std::launch::async, PhotoReader::Read, m_jobs[m_nextToRead].photo));
}

void Fail(PhotoJob& job, const std::exception& error)
{
    job.state = PhotoJob::State::Failed;
    job.message = QString::fromUtf8(error.what());
}

void Line::Start(PhotoJob& job, const PhotoBatch::Change& change)
{
    Writing writing{&job, {}, {}};
    if (job.state == PhotoJob::State::Planned) {
        std::future<Photo> reading = std::move(m_reading.front());
        m_reading.pop_front();
        try {
            Photo photo = reading.get();
            ReadAhead();
            writing.warnings = photo.warnings;
            photo.image = change(photo.image);
            writing.done =
                std::async(std::launch::async, Write, job.output, std::move(photo), m_options);
        } catch (const std::exception& error) {
            Fail(job, error);
        }
    }
    m_writing.push_back(std::move(writing));
}

void Line::Finish(Writing& writing)
{
    if (!writing.done.valid())
        return;
    try {
        writing.done.get();
        writing.job->state = PhotoJob::State::Written;
    } catch (const std::exception& error) {
        Fail(*writing.job, error);
    }
}

void Line::EndOldest(const PhotoBatch::Ended& ended)
{
    Finish(m_writing.front());
    ended(*m_writing.front().job, m_writing.front().warnings);
    m_writing.pop_front();
}

void Line::Run(const PhotoBatch::Change& change, const PhotoBatch::Ended& ended)
{
    for (PhotoJob& job : m_jobs) {
        ReadAhead();
        Start(job, change);
        if (m_writing.size() > m_parallel)
            EndOldest(ended);
    }
    while (!m_writing.empty())
        EndOldest(ended);
}

} // namespace

PhotoBatch::PhotoBatch(int parallel, const LumetraHost::PhotoWriter::Options& options)
    : m_parallel(parallel), m_options(options)
{
}

void PhotoBatch::Run(std::vector<PhotoJob>& jobs, const Change& change, const Ended& ended) const
{
    Line(jobs, static_cast<std::size_t>(m_parallel), m_options).Run(change, ended);
}

} // namespace LumetraCli
