// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "OutputPlan.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "exporting/ExportLook.h"
#include "photo/PhotoWriter.h"
#include "photo/file/Warnings.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace LumetraCli {

/// Puts effects on many photos, several of them at the same time: a photo then has a share of the
/// threads, which costs less than dividing every photo's work, and all share the look's tables.
/// Photos wait while those in work take too much memory. One that fails does not stop the others.
class PhotoBatch
{
public:
    /// Called on the calling thread with each job when it has ended, in the order of the jobs.
    using Ended = std::function<void(const PhotoJob&, const LumetraHost::Warnings& warnings)>;

    struct Limits
    {
        int parallel = 1;         ///< photos at the same time
        std::uint64_t memory = 0; ///< bytes that they may take together, by estimate
    };

    PhotoBatch(const Limits& limits, const LumetraHost::PhotoWriter::Options& options,
               LumetraHost::ExportLook::Precision precision);

    /// Carries out the planned ones of `jobs`. Nobody may change the effects meanwhile.
    void Run(std::vector<PhotoJob>& jobs,
             const std::vector<Zorvik::Quindle::EffectsSettings>& packages,
             const Ended& ended) const;

private:
    Limits m_limits;
    LumetraHost::PhotoWriter::Options m_options;
    LumetraHost::ExportLook::Precision m_precision;
};

} // namespace LumetraCli
