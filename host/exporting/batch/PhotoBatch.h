// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"
#include "exporting/batch/OutputPlan.h"
#include "photo/file/Warnings.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace LumetraHost {

/// Exports many photos by one recipe, several of them at the same time: each photo then has a share
/// of the threads, which costs less than dividing every photo's work, and all share the look's
/// tables. Photos wait while the running ones take too much memory. One that fails does not stop
/// the others.
class PhotoBatch
{
public:
    /// Called on the calling thread with each job when it has ended, in the order of the jobs.
    using Ended = std::function<void(const PhotoJob&, const Warnings& warnings)>;

    struct Limits
    {
        int parallel = 1;         ///< photos at the same time
        std::uint64_t memory = 0; ///< bytes that they may take together, by estimate
    };

    explicit PhotoBatch(const Limits& limits) : m_limits(limits) {}

    /// Carries out the planned jobs, each in the format of its output's extension. Nobody may
    /// change the effects of the recipe meanwhile.
    void Run(std::vector<PhotoJob>& jobs, const ExportRecipe& recipe, const Ended& ended) const;

private:
    Limits m_limits;
};

} // namespace LumetraHost
