// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/ForeignImport.h"

#include "core/foreign/files/ForeignFile.h"
#include "core/foreign/files/RawProfileReader.h"
#include "core/foreign/files/TemplateReader.h"
#include "core/foreign/files/XmpLookReader.h"
#include "core/foreign/mapping/LookBuilder.h"
#include "core/foreign/mapping/LookMeaning.h"

#include <QFileInfo>

namespace LumetraPlugin {
namespace {

using Reader = ForeignLook (*)(const QString& path, const QByteArray& content);

/// Null for a name that ends as none of ours.
Reader FindReader(const QString& path)
{
    static const struct
    {
        QLatin1String extension;
        Reader reader;
    } kinds[] = {{QLatin1String("xmp"), &XmpLookReader::Read},
                 {QLatin1String("lrtemplate"), &TemplateReader::Read},
                 {QLatin1String("pp3"), &RawProfileReader::Read}};
    const QString extension = QFileInfo(path).suffix().toLower();
    for (const auto& kind : kinds)
        if (extension == kind.extension)
            return kind.reader;
    return nullptr;
}

/// "expected …, found …" for a look without effects.
QString DescribeNothing(const std::vector<ImportRemark>& remarks)
{
    if (remarks.empty())
        return ForeignFile::tr("expected a setting that changes the picture, found none");
    QStringList names;
    for (const ImportRemark& remark : remarks)
        names.append(remark.ToText());
    return ForeignFile::tr("expected a setting that this program can carry over, found only %1")
        .arg(names.join(QStringLiteral(", ")));
}

} // namespace

bool ForeignImport::IsForeignName(const QString& path)
{
    return FindReader(path) != nullptr;
}

ImportedLooks ForeignImport::Read(const QString& path, const ImportOptions& options)
{
    const Reader reader = FindReader(path);
    if (!reader)
        ForeignFile::Fail(
            path, 0, ForeignFile::tr("expected a name that ends in .xmp, .lrtemplate or .pp3"));
    const ForeignLook look = LookMeaning::Resolve(reader(path, ForeignFile::Read(path)));
    LookBuilder builder(look, options, QFileInfo(path).path());
    builder.Build();
    ImportedLook result{look.name, look.group, builder.GetEffects(), builder.GetRemarks()};
    if (result.effects.empty())
        ForeignFile::Fail(path, 0, DescribeNothing(result.remarks));
    if (result.name.trimmed().isEmpty())
        result.name = QFileInfo(path).completeBaseName();
    return {result};
}

} // namespace LumetraPlugin
