// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/batch/PhotoJob.h"
#include "photo/file/Warnings.h"
#include "threads/CancelToken.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace LumetraHost {

/// Exports many photos, several of them at the same time: each photo then has a share of the
/// threads, which costs less than dividing every photo's work. Photos wait while the running ones
/// take too much memory. One that fails does not stop the others.
class PhotoBatch
{
public:
    /// Called on the calling thread with each job when it has ended, in the order of the jobs.
    using Ended = std::function<void(const PhotoJob&, const Warnings& warnings)>;

    struct Limits
    {
        int parallel = 1;         ///< photos at the same time
        std::uint64_t memory = 0; ///< bytes that they may take together, by estimate
        /// May stop the batch from another thread: running photos are given up, nothing half
        /// written stays, and what is not done stays planned. Null: nobody stops it.
        const CancelToken* cancel = nullptr;
        /// Asked by the threads of the batch when a job begins, since much may have happened after
        /// it was planned: the reason why its file may not be written, else nothing. May be empty.
        std::function<QString(const PhotoJob&)> findObstacle = {};
    };

    explicit PhotoBatch(const Limits& limits) : m_limits(limits) {}

    /// Carries out the planned jobs, each in the format of its output's extension. Nobody may
    /// change the effects of the looks meanwhile.
    void Run(std::vector<PhotoJob>& jobs, const Ended& ended) const;
    /// Finds out which of the planned jobs are done already, and writes nothing: those become
    /// skipped, those whose output may not be replaced fail, and the others stay planned.
    void Check(std::vector<PhotoJob>& jobs, const Ended& ended) const;

private:
    void Start(std::vector<PhotoJob>& jobs, const Ended& ended, bool isDry) const;

    Limits m_limits;
};

} // namespace LumetraHost
