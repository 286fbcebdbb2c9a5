// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/Export.h"

#include "exporting/ExportRun.h"
#include "exporting/JpegRows.h"
#include "exporting/PictureRows.h"
#include "photo/PhotoReader.h"
#include "photo/file/PhotoLimits.h"
#include "storage/CheckedFileWriter.h"

#include "storage/FailWith.h"

#include <QFileInfo>

#include <new>

namespace LumetraHost {

Export::Result Export::Run(const QString& source, const QString& target, const ExportRecipe& recipe,
                           const ExportControl& control) const
{
    const std::string name = source.toStdString();
    try {
        recipe.Check(target.toStdString());
        Result result = MakeFromFile(PhotoReader::ReadContent(source), name, recipe,
                                     target.toStdString(), control);
        if (!result.file.empty()) {
            CheckedFileWriter::MakeFolder(QFileInfo(target).absolutePath());
            CheckedFileWriter::Write(target, result.file.data(), result.file.size());
            if (control.progress)
                control.progress(100);
        }
        return result;
    } catch (const std::bad_alloc&) {
        FailWith(name + ": " + PhotoLimits::OutOfMemory);
    }
}

Export::Result Export::MakeFromFile(const Bytes& source, const std::string& sourceName,
                                    const ExportRecipe& recipe, const std::string& targetName,
                                    const ExportControl& control) const
{
    const auto rows = JpegRows::Open(source, sourceName);
    if (!rows)
        return MakeFromPhoto(PhotoReader::Decode(source, sourceName), recipe, targetName, control);
    Result result;
    result.damage = rows->GetWarnings();
    result.file = ExportRun(recipe, targetName, control, *m_pool, result.losses)
                      .Run(*rows, rows->GetMetadata());
    return result;
}

Export::Result Export::MakeFromPhoto(const KeptPhoto& photo, const ExportRecipe& recipe,
                                     const std::string& targetName,
                                     const ExportControl& control) const
{
    Result result;
    result.damage = photo.warnings;
    result.losses = photo.reductions;
    PictureRows rows(photo.image);
    result.file =
        ExportRun(recipe, targetName, control, *m_pool, result.losses).Run(rows, photo.metadata);
    return result;
}

} // namespace LumetraHost
