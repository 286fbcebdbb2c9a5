// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/batch/OutputPlan.h"
#include "photo/file/Warnings.h"

#include <optional>

namespace LumetraCli {

class Console;

/// One photo that comes from the standard input, goes to the standard output, or both.
class PipedPhoto
{
public:
    /// `format`: of the standard output; nothing: the photo's own, where it can be written.
    PipedPhoto(Console& console, const std::optional<LumetraHost::PhotoFormat>& format)
        : m_console(console), m_format(format)
    {
    }

    /// The job that writes the photo to the standard output. Its output is named "-".
    static LumetraHost::PhotoJob MakeJob(const LumetraHost::PhotoInput& photo,
                                         const LumetraHost::OutputSet& set);

    /// Carries out the planned job of `photo`, in the format of the output's extension. A photo for
    /// the standard output without a chosen format keeps its own, if that can be written, and else
    /// becomes a JPEG.
    LumetraHost::Warnings Run(LumetraHost::PhotoJob& job, const LumetraHost::PhotoInput& photo);

private:
    void Carry(LumetraHost::PhotoJob& job, const LumetraHost::PhotoInput& photo,
               LumetraHost::Warnings& warnings);

    Console& m_console;
    const std::optional<LumetraHost::PhotoFormat> m_format;
};

} // namespace LumetraCli
