// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/recipes/RecipeStore.h"

#include "catalogue/CheckedNode.h"
#include "exporting/recipes/RecipeFormat.h"
#include "storage/FailWith.h"

#include <QStandardPaths>

#include <algorithm>
#include <set>

namespace LumetraHost {
namespace {

constexpr char RecipesKey[] = "recipes";

UserDataForm MakeForm()
{
    UserDataForm form;
    form.format = "lumetra-export-recipes";
    form.majorVersion = 1;
    form.noun = "export recipes";
    form.contentSuffix = QStringLiteral(".contents");
    return form;
}

[[noreturn]] void Fail(const QString& path, const QString& text)
{
    FailWith((path + QStringLiteral(": ") + text).toStdString());
}

/// The name under which an element of the list is stored; empty for what is no recipe.
QString GetName(const JsonValue& element)
{
    const auto* const object = element.As<JsonValue::Object>();
    const JsonValue* const name = object ? (*object)->Find(RecipeFormat::NameKey) : nullptr;
    const auto* const text = name ? name->As<std::string>() : nullptr;
    return text ? QString::fromStdString(*text).trimmed() : QString();
}

JsonValue::Array MakeShippedList()
{
    auto list = std::make_shared<JsonArray>();
    for (const NamedRecipe& named : NamedRecipe::GetShipped())
        list->elements.emplace_back(RecipeFormat::Write(named, nullptr));
    return list;
}

/// The list to be changed: the file's own, or one of the shipped recipes that is put into it.
JsonArray& GetList(JsonObject& root, const QString& path)
{
    const JsonValue* value = root.Find(RecipesKey);
    if (!value) {
        root.Set(RecipesKey, JsonValue(MakeShippedList()));
        value = root.Find(RecipesKey);
    }
    const auto* const list = value->As<JsonValue::Array>();
    if (!list)
        Fail(path, QStringLiteral("%1: expected collection, found %2")
                       .arg(QLatin1String(RecipesKey), QLatin1String(value->GetKindName())));
    return **list;
}

auto FindElement(std::vector<JsonValue>& elements, const QString& name)
{
    return std::find_if(elements.begin(), elements.end(), [&name](const JsonValue& element) {
        return !name.isEmpty() && GetName(element) == name;
    });
}

} // namespace

RecipeStore::RecipeStore(const QString& path) : m_path(path), m_file(path, MakeForm()) {}

QString RecipeStore::GetDefaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/lumetra/export-recipes.json");
}

std::vector<NamedRecipe> RecipeStore::Read()
{
    const JsonDocument document = m_file.Read();
    m_reports = m_file.GetReports();
    if (!document.GetObject()->Find(RecipesKey))
        return NamedRecipe::GetShipped();
    CatalogueReports reports;
    const CheckedNode root(document.GetObject(), document.GetName(), reports);
    std::vector<NamedRecipe> recipes;
    std::set<QString> names;
    for (const CheckedNode& node : root.Elements(RecipesKey)) {
        const auto named = RecipeFormat::Read(node);
        if (!named)
            continue;
        if (names.insert(named->name).second)
            recipes.push_back(*named);
        else
            node.ErrorAt(RecipeFormat::NameKey, "expected a name of its own, found \"" +
                                                    named->name.toStdString() + "\" again");
    }
    for (const CatalogueReport& report : reports.GetAll())
        m_reports.push_back(report.ToText());
    return recipes;
}

NamedRecipe RecipeStore::Find(const QString& name)
{
    const auto recipes = Read();
    QStringList names;
    for (const NamedRecipe& named : recipes) {
        if (named.name == name)
            return named;
        names.append(QLatin1Char('"') + named.name + QLatin1Char('"'));
    }
    Fail(m_path, QStringLiteral("expected the name of a recipe (%1), found \"%2\"")
                     .arg(names.join(QStringLiteral(", ")), name));
}

void RecipeStore::Save(const NamedRecipe& named, const QString& replaced)
{
    if (named.name.trimmed().isEmpty())
        Fail(m_path, QStringLiteral("expected a name for the recipe"));
    m_file.Update([&](JsonObject& root) {
        auto& elements = GetList(root, m_path).elements;
        const auto place = FindElement(elements, replaced);
        const auto taken = FindElement(elements, named.name);
        if (taken != elements.end() && taken != place)
            Fail(m_path,
                 QStringLiteral("expected a new name, found \"%1\", which another recipe has")
                     .arg(named.name));
        const auto* const origin =
            place == elements.end() ? nullptr : place->As<JsonValue::Object>();
        const JsonValue value(RecipeFormat::Write(named, origin ? origin->get() : nullptr));
        if (place == elements.end())
            elements.push_back(value);
        else
            *place = value;
        return true;
    });
    m_reports = m_file.GetReports();
}

void RecipeStore::Remove(const QString& name)
{
    m_file.Update([&](JsonObject& root) {
        auto& elements = GetList(root, m_path).elements;
        const auto place = FindElement(elements, name);
        if (place == elements.end())
            return false;
        elements.erase(place);
        return true;
    });
    m_reports = m_file.GetReports();
}

} // namespace LumetraHost
