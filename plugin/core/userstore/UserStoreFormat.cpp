// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/UserStoreFormat.h"

namespace LumetraPlugin {
namespace {

using LumetraHost::JsonObject;
using LumetraHost::UserDataForm;

constexpr qint64 LargestFirstVersion = 1024 * 1024 * 1024;

/// True for the members of a store's first version, which wrote no format. A list of items alone
/// may be anybody's.
bool HasMembersOfStore(const JsonObject& root)
{
    return root.Find(UserStoreFormat::Presets) || root.Find(UserStoreFormat::Favourites);
}

UserDataForm MakeForm()
{
    UserDataForm form;
    form.format = "lumetra-user-presets";
    form.majorVersion = 2;
    form.noun = "presets";
    form.contentSuffix = QStringLiteral(".tables");
    form.isOursWithoutFormat = HasMembersOfStore;
    form.largestOldFile = LargestFirstVersion;
    return form;
}

} // namespace

const UserDataForm& UserStoreFormat::GetForm()
{
    static const UserDataForm form = MakeForm();
    return form;
}

} // namespace LumetraPlugin
