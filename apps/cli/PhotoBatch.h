// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "OutputPlan.h"
#include "photo/Photo.h"
#include "photo/PhotoWriter.h"

#include <functional>
#include <vector>

namespace LumetraCli {

/// Reads, changes and writes many photos. Reading and writing run beside the changing, which stays
/// on the calling thread; at most `parallel` photos are read ahead and as many wait for writing.
/// One that fails does not stop the others.
class PhotoBatch
{
public:
    using Change = std::function<LumetraHost::Image(const LumetraHost::Image&)>;
    /// Called with each job when it has ended, in the order of the jobs.
    using Ended = std::function<void(const PhotoJob&, const std::vector<std::string>& warnings)>;

    PhotoBatch(int parallel, const LumetraHost::PhotoWriter::Options& options);

    /// Carries out the planned ones of `jobs`.
    void Run(std::vector<PhotoJob>& jobs, const Change& change, const Ended& ended) const;

private:
    int m_parallel;
    LumetraHost::PhotoWriter::Options m_options;
};

} // namespace LumetraCli
