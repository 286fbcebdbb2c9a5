// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/PhotoExport.h"

#include "engine/Renderer.h"
#include "exporting/StreamedExport.h"
#include "photo/PhotoReader.h"
#include "storage/CheckedFileWriter.h"

#include "Zorvik/Exception.h"

#include <QDir>
#include <QFileInfo>

#include <boost/current_function.hpp>

#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

void MakeFolder(const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        throw Zorvik::Exception(folder.toStdString() + ": the folder cannot be made",
                                BOOST_CURRENT_FUNCTION, "exporting/PhotoExport", __LINE__);
}

/// Null when it was cancelled.
Image Draw(Image picture, const std::vector<EffectsSettings>& packages, ThreadPool& pool,
           const PhotoExport::Options& options)
{
    const Renderer renderer(pool);
    RenderOptions rendering;
    rendering.threads = options.threads;
    rendering.cancel = options.cancel;
    for (const EffectsSettings& package : packages)
        picture = renderer.Render(picture, package, rendering);
    return picture;
}

} // namespace

PhotoExport::Result PhotoExport::Run(const QString& source, const QString& target,
                                     const std::vector<EffectsSettings>& packages,
                                     const Options& options) const
{
    const PhotoFormat format = PhotoWriter::GetFormatOf(target);
    const std::string sourceName = source.toStdString();
    Result result;
    const Bytes encoded = Convert(PhotoReader::ReadContent(source), sourceName, format,
                                  target.toStdString(), packages, options, result.warnings);
    result.isWritten = !encoded.empty();
    if (result.isWritten) {
        MakeFolder(target);
        CheckedFileWriter::Write(target, encoded.data(), encoded.size());
    }
    return result;
}

Bytes PhotoExport::Convert(const Bytes& source, const std::string& sourceName, PhotoFormat format,
                           const std::string& targetName,
                           const std::vector<EffectsSettings>& packages, const Options& options,
                           std::vector<std::string>& warnings) const
{
    if (options.isStreamed) {
        if (auto streamed = StreamedExport::Open(source, sourceName))
            return streamed->Run(packages, format, targetName, options, *m_pool, warnings);
    }
    Photo photo = PhotoReader::Decode(source, sourceName);
    warnings = photo.warnings;
    photo.image = Draw(std::move(photo.image), packages, *m_pool, options);
    if (photo.image.IsNull())
        return {};
    return PhotoWriter::Encode(photo, format, options.writing, targetName);
}

} // namespace LumetraHost
