// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportLook.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/EditRecord.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

#include <memory>
#include <vector>

namespace LumetraHost {

/// The layers of a look or an edit, bottom first, with their records.
struct LookLayers
{
    std::vector<Zorvik::Quindle::EffectsSettings> packages;
    std::vector<EditRecord> records;

    /// Puts other layers upon these.
    void Add(const LookLayers& upper);
};

/// The layers of one photo, made ready for its export.
struct PhotoLook
{
    std::shared_ptr<const ExportLook> drawing; ///< null: the photo as it is
    std::vector<EditRecord> records;           ///< bottom first
    Warnings warnings;                         ///< about the photo's edit
};

/// Gives photos their looks when their jobs begin, so that a batch of thousands keeps those alone
/// that are being drawn. Usable from several threads.
class LookSource
{
public:
    virtual ~LookSource();

    /// Zorvik::Exception when the photo's look cannot be read.
    virtual PhotoLook Get(const QString& photo) const = 0;
};

/// One look for all photos, which share its tables.
class SharedLook : public LookSource
{
public:
    /// Keeps the effects of the layers, not copies of them.
    explicit SharedLook(const LookLayers& layers,
                        ExportLook::Precision precision = ExportLook::Precision::Tables);

    PhotoLook Get(const QString& photo) const override;

private:
    PhotoLook m_look;
};

} // namespace LumetraHost
