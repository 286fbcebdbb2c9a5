// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "export/ExportOptions.h"

#include "photo/Photo.h"
#include "photo/file/PhotoFormat.h"
#include "photo/metadata/EditRecord.h"
#include "threads/CancelToken.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <functional>
#include <memory>
#include <vector>

namespace LumetraEditor {

class ExportGuard;

/// One photo on its way into a file: rendered in full, resized, encoded, written. It holds copies
/// of all that it needs, so that the edit can go on meanwhile. One thread runs it; any may cancel
/// it.
class ExportJob
{
public:
    /// What the user is told; percent of the whole, 0 to 100.
    using Progress = std::function<void(int percent)>;

    /// `packages` are drawn in this order, bottom first; `records` go into the metadata.
    /// `guard` is asked right before the file is written; null: no file is guarded.
    ExportJob(const LumetraHost::Photo& photo,
              const std::vector<Zorvik::Quindle::EffectsSettings>& packages,
              const std::vector<LumetraHost::EditRecord>& records, const ExportOptions& options,
              std::shared_ptr<const ExportGuard> guard = nullptr);

    /// False when it was cancelled; the file is then as it was. Zorvik::Exception naming the file
    /// when it fails.
    bool Run(const Progress& progress);
    void Cancel() { m_cancel.Cancel(); }

    /// Tells, once the file is written, what of the photo it lacks; see PhotoExport::Result.
    const LumetraHost::Warnings& GetWarnings() const { return m_warnings; }

    const ExportOptions& GetOptions() const { return m_options; }

private:
    bool RenderPackages(const Progress& progress);
    void Resize();
    void PrepareMetadata();
    void RecordPresets();
    bool Encode(LumetraHost::Bytes& encoded);
    /// Much may have happened since the output was chosen.
    void CheckOutput() const;

    LumetraHost::Photo m_photo;
    std::vector<Zorvik::Quindle::EffectsSettings> m_packages;
    std::vector<LumetraHost::EditRecord> m_records;
    ExportOptions m_options;
    std::shared_ptr<const ExportGuard> m_guard;
    LumetraHost::CancelToken m_cancel;
    LumetraHost::Warnings m_warnings;
};

} // namespace LumetraEditor
