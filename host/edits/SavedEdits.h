// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/batch/PhotoLook.h"

namespace LumetraHost {

/// Gives each photo its own saved edit, as the editor finds it (see EditSearch), with the same look
/// upon all of them. A photo without an edit has that look alone.
class SavedEdits : public LookSource
{
public:
    /// `upper` may be empty. Keeps its effects, not copies of them.
    explicit SavedEdits(const LookLayers& upper,
                        ExportLook::Precision precision = ExportLook::Precision::Tables);

    /// Reads the photo's edit. Zorvik::Exception, which names the photo and the file, when an edit
    /// of the photo cannot be read, even if there is another one: nobody knows which is right. An
    /// edit that was made for other content under the photo's name is drawn with a warning, as
    /// programs that write metadata into a photo change its content too.
    PhotoLook Get(const QString& photo) const override;

private:
    LookLayers m_upper;
    ExportLook::Precision m_precision;
};

} // namespace LumetraHost
