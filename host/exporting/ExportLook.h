// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/run/ColourTable.h"
#include "photo/file/RowEncoder.h"
#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace LumetraHost {

/// Packages of effects made ready for any number of photos, each of which is drawn on the picture
/// below it. Where a package begins with several effects of colour alone they become a table (see
/// ColourTable), made by the first large 8-bit photo that asks for it and shared by all others.
/// Usable from several threads; nobody may change the effects while it is in use.
class ExportLook
{
public:
    enum class Precision
    {
        Tables, ///< within a step of 8 bits of the exact drawing, where it is quicker
        Exact
    };

    /// Smaller pictures are drawn before a table is made.
    static constexpr long long SmallestTabledPixels = 1000000;

    /// One package as it is drawn.
    struct Layer
    {
        std::shared_ptr<const ColourTable> table; ///< stands before the effects, or null
        /// The effects that the table stands for; empty without one.
        Zorvik::Quindle::EffectList tabled;
        Zorvik::Quindle::EffectList effects; ///< those behind the table
        int blendAmount = 1;
    };

    /// Keeps the effects of `packages`, not copies of them.
    explicit ExportLook(const std::vector<Zorvik::Quindle::EffectsSettings>& packages,
                        Precision precision = Precision::Tables);

    /// The packages that may change a picture, lowest first. `is8Bit`: of the drawing, whatever the
    /// depth of the picture. Threads that ask while a table is made wait for it. When it is
    /// cancelled, layers come without tables that are not there yet.
    std::vector<Layer> GetLayers(const PictureForm& picture, bool is8Bit, ThreadPool& pool,
                                 const CancelToken* cancel) const;

    /// A hash of everything that decides how pictures are drawn: the precision, and the effects
    /// with their tables and blends as they stand in files. Equal looks have equal digests in any
    /// process and on any machine. Made when it is first asked for, and kept. Empty for effects
    /// that cannot be written.
    const std::string& GetDigest() const;

private:
    /// The table of a package for pictures of one space; null where none serves.
    struct SpaceTable
    {
        std::shared_ptr<const RgbSpace> space;
        std::shared_ptr<const ColourTable> table;
    };

    /// Photos of a batch come from few cameras. Beyond these the oldest table is dropped.
    static constexpr std::size_t MostTables = 4;

    /// A package, and its tables as soon as somebody has asked for them.
    struct Package
    {
        Zorvik::Quindle::EffectList
            colours; ///< the effects at the beginning for which a table may stand
        Zorvik::Quindle::EffectList others;
        int blendAmount = 1;
        std::vector<SpaceTable> tables; ///< oldest first
    };

    std::string MakeDigest() const;
    static Package Divide(const Zorvik::Quindle::EffectsSettings& settings);
    static std::shared_ptr<const ColourTable>
    FindTable(Package& package, const std::shared_ptr<const RgbSpace>& space, ThreadPool& pool,
              const CancelToken* cancel);
    static Layer MakeLayer(const Package& package, std::shared_ptr<const ColourTable> table);

    const Precision m_precision;
    mutable std::mutex m_mutex;
    mutable std::vector<Package> m_packages;
    mutable std::once_flag m_isDigested;
    mutable std::string m_digest;
};

} // namespace LumetraHost
