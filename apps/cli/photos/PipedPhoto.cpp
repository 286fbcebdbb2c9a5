// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/PipedPhoto.h"

#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "exporting/Export.h"
#include "exporting/JobFingerprint.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "photo/file/PhotoLimits.h"
#include "photo/file/WrittenFormat.h"
#include "photos/PhotoInputs.h"
#include "storage/CheckedFileWriter.h"

#include <QFile>
#include <QFileInfo>

#include <boost/current_function.hpp>

#include <algorithm>
#include <cstdio>
#include <new>

namespace LumetraCli {
namespace {

using LumetraHost::Bytes;
using LumetraHost::PhotoFormat;
using LumetraHost::PhotoInput;
using LumetraHost::PhotoJob;
using LumetraHost::PhotoLimits;
using LumetraHost::Warnings;
using LumetraHost::WrittenFormats;

constexpr std::size_t PartSize = 1 << 20;

[[noreturn]] void Fail(const std::string& text)
{
    throw Zorvik::Exception(PhotoInputs::PipedName.toStdString() + ": " + text,
                            BOOST_CURRENT_FUNCTION, "cli/PipedPhoto", __LINE__);
}

Bytes ReadStandardInput()
{
    Bytes content;
    for (std::size_t found = PartSize; found == PartSize;) {
        const std::size_t begin = content.size();
        if (begin > PhotoLimits::LargestFile)
            Fail("expected a photo of at most " + std::to_string(PhotoLimits::LargestFile) +
                 " bytes, found more");
        content.resize(begin + PartSize);
        found = std::fread(content.data() + begin, 1, PartSize, stdin);
        content.resize(begin + found);
    }
    if (std::ferror(stdin) != 0)
        Fail("the standard input cannot be read");
    return content;
}

PhotoFormat ChooseFormat(const QString& output, const std::optional<PhotoFormat>& chosen,
                         const Bytes& content)
{
    if (output != PhotoInputs::Pipe)
        return LumetraHost::PhotoWriter::GetFormatOf(output);
    if (chosen)
        return *chosen;
    const auto own = LumetraHost::DetectPhotoFormat(content);
    const bool isWritten =
        std::any_of(WrittenFormats.begin(), WrittenFormats.end(),
                    [own](const auto& written) { return written.format == own; });
    return isWritten ? *own : PhotoFormat::Jpeg;
}

} // namespace

PhotoJob PipedPhoto::MakeJob(const PhotoInput& photo, const LumetraHost::OutputSet& set)
{
    PhotoJob job;
    job.photo = photo.path;
    job.output = PhotoInputs::Pipe;
    job.look = set.look;
    job.recipe = set.recipe;
    if (!photo.problem.isEmpty()) {
        job.state = PhotoJob::State::Failed;
        job.message = photo.problem;
    }
    return job;
}

void PipedPhoto::Carry(PhotoJob& job, const PhotoInput& photo, Warnings& warnings)
{
    const Bytes content =
        photo.isPiped ? ReadStandardInput() : LumetraHost::PhotoReader::ReadContent(photo.path);
    LumetraHost::ExportRecipe recipe = *job.recipe;
    recipe.format = ChooseFormat(job.output, m_format, content);
    if (job.look) {
        const auto look = job.look->Get(photo.path);
        recipe.look = look.drawing;
        recipe.records = look.records;
        warnings = look.warnings;
    }
    const std::string target = job.output.toStdString();
    recipe.Check(target);
    recipe.job = LumetraHost::JobFingerprint::Of(content, recipe);
    const auto result =
        LumetraHost::Export().MakeFromFile(content, photo.path.toStdString(), recipe, target);
    for (const Warnings& noticed : {result.damage, result.losses})
        for (const std::string& warning : noticed)
            LumetraHost::Warn(warnings, warning);
    if (job.output == PhotoInputs::Pipe) {
        m_console.PrintData(result.file.data(), result.file.size());
        return;
    }
    LumetraHost::CheckedFileWriter::MakeFolder(QFileInfo(job.output).absolutePath());
    LumetraHost::CheckedFileWriter::Write(job.output, result.file.data(), result.file.size());
}

Warnings PipedPhoto::Run(PhotoJob& job, const PhotoInput& photo)
{
    Warnings warnings;
    if (job.state != PhotoJob::State::Planned)
        return warnings;
    try {
        Carry(job, photo, warnings);
        job.state = PhotoJob::State::Written;
    } catch (const std::bad_alloc&) {
        job.state = PhotoJob::State::Failed;
        job.message =
            QStringLiteral("%1: %2").arg(job.photo, QLatin1String(PhotoLimits::OutOfMemory));
    } catch (const std::exception& error) {
        job.state = PhotoJob::State::Failed;
        job.message = QString::fromUtf8(error.what());
    }
    return warnings;
}

} // namespace LumetraCli
