// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/UserStoreChecker.h"

#include "catalogue/CheckedNode.h"
#include "catalogue/GroupChecker.h"
#include "core/userstore/UserStoreFormat.h"
#include "storage/JsonDocument.h"
#include "userdata/UserDataFile.h"

namespace LumetraPlugin {
namespace {

using LumetraHost::CatalogueReports;
using LumetraHost::CheckedNode;
using LumetraHost::ContentFolder;
using LumetraHost::GroupChecker;
using LumetraHost::JsonDocument;
using LumetraHost::JsonValue;
using LumetraHost::UserDataFile;
using LumetraHost::UserDataForm;
using Format = UserStoreFormat;

void CheckHeader(const CheckedNode& root)
{
    const UserDataForm& form = Format::GetForm();
    const auto format = root.Text(UserDataForm::KeyFormat);
    if (format && *format != form.format)
        root.ErrorAt(UserDataForm::KeyFormat,
                     "expected \"" + form.format + "\", found \"" + *format + "\"");
    const auto version = root.Number(UserDataForm::KeyVersion);
    if (version && *version >= form.majorVersion + 1)
        root.WarningAt(UserDataForm::KeyVersion,
                       "expected version " + std::to_string(form.majorVersion) +
                           ", found a newer one: it can be read but not changed");
}

void CheckMark(const CheckedNode& mark)
{
    mark.NoteUnknownKeys({Format::Group, Format::ID});
    mark.Text(Format::Group);
    const auto id = mark.Text(Format::ID);
    if (!id && !mark.Has(Format::ID))
        mark.Warning("expected the \"" + std::string(Format::ID) + "\" of a preset, found none");
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
    for (const CheckedNode& preset : ListElements(holder, Format::Items))
        checker.CheckPreset(preset, std::nullopt);
}

} // namespace

bool UserStoreChecker::IsStore(const JsonDocument& document)
{
    return Format::GetForm().IsOurs(*document.GetObject());
}

void UserStoreChecker::Check(const JsonDocument& document,
                             const std::set<std::string>& controllerKinds,
                             CatalogueReports& reports)
{
    const QString file = QString::fromStdString(document.GetName());
    const CheckedNode root(document.GetObject(), document.GetName(), reports,
                           std::make_shared<const ContentFolder>(
                               UserDataFile::FindContentFolder(file, Format::GetForm())));
    CheckHeader(root);
    const bool hasHolder =
        root.Has(Format::Presets); // without one the presets stand in the file itself
    root.NoteUnknownKeys({UserDataForm::KeyFormat, UserDataForm::KeyVersion,
                          hasHolder ? Format::Presets : Format::Items, Format::Favourites});
    if (!hasHolder) {
        CheckPresets(root, controllerKinds);
    } else if (const auto holder = root.Node(Format::Presets)) {
        holder->NoteUnknownKeys({Format::Items});
        CheckPresets(*holder, controllerKinds);
    }
    for (const CheckedNode& mark : ListElements(root, Format::Favourites))
        CheckMark(mark);
}

} // namespace LumetraPlugin
