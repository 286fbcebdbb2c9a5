// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"
#include "exporting/batch/JobExport.h"
#include "exporting/batch/PhotoLook.h"

#include <QString>

#include <memory>

namespace LumetraHost {

/// One file of a batch: the photo, what is put on it, the output, and the outcome. Each job carries
/// its own look and recipe, so that other looks or recipes of a photo are just more jobs.
struct PhotoJob
{
    enum class State
    {
        Planned, ///< not done yet, or given up when the batch was cancelled
        Written,
        Skipped, ///< the output is there and is kept, or the photo was named before
        LeftOut, ///< the photo is a result of an earlier batch
        Failed
    };

    QString photo;  ///< as the user named it
    QString output; ///< absolute; empty for a photo that is left out
    State state = State::Planned;
    QString message;                            ///< the reason, unless planned or written
    std::shared_ptr<const LookSource> look;     ///< null: the photo as it is
    std::shared_ptr<const ExportRecipe> recipe; ///< without look, records and format; never null
    /// Says what becomes of a file that is at `output` when the job begins.
    JobExport::Existing existing = JobExport::Existing::Replace;
    QString refusal = {}; ///< the message about such a file that may not be replaced; no name
};

} // namespace LumetraHost
