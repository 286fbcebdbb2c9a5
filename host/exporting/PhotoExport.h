// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportLook.h"
#include "photo/PhotoWriter.h"
#include "photo/file/Warnings.h"
#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include <QString>

#include <string>

namespace LumetraHost {

/// Carries photos from file to file through a look, each package of which is blended with the
/// picture below it and rounded once. JPEG files that are upright and sRGB are streamed: bands of
/// rows are decoded, drawn and encoded at the same time, and only what the effects still look at is
/// kept. All others are read whole. Both ways make the same file. Usable from several threads.
class PhotoExport
{
public:
    struct Options
    {
        PhotoWriter::Options writing;
        int threads = 0;                     ///< below 1: all of the pool
        const CancelToken* cancel = nullptr; ///< may stop the export from another thread
        bool isStreamed = true;              ///< where possible; false: never
    };

    struct Result
    {
        bool isWritten = false; ///< false when it was cancelled
        /// Tells what of the photo the file lacks: damage, reductions (see Photo) and blocks that
        /// the format does not hold.
        Warnings warnings;
    };

    /// `pool` is kept by reference.
    explicit PhotoExport(ThreadPool& pool = ThreadPool::GetShared()) : m_pool(&pool) {}

    /// Creates or replaces the file at `target`, whose extension says the format, and its folder.
    /// Zorvik::Exception as from PhotoReader and PhotoWriter, and naming the photo when there is
    /// not enough memory; the old file is then untouched.
    Result Run(const QString& source, const QString& target, const ExportLook& look,
               const Options& options) const;

    /// The file in memory; empty when it was cancelled. `sourceName` and `targetName` begin the
    /// texts of exceptions. std::bad_alloc.
    Bytes Convert(const Bytes& source, const std::string& sourceName, PhotoFormat format,
                  const std::string& targetName, const ExportLook& look, const Options& options,
                  std::vector<std::string>& warnings) const;

private:
    ThreadPool* m_pool;
};

} // namespace LumetraHost
