// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/files/TemplateReader.h"

#include "core/foreign/files/ForeignFile.h"
#include "core/foreign/files/LuaTable.h"

#include <algorithm>

namespace LumetraPlugin {
namespace {

bool IsList(const LuaValue& table)
{
    return std::all_of(table.entries.begin(), table.entries.end(),
                       [](const LuaValue::Entry& entry) {
                           return entry.first.isEmpty() && !entry.second.isTable;
                       });
}

ForeignValue MakeValue(const LuaValue& value)
{
    ForeignValue result;
    result.text = value.text;
    result.isTree = value.isTable && !IsList(value);
    result.isList = value.isTable && !result.isTree;
    if (result.isList)
        for (const LuaValue::Entry& entry : value.entries)
            result.items.append(entry.second.text);
    return result;
}

void TakeLook(const LuaValue& nested, ForeignLook& look)
{
    look.SetText(QStringLiteral("Look"), nested.isTable ? nested.GetText("Name") : nested.text);
    const LuaValue* const parameters = nested.Find("Parameters");
    if (parameters && parameters->Find("ConvertToGrayscale"))
        look.SetText(QStringLiteral("Look/ConvertToGrayscale"),
                     parameters->GetText("ConvertToGrayscale"));
}

const LuaValue& FindSettings(const QString& path, const LuaValue& file)
{
    const LuaValue* const value = file.Find("value");
    const LuaValue* const settings = value ? value->Find("settings") : nullptr;
    if (!settings || !settings->isTable)
        ForeignFile::Fail(path, 0,
                          ForeignFile::tr("expected a table \"settings\" in a table \"value\""));
    return *settings;
}

} // namespace

ForeignLook TemplateReader::Read(const QString& path, const QByteArray& content)
{
    const LuaValue file = LuaTable::Read(path, content);
    const QString type = file.GetText("type");
    if (type != QLatin1String("Develop"))
        throw NoLookError(path,
                          ForeignFile::tr("expected a template of type \"Develop\", found type "
                                          "\"%1\", which is no look")
                              .arg(type));
    ForeignLook look;
    look.name = file.GetText("title");
    if (look.name.isEmpty())
        look.name = file.GetText("internalName");
    for (const auto& [key, value] : FindSettings(path, file).entries) {
        if (key == QLatin1String("Look"))
            TakeLook(value, look);
        else
            look.settings[key] = MakeValue(value);
    }
    return look;
}

} // namespace LumetraPlugin
