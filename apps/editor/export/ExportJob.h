// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "export/ExportOptions.h"

#include "exporting/Export.h"
#include "photo/Photo.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <memory>
#include <vector>

namespace LumetraEditor {

class ExportGuard;

/// The export of the open photo into one file, which the guard may forbid. It holds copies of all
/// that it needs, so that the edit can go on meanwhile. One thread runs it; any may cancel it.
class ExportJob
{
public:
    using Progress = LumetraHost::ExportControl::Progress;

    /// `packages` are drawn in this order, bottom first; `records` go into the metadata. Both go
    /// into the recipe of the options. `guard` is asked right before the file is written; null: no
    /// file is guarded.
    ExportJob(const LumetraHost::KeptPhoto& photo,
              const std::vector<Zorvik::Quindle::EffectsSettings>& packages,
              const std::vector<LumetraHost::EditRecord>& records, const ExportOptions& options,
              std::shared_ptr<const ExportGuard> guard = nullptr);

    /// False when it was cancelled; the file is then as it was. Zorvik::Exception naming the file
    /// when it fails.
    bool Run(const Progress& progress);
    void Cancel() { m_cancel.Cancel(); }

    /// Sentences about parts of the photo that the written file lacks. Damage of the photo itself
    /// was reported when it was opened.
    const LumetraHost::Warnings& GetWarnings() const { return m_warnings; }

    const ExportOptions& GetOptions() const { return m_options; }

private:
    /// Asks the guard again, since much may have happened after the output was chosen.
    void CheckOutput() const;

    const LumetraHost::KeptPhoto m_photo;
    ExportOptions m_options;
    const std::shared_ptr<const ExportGuard> m_guard;
    LumetraHost::CancelToken m_cancel;
    LumetraHost::Warnings m_warnings;
};

} // namespace LumetraEditor
