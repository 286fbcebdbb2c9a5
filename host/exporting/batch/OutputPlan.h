// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace LumetraHost {

class OutputTemplate;

/// One photo of a batch, its output, and the outcome.
struct PhotoJob
{
    enum class State
    {
        Planned,
        Written,
        Skipped, ///< the output was there and is kept, or the photo was named before
        Failed
    };

    QString photo;  ///< as the user named it
    QString output; ///< absolute
    State state = State::Planned;
    QString message; ///< of a failure, and of a photo that was named before
};

/// Ways to treat an output that is there already.
enum class ExistingOutput
{
    Refuse,
    Overwrite,
    Skip
};

/// How the plan treats files that are there.
struct OutputRules
{
    ExistingOutput existing = ExistingOutput::Refuse;
    /// Ends the message that a file exists: how its user can allow more. May be empty.
    QString existingHint = {};
};

/// Chooses the output of each photo before anything is written.
class OutputPlan
{
public:
    /// Makes a job per photo, in their order. A photo's output that exists fails or is skipped,
    /// unless it may be overwritten; no input is ever overwritten, and no photo with an edit of its
    /// own. Photos that would be written to one file all fail, without effect on the others. A
    /// photo that is named again, whether by another path or through a link, is skipped when it
    /// would be written to the same file.
    static std::vector<PhotoJob> Make(const QStringList& photos, const OutputTemplate& outputs,
                                      const QString& presetName, const OutputRules& rules);
};

} // namespace LumetraHost
