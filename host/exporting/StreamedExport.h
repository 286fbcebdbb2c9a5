// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/PhotoExport.h"
#include "photo/jpeg/JpegRowReader.h"

#include <memory>
#include <string>

namespace LumetraHost {

/// One photo that can be exported without ever being whole in memory. Made and used by PhotoExport,
/// once.
class StreamedExport
{
public:
    /// Null when the file has to be read whole: it is no JPEG, not upright, or its colours have to
    /// be converted. `content` is kept by reference. Zorvik::Exception for a damaged header.
    static std::unique_ptr<StreamedExport> Open(const Bytes& content, const std::string& name);

    /// As PhotoExport::Convert().
    Bytes Run(const ExportLook& look, PhotoFormat format, const std::string& targetName,
              const PhotoExport::Options& options, ThreadPool& pool, Warnings& warnings);

private:
    StreamedExport(const Bytes& content, const std::string& name) : m_reader(content, name) {}

    JpegRowReader m_reader;
    PhotoMetadata m_metadata;
    Warnings m_warnings;
};

} // namespace LumetraHost
