// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/PhotoInputs.h"

#include "console/Text.h"
#include "console/UsageError.h"
#include "photo/file/PhotoFolder.h"
#include "photos/PhotoList.h"

#include <QFile>
#include <QFileInfo>

namespace LumetraCli {
namespace {

using LumetraHost::PhotoFolder;
using LumetraHost::PhotoInput;
using Inputs = std::vector<PhotoInput>;

const QString RecursiveOption = QStringLiteral("recursive");
const QString FilesFromOption = QStringLiteral("files-from");
const QString NullOption = QStringLiteral("null");
const QString AgainOption = QStringLiteral("again");

void AddFolder(const QString& path, PhotoFolder::Depth depth, Inputs& inputs)
{
    const PhotoFolder folder(path, depth);
    for (const QString& photo : folder.GetPhotos())
        inputs.push_back({photo});
    for (const QString& problem : folder.GetProblems())
        inputs.push_back({path, problem});
    if (folder.GetPhotos().isEmpty() && folder.GetProblems().isEmpty())
        inputs.push_back(
            {path, QStringLiteral("%1: expected photos in the folder, found none").arg(path)});
}

void AddPath(const QString& path, PhotoFolder::Depth depth, Inputs& inputs)
{
    if (QFileInfo(path).isDir())
        AddFolder(path, depth, inputs);
    else
        inputs.push_back({path});
}

void AddListed(const QByteArray& raw, PhotoFolder::Depth depth, Inputs& inputs)
{
    const QString path = QFile::decodeName(raw);
    if (QFile::encodeName(path) != raw)
        inputs.push_back(
            {path, QStringLiteral("%1: %2").arg(path, PhotoFolder::DescribeBadName())});
    else if (!raw.isEmpty())
        AddPath(path, depth, inputs);
}

void CheckPipes(const QStringList& arguments, const QCommandLineParser& parser)
{
    if (!arguments.contains(PhotoInputs::Pipe))
        return;
    if (arguments.size() > 1 || parser.isSet(FilesFromOption))
        throw UsageError(
            Text::tr("expected \"-\", the standard input, as the only photo, found more"));
}

} // namespace

const QString PhotoInputs::Pipe = QStringLiteral("-");
const QString PhotoInputs::PipedName = QStringLiteral("stdin");

void PhotoInputs::Add(OptionTable& options)
{
    options.AddArgument(
        QStringLiteral("PHOTO"),
        Text::tr("Photos: JPEG, PNG, TIFF, WebP, HEIC or raw files; folders, which stand for "
                 "the photos in them; or - alone, for a photo from the standard input."),
        QStringLiteral("PHOTO..."));
    options.AddOptions({
        {{QStringLiteral("r"), RecursiveOption},
         Text::tr("Takes the photos in the subfolders of folders too. Hidden ones and links "
                  "to folders are passed over.")},
        {FilesFromOption,
         Text::tr("Takes the photos and folders that this file names too, one in a line; - "
                  "is the standard input."),
         QStringLiteral("file")},
        {NullOption,
         Text::tr("The names of --files-from are separated by zero bytes, as find -print0 "
                  "writes them.")},
        {AgainOption,
         Text::tr("Takes results as photos too: files that record a look in their XMP data, "
                  "and outputs of other photos of the list. Without it they are left out.")},
    });
}

std::vector<PhotoInput> PhotoInputs::Read(const QCommandLineParser& parser)
{
    const QStringList arguments = parser.positionalArguments().mid(1);
    CheckPipes(arguments, parser);
    if (parser.isSet(NullOption) && !parser.isSet(FilesFromOption))
        throw UsageError(Text::tr("--null: expected --files-from, whose names it separates"));
    if (arguments.isEmpty() && !parser.isSet(FilesFromOption))
        throw UsageError(Text::tr("expected at least one photo"));
    if (arguments.contains(Pipe))
        return {{PipedName, {}, true}};
    const auto depth = parser.isSet(RecursiveOption) ? PhotoFolder::Depth::WithSubfolders
                                                     : PhotoFolder::Depth::FolderAlone;
    Inputs inputs;
    for (const QString& argument : arguments)
        AddPath(argument, depth, inputs);
    for (const QString& list : parser.values(FilesFromOption))
        for (const QByteArray& name : PhotoList::ReadNames(list, parser.isSet(NullOption)))
            AddListed(name, depth, inputs);
    return inputs;
}

bool PhotoInputs::TakesResults(const QCommandLineParser& parser)
{
    return parser.isSet(AgainOption);
}

} // namespace LumetraCli
