// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/PhotoExport.h"

#include "exporting/ExportLayer.h"
#include "exporting/StreamedExport.h"
#include "photo/PhotoReader.h"
#include "photo/file/PhotoLimits.h"
#include "storage/CheckedFileWriter.h"

#include "Zorvik/Exception.h"

#include <QDir>
#include <QFileInfo>

#include <boost/current_function.hpp>

#include <algorithm>
#include <new>
#include <utility>

namespace LumetraHost {
namespace {

void MakeFolder(const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        throw Zorvik::Exception(folder.toStdString() + ": the folder cannot be made",
                                BOOST_CURRENT_FUNCTION, "exporting/PhotoExport", __LINE__);
}

/// On `picture` itself where that is possible: nobody else has it. False when it was cancelled.
bool DrawLayer(const ExportLook::Layer& layer, Image& picture, ThreadPool& pool,
               const PictureRunForm& form, const CancelToken* cancel)
{
    ExportLayer drawn(layer, form);
    if (drawn.ChangesNothing())
        return true;
    PictureRun& run = drawn.GetRun();
    Image target = picture;
    if (!run.CanDrawInPlace())
        target = Image::AllocateUninitialised(form.width, form.height, form.depth);
    BandGraph graph(run.GetBandCount());
    run.AddTo(graph, RowWindow(picture), RowWindow(target), -1);
    const bool isDone = graph.Run(pool, form.threads, cancel);
    picture = std::move(target);
    return isDone;
}

/// Null when it was cancelled.
Image Draw(Image picture, const ExportLook& look, ThreadPool& pool,
           const PhotoExport::Options& options)
{
    PictureRunForm form;
    form.width = picture.GetWidth();
    form.height = picture.GetHeight();
    form.depth = picture.GetDepth();
    form.isa = GetDefaultIsa();
    form.threads = options.threads < 1 ? pool.GetThreadCount()
                                       : std::min(options.threads, pool.GetThreadCount());
    const bool is8Bit = form.depth == Image::Depth::Bits8;
    for (const auto& layer : look.GetLayers(form.width, form.height, is8Bit, pool, options.cancel))
        if (!DrawLayer(layer, picture, pool, form, options.cancel))
            return {};
    return picture;
}

} // namespace

PhotoExport::Result PhotoExport::Run(const QString& source, const QString& target,
                                     const ExportLook& look, const Options& options) const
{
    const PhotoFormat format = PhotoWriter::GetFormatOf(target);
    const std::string sourceName = source.toStdString();
    Result result;
    try {
        const Bytes encoded = Convert(PhotoReader::ReadContent(source), sourceName, format,
                                      target.toStdString(), look, options, result.warnings);
        result.isWritten = !encoded.empty();
        if (result.isWritten) {
            MakeFolder(target);
            CheckedFileWriter::Write(target, encoded.data(), encoded.size());
        }
    } catch (const std::bad_alloc&) {
        throw Zorvik::Exception(sourceName + ": " + PhotoLimits::OutOfMemory,
                                BOOST_CURRENT_FUNCTION, "exporting/PhotoExport", __LINE__);
    }
    return result;
}

Bytes PhotoExport::Convert(const Bytes& source, const std::string& sourceName, PhotoFormat format,
                           const std::string& targetName, const ExportLook& look,
                           const Options& options, Warnings& warnings) const
{
    if (options.isStreamed) {
        if (auto streamed = StreamedExport::Open(source, sourceName))
            return streamed->Run(look, format, targetName, options, *m_pool, warnings);
    }
    Photo photo = PhotoReader::Decode(source, sourceName);
    warnings = photo.warnings;
    warnings.insert(warnings.end(), photo.reductions.begin(), photo.reductions.end());
    photo.image = Draw(std::move(photo.image), look, *m_pool, options);
    if (photo.image.IsNull())
        return {};
    return PhotoWriter::Encode(photo, format, options.writing, targetName, &warnings);
}

} // namespace LumetraHost
