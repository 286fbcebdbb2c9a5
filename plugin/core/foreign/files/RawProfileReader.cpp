// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/files/RawProfileReader.h"

#include "core/foreign/files/ForeignFile.h"
#include "core/foreign/mapping/MappingTable.h"

#include <boost/property_tree/ini_parser.hpp>

#include <optional>
#include <sstream>

namespace LumetraPlugin {
namespace {

using Tree = boost::property_tree::ptree;

Tree Parse(const QString& path, const QByteArray& content)
{
    std::istringstream stream(content.toStdString());
    Tree tree;
    try {
        boost::property_tree::read_ini(stream, tree);
    } catch (const boost::property_tree::ini_parser_error& error) {
        ForeignFile::Fail(path, static_cast<qint64>(error.line()),
                          ForeignFile::tr("expected sections with keys and values: %1")
                              .arg(QString::fromStdString(error.message())));
    }
    return tree;
}

/// Sections of this program's that have no switch, or had none in older files.
bool IsOnWithoutSwitch(const QString& section)
{
    return section == QLatin1String("Exposure") || section == QLatin1String("White Balance");
}

bool IsOn(const QString& section, const Tree& keys)
{
    const auto enabled = keys.find("Enabled");
    if (enabled == keys.not_found())
        return IsOnWithoutSwitch(section);
    return enabled->second.data() == "true";
}

/// Keys that the mapping table does not have are details of their section.
void TakeSection(const QString& section, const Tree& keys, ForeignLook& look)
{
    for (const auto& [key, value] : keys) {
        const QString setting = section + QLatin1Char('/') + QString::fromStdString(key);
        if (MappingTable::Find(setting))
            look.SetText(setting, QString::fromStdString(value.data()));
    }
}

} // namespace

ForeignLook RawProfileReader::Read(const QString& path, const QByteArray& content)
{
    const Tree tree = Parse(path, content);
    ForeignLook look;
    bool hasSections = false;
    for (const auto& [name, keys] : tree) {
        const QString section = QString::fromStdString(name);
        hasSections = hasSections || !keys.empty();
        if (keys.empty() || !IsOn(section, keys))
            continue;
        if (MappingTable::HasSection(section))
            TakeSection(section, keys, look);
        else
            look.settings[QStringLiteral("[%1]").arg(section)].isTree = true;
    }
    if (!hasSections)
        throw NoLookError(path, ForeignFile::tr("expected a profile with sections, found none"));
    return look;
}

} // namespace LumetraPlugin
