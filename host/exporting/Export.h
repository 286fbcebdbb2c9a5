// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"
#include "photo/Photo.h"
#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include <QString>

#include <functional>
#include <string>

namespace LumetraHost {

/// Controls of one export, none of which changes the file.
struct ExportControl
{
    /// Percent of the whole, 0 to 100: never less than before. Called by the threads of the export,
    /// one call at a time.
    using Progress = std::function<void(int percent)>;

    int threads = 0;                     ///< below 1: all of the pool
    const CancelToken* cancel = nullptr; ///< may stop the export from another thread
    Progress progress = {};              ///< may be empty
};

/// Makes files of photos for the editor and the tool alike. Each package of the look is drawn at
/// the depth of the file, or at the photo's where that has more bits, blended with the picture
/// below it and rounded once; the picture is then rounded to the depth of the file and shrunk. All
/// of it goes in bands of rows, and JPEG files that are upright and sRGB are decoded in such bands
/// too, so that they are never whole in memory. A file and its decoded photo make the same export.
/// Usable from several threads.
class Export
{
public:
    struct Result
    {
        Bytes file;      ///< empty when it was cancelled
        Warnings damage; ///< of the photo's own file, which is known since it was read
        /// Tells what of the photo the new file lacks: reductions (see Photo), blocks that the
        /// format does not hold.
        Warnings losses;
    };

    /// `pool` is kept by reference.
    explicit Export(ThreadPool& pool = ThreadPool::GetShared()) : m_pool(&pool) {}

    /// Creates or replaces the file at `target`, and its folder. The result holds the bytes that
    /// were written. Zorvik::Exception as from PhotoReader, PhotoWriter and ExportRecipe::Check(),
    /// and naming the photo when there is not enough memory; the old file is then untouched.
    Result Run(const QString& source, const QString& target, const ExportRecipe& recipe,
               const ExportControl& control = {}) const;

    /// Exports a photo's file in memory. `sourceName` and `targetName` begin the texts of
    /// exceptions. std::bad_alloc.
    Result MakeFromFile(const Bytes& source, const std::string& sourceName,
                        const ExportRecipe& recipe, const std::string& targetName,
                        const ExportControl& control = {}) const;

    /// Exports a photo that was read before. Its pixels are only read.
    Result MakeFromPhoto(const KeptPhoto& photo, const ExportRecipe& recipe,
                         const std::string& targetName, const ExportControl& control = {}) const;

private:
    ThreadPool* m_pool;
};

} // namespace LumetraHost
