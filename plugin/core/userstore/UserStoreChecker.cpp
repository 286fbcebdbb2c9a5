// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/UserStoreChecker.h"

#include "Zorvik/Brassel/SettingsKeys.h"
#include "catalogue/CheckedNode.h"
#include "catalogue/GroupChecker.h"
#include "storage/JsonDocument.h"
#include "userdata/UserDataFile.h"

namespace LumetraPlugin {
namespace {

using LumetraHost::CatalogueReports;
using LumetraHost::CheckedNode;
using LumetraHost::ContentFolder;
using LumetraHost::GroupChecker;
using LumetraHost::JsonDocument;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using LumetraHost::UserDataFile;
using Zorvik::Brassel::Settings::ConfigData;

constexpr char FormatKey[] = "format";
constexpr char VersionKey[] = "version";
constexpr char PresetsKey[] = "UserPresets";
constexpr char MarksKey[] = "Favourites";
constexpr char GroupKey[] = "group";
constexpr char IdKey[] = "id";

void CheckHeader(const CheckedNode& root)
{
    const auto format = root.Text(FormatKey);
    if (format && *format != UserDataFile::FORMAT)
        root.ErrorAt(FormatKey, "expected \"" + std::string(UserDataFile::FORMAT) + "\", found \"" +
                                    *format + "\"");
    const auto version = root.Number(VersionKey);
    if (version && *version >= UserDataFile::MAJOR_VERSION + 1)
        root.WarningAt(VersionKey, "expected version " +
                                       std::to_string(UserDataFile::MAJOR_VERSION) +
                                       ", found a newer one: it can be read but not changed");
}

void CheckMark(const CheckedNode& mark)
{
    mark.NoteUnknownKeys({GroupKey, IdKey});
    mark.Text(GroupKey);
    const auto id = mark.Text(IdKey);
    if (!id && !mark.Has(IdKey))
        mark.Warning("expected the \"id\" of a preset, found none");
}

/// Presets and marks are lists: the store writes no other form.
std::vector<CheckedNode> ListElements(const CheckedNode& holder, const char* key)
{
    const JsonValue* value = holder.GetObject().Find(key);
    if (value && value->As<JsonValue::Object>()) {
        holder.ErrorAt(key, "expected collection, found node");
        return {};
    }
    return holder.Elements(key);
}

void CheckPresets(const CheckedNode& holder, const std::set<std::string>& controllerKinds)
{
    const GroupChecker checker(controllerKinds);
    for (const CheckedNode& preset : ListElements(holder, ConfigData::ITEMS))
        checker.CheckPreset(preset, std::nullopt);
}

} // namespace

bool UserStoreChecker::IsStore(const JsonDocument& document)
{
    const JsonObject& object = *document.GetObject();
    if (const JsonValue* format = object.Find(FormatKey)) {
        const auto* text = format->As<std::string>();
        return text && *text == UserDataFile::FORMAT;
    }
    return object.Find(PresetsKey) || object.Find(MarksKey) || object.Find(ConfigData::ITEMS);
}

void UserStoreChecker::Check(const JsonDocument& document,
                             const std::set<std::string>& controllerKinds,
                             CatalogueReports& reports)
{
    const QString file = QString::fromStdString(document.GetName());
    const CheckedNode root(
        document.GetObject(), document.GetName(), reports,
        std::make_shared<const ContentFolder>(UserDataFile::FindContentFolder(file)));
    CheckHeader(root);
    const bool hasHolder = root.Has(PresetsKey); // without one the presets stand in the file itself
    root.NoteUnknownKeys(
        {FormatKey, VersionKey, hasHolder ? PresetsKey : ConfigData::ITEMS, MarksKey});
    if (!hasHolder) {
        CheckPresets(root, controllerKinds);
    } else if (const auto holder = root.Node(PresetsKey)) {
        holder->NoteUnknownKeys({ConfigData::ITEMS});
        CheckPresets(*holder, controllerKinds);
    }
    for (const CheckedNode& mark : ListElements(root, MarksKey))
        CheckMark(mark);
}

} // namespace LumetraPlugin
