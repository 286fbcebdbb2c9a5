// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/recipes/NamedRecipe.h"

#include "userdata/UserDataFile.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// The user's named recipes, in "lumetra/export-recipes.json" in the user's configuration folder.
/// The shipped ones are there as long as nothing is stored; they are stored with the first change.
/// Reading writes nothing. A recipe that cannot be used is reported and stays in the file.
class RecipeStore
{
public:
    explicit RecipeStore(const QString& path = GetDefaultPath());

    static QString GetDefaultPath();

    /// The usable recipes in their order. Zorvik::Exception when the file cannot be read at all.
    std::vector<NamedRecipe> Read();
    /// The recipe of this name. Zorvik::Exception, which names the file and all recipes, when there
    /// is none.
    NamedRecipe Find(const QString& name);

    /// Stores a recipe in place of the one that is called `replaced`, or at the end where there is
    /// none or `replaced` is empty. Zorvik::Exception, and nothing changed, for an empty name, one
    /// that another recipe has, and when the file cannot be written.
    void Save(const NamedRecipe& named, const QString& replaced = {});
    /// Removes the recipe of that name; does nothing when there is none. Zorvik::Exception as from
    /// Save().
    void Remove(const QString& name);

    /// Problems during the last call, a sentence each, with file and place.
    const std::vector<std::string>& GetReports() const { return m_reports; }

private:
    QString m_path;
    UserDataFile m_file;
    std::vector<std::string> m_reports;
};

} // namespace LumetraHost
