// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/batch/OutputTemplate.h"
#include "exporting/batch/PhotoJob.h"

#include <QString>

#include <memory>
#include <vector>

namespace LumetraHost {

/// A photo as it was asked for.
struct PhotoInput
{
    QString path;
    QString problem = {}; ///< why it cannot be a photo; empty: it may be one
    bool isPiped = false; ///< comes through a pipe: `path` names it for the user, but no file
};

/// The files that one look in one form makes of all photos.
struct OutputSet
{
    OutputTemplate names;
    OutputValues values = {};                    ///< without photo and number
    std::shared_ptr<const LookSource> look = {}; ///< null: the photos as they are
    std::shared_ptr<const ExportRecipe> recipe = std::make_shared<ExportRecipe>();
};

/// Ways to treat an output that is there already.
enum class ExistingOutput
{
    Refuse,
    Overwrite,
    Skip,               ///< keep any file
    KeepDone,           ///< keep what the job would write, refuse any other file
    KeepDoneOrOverwrite ///< keep what the job would write, overwrite any other file
};

/// How the plan treats files that are there.
struct OutputRules
{
    ExistingOutput existing = ExistingOutput::Refuse;
    /// Ends the message that a file exists: how its user can allow more. May be empty.
    QString existingHint = {};
    /// Ends the message that a file exists that is not what its job makes. May be empty.
    QString otherHint = {};
    /// Leaves out photos that are results: those that record a look, and those that are an output
    /// of another photo of the batch.
    bool leavesOutResults = false;
    QString resultHint = {}; ///< ends the message about a result; may be empty
};

/// Chooses the output of each photo before anything is written.
class OutputPlan
{
public:
    /// Makes a job per photo and set: photos in their order, each with all its sets. A photo that
    /// is none or is left out has one job alone. A photo's output that exists fails, unless it may
    /// be overwritten or skipped, or kept, which the job finds out when it begins; no photo of the
    /// batch is ever overwritten, and none with an edit of its own; a result that was left out may
    /// be, if its metadata prove that it is one. Jobs that would be written to one file all fail,
    /// without effect on the others. A photo that is named again, whether by another path or
    /// through a link, is skipped when it would be written to the same file. Photos are numbered in
    /// their order, without those that are left out since they record a look.
    static std::vector<PhotoJob> Make(const std::vector<PhotoInput>& photos,
                                      const std::vector<OutputSet>& sets, const OutputRules& rules);
};

} // namespace LumetraHost
