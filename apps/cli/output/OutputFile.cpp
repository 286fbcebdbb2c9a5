// SPDX-License-Identifier: GPL-2.0-or-later
#include "output/OutputFile.h"

#include "console/Text.h"
#include "console/UsageError.h"
#include "userdata/EditPlaces.h"

#include <QFileInfo>

namespace LumetraCli {
namespace {

const QString OutputOption = QStringLiteral("output");
const QString OverwriteOption = QStringLiteral("overwrite");

} // namespace

void OutputFile::AddOptions(OptionTable& options, const QString& help)
{
    options.AddOption({{QStringLiteral("o"), OutputOption}, help, QStringLiteral("file")});
    options.AddOption({OverwriteOption, Text::tr("Replaces an existing file.")});
}

QString OutputFile::GetName(const QCommandLineParser& parser)
{
    return parser.value(OutputOption);
}

QString OutputFile::Read(const QCommandLineParser& parser, const QString& suffix,
                         const QString& kind)
{
    const QString output = GetName(parser);
    if (QFileInfo(output).suffix().compare(suffix, Qt::CaseInsensitive) != 0)
        throw UsageError(
            Text::tr("--output: expected the name of a %1 file, found \"%2\"").arg(kind, output));
    return Read(parser);
}

QString OutputFile::Read(const QCommandLineParser& parser)
{
    const QString output = GetName(parser);
    const QFileInfo info(output);
    if (info.isDir())
        throw UsageError(
            Text::tr("--output: expected a file to write, found the folder \"%1\"").arg(output));
    if (info.exists() && !info.isFile())
        throw UsageError(
            Text::tr("--output: expected a file to write, found a pipe, a socket or a device "
                     "named \"%1\"")
                .arg(output));
    if (info.exists() && LumetraHost::EditPlaces::HasEdit(output))
        throw UsageError(Text::tr("--output: \"%1\" is a photo with an edit of its own and is "
                                  "not overwritten")
                             .arg(output));
    if (info.exists() && !parser.isSet(OverwriteOption))
        throw UsageError(Text::tr("--output: \"%1\" exists; --overwrite replaces it").arg(output));
    return output;
}

} // namespace LumetraCli
