// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/PictureLooks.h"

#include "Zorvik/Exception.h"
#include "photo/PhotoReader.h"
#include "photo/metadata/EditRecord.h"
#include "photo/metadata/ExtendedXmp.h"
#include "photo/metadata/MetadataReader.h"

#include <QFileInfo>

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

using LumetraHost::EditRecord;
using LumetraHost::EditRecords;
using LumetraHost::JsonDocument;

/// The records of the file's XMP packet; none for a picture without one.
std::vector<EditRecord> ReadRecords(const QString& path)
{
    const auto content = LumetraHost::PhotoReader::ReadContent(path);
    LumetraHost::Warnings warnings;
    const auto metadata = LumetraHost::MetadataReader::Read(content, {}, warnings).metadata;
    const auto packet =
        LumetraHost::ExtendedXmp{metadata.xmp, metadata.xmpExtension}.Merge().value_or(
            metadata.xmp);
    if (!packet.contains(EditRecords::Namespace))
        return {};
    try {
        return EditRecords::Read(packet);
    } catch (const Zorvik::Exception& error) {
        throw Zorvik::Exception(path.toStdString() + ": " + error.GetDescription(),
                                BOOST_CURRENT_FUNCTION, "looks/PictureLooks", __LINE__);
    }
}

QString MissingLook(const QString& place, const EditRecord& record)
{
    const QString reason = QString::fromStdString(record.lookLeftOut);
    return PictureLooks::tr("%1: expected the look itself, found only its name%2")
        .arg(place, reason.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(reason));
}

void AddLayer(const EditRecord& record, const QString& place, std::vector<JsonDocument>& documents,
              QStringList& problems)
{
    try {
        if (record.look.empty())
            problems.append(MissingLook(place, record));
        else
            documents.push_back(
                JsonDocument::Parse(QByteArray::fromStdString(record.look), place.toStdString()));
    } catch (const Zorvik::Exception& error) {
        problems.append(QString::fromStdString(error.GetDescription()));
    }
}

} // namespace

bool PictureLooks::IsPictureName(const QString& path)
{
    static const QStringList endings{
        QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("jpe"), QStringLiteral("png"),
        QStringLiteral("tif"), QStringLiteral("tiff"), QStringLiteral("webp")};
    return endings.contains(QFileInfo(path).suffix().toLower());
}

bool PictureLooks::Read(const QString& path, std::vector<JsonDocument>& documents,
                        QStringList& problems)
{
    const std::vector<EditRecord> records = ReadRecords(path);
    for (std::size_t i = 0; i < records.size(); ++i) {
        const QString place =
            tr("%1: layer %2 \"%3\"")
                .arg(path, QString::number(i + 1), QString::fromStdString(records[i].preset));
        AddLayer(records[i], place, documents, problems);
    }
    return !records.empty();
}

} // namespace LumetraPlugin
