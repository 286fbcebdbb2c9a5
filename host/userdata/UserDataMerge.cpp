// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/UserDataMerge.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace LumetraHost {
namespace {

constexpr char UserPresetsKey[] = "UserPresets";
constexpr char ItemsKey[] = "items";
constexpr char FavouritesKey[] = "Favourites";
constexpr char IdKey[] = "id";
constexpr char NameKey[] = "name";
constexpr char GroupKey[] = "group";
constexpr char UnreadableSuffix[] = " (unreadable)";

using PresetKey = std::pair<std::string, int>; // id and position among presets of that id
using Presets = std::map<PresetKey, JsonValue>;
using Mark = std::pair<std::string, std::string>; // group and id

std::string Text(const JsonObject& object, const char* key, const std::string& fallback = {})
{
    const JsonValue* value = object.Find(key);
    const std::string* text = value ? value->As<std::string>() : nullptr;
    return text ? *text : fallback;
}

template <class T>
T Member(const JsonObject& object, const char* key)
{
    const JsonValue* value = object.Find(key);
    const T* member = value ? value->As<T>() : nullptr;
    return member ? *member : nullptr;
}

/// The list of presets, in either of the two forms that are read; null when there is none.
JsonValue::Array FindPresetList(const JsonObject& data)
{
    if (!data.Find(UserPresetsKey))
        return Member<JsonValue::Array>(data, ItemsKey);
    const auto holder = Member<JsonValue::Object>(data, UserPresetsKey);
    return holder ? Member<JsonValue::Array>(*holder, ItemsKey) : nullptr;
}

/// The same, made where it is missing. What stands in its place without being one moves to a key
/// of its own, so that nothing is lost.
template <class T>
T RequireMember(JsonObject& object, const std::string& key)
{
    if (const T member = Member<T>(object, key.c_str()))
        return member;
    if (const JsonValue* misplaced = object.Find(key)) {
        std::string name = key + UnreadableSuffix;
        while (object.Find(name))
            name += UnreadableSuffix;
        object.Set(name, JsonValue(*misplaced));
    }
    const T member = std::make_shared<typename T::element_type>();
    object.Set(key, JsonValue(JsonValue::Content(member)));
    return member;
}

JsonValue::Array RequirePresetList(JsonObject& data)
{
    if (const auto list = FindPresetList(data))
        return list;
    return RequireMember<JsonValue::Array>(*RequireMember<JsonValue::Object>(data, UserPresetsKey),
                                           ItemsKey);
}

/// Tells each element's key while walking a list from its begin.
class KeyCounter
{
public:
    PresetKey KeyOf(const JsonValue& element)
    {
        const JsonObject& object = **element.As<JsonValue::Object>();
        const std::string id = Text(object, IdKey, Text(object, NameKey));
        return {id, m_seen[id]++};
    }

private:
    std::map<std::string, int> m_seen;
};

template <class Usable>
Presets CollectPresets(const JsonObject& data, const Usable& isUsable)
{
    Presets presets;
    KeyCounter keys;
    if (const auto list = FindPresetList(data))
        for (const JsonValue& element : list->elements)
            if (isUsable(element))
                presets.emplace(keys.KeyOf(element), element);
    return presets;
}

/// What a model wrote of itself is usable without a look.
Presets CollectWritten(const JsonObject& data)
{
    return CollectPresets(data, [](const JsonValue&) { return true; });
}

std::set<Mark> CollectMarks(const JsonObject& data)
{
    std::set<Mark> marks;
    if (const auto list = Member<JsonValue::Array>(data, FavouritesKey))
        for (const JsonValue& element : list->elements)
            if (const auto* mark = element.As<JsonValue::Object>())
                marks.emplace(Text(**mark, GroupKey), Text(**mark, IdKey));
    return marks;
}

bool IsEqualOrAbsent(const JsonValue* a, const JsonValue* b)
{
    return a && b ? UserDataMerge::AreEqual(*a, *b) : a == b;
}

/// Writes the members that differ between `before` and `after` into `target`.
bool CopyChangedMembers(const JsonObject& before, const JsonObject& after, JsonObject& target)
{
    bool isChanged = false;
    for (const auto& [key, value] : after.GetMembers()) {
        if (IsEqualOrAbsent(before.Find(key), &value) || IsEqualOrAbsent(target.Find(key), &value))
            continue;
        target.Set(key, value);
        isChanged = true;
    }
    return isChanged;
}

const JsonValue* Find(const Presets& presets, const PresetKey& key)
{
    const auto found = presets.find(key);
    return found == presets.end() ? nullptr : &found->second;
}

JsonObject& ObjectOf(const JsonValue& element)
{
    return **element.As<JsonValue::Object>();
}

} // namespace

UserDataMerge::UserDataMerge(IsUsable isUsable) : m_isUsable(std::move(isUsable)) {}

bool UserDataMerge::Apply(const JsonObject& before, const JsonObject& after, const JsonObject& seen,
                          JsonObject& current) const
{
    const bool arePresetsChanged = MergePresets(before, after, seen, current);
    const bool areMarksChanged = MergeFavourites(before, after, current);
    return arePresetsChanged || areMarksChanged;
}

bool UserDataMerge::MergePresets(const JsonObject& before, const JsonObject& after,
                                 const JsonObject& seen, JsonObject& current) const
{
    const auto isUsable = [this](const JsonValue& element) {
        return element.As<JsonValue::Object>() && m_isUsable(element);
    };
    const Presets known = CollectWritten(before);
    const Presets wanted = CollectWritten(after);
    const bool isAnyRemoved = std::any_of(
        known.begin(), known.end(), [&wanted](const auto& p) { return !wanted.count(p.first); });
    const Presets read = isAnyRemoved ? CollectPresets(seen, isUsable) : Presets();

    const JsonObject nothing;
    bool isChanged = false;
    std::set<PresetKey> present;
    std::vector<JsonValue> merged;
    KeyCounter keys;
    if (const auto list = FindPresetList(current)) {
        for (const JsonValue& element : list->elements) {
            if (!isUsable(element)) {
                merged.push_back(element);
                continue;
            }
            const PresetKey key = keys.KeyOf(element);
            present.insert(key);
            const JsonValue* was = Find(known, key);
            const JsonValue* is = Find(wanted, key);
            const bool isRemoved = was && !is && IsEqualOrAbsent(Find(read, key), &element);
            isChanged |= isRemoved;
            if (isRemoved)
                continue;
            if (is)
                isChanged |= CopyChangedMembers(was ? ObjectOf(*was) : nothing, ObjectOf(*is),
                                                ObjectOf(element));
            merged.push_back(element);
        }
    }

    // New ones, and those that another program removed while they were changed here.
    KeyCounter wantedKeys;
    if (const auto list = FindPresetList(after)) {
        for (const JsonValue& element : list->elements) {
            const PresetKey key = wantedKeys.KeyOf(element);
            if (present.count(key) || IsEqualOrAbsent(Find(known, key), &element))
                continue;
            merged.push_back(element);
            isChanged = true;
        }
    }
    if (isChanged)
        RequirePresetList(current)->elements = std::move(merged);
    return isChanged;
}

bool UserDataMerge::MergeFavourites(const JsonObject& before, const JsonObject& after,
                                    JsonObject& current) const
{
    const std::set<Mark> was = CollectMarks(before);
    const std::set<Mark> is = CollectMarks(after);
    const std::set<Mark> present = CollectMarks(current);

    bool isChanged = false;
    for (const Mark& mark : was) {
        if (is.count(mark) || !present.count(mark))
            continue;
        auto& elements = Member<JsonValue::Array>(current, FavouritesKey)->elements;
        elements.erase(std::remove_if(elements.begin(), elements.end(),
                                      [&mark](const JsonValue& element) {
                                          const auto* m = element.As<JsonValue::Object>();
                                          return m && Mark(Text(**m, GroupKey), Text(**m, IdKey)) ==
                                                          mark;
                                      }),
                       elements.end());
        isChanged = true;
    }
    for (const Mark& mark : is) {
        if (was.count(mark) || present.count(mark))
            continue;
        const auto object = std::make_shared<JsonObject>();
        object->Set(GroupKey, JsonValue(JsonValue::Content(mark.first)));
        object->Set(IdKey, JsonValue(JsonValue::Content(mark.second)));
        RequireMember<JsonValue::Array>(current, FavouritesKey)
            ->elements.push_back(JsonValue(JsonValue::Content(object)));
        isChanged = true;
    }
    return isChanged;
}

bool UserDataMerge::AreEqual(const JsonValue& a, const JsonValue& b)
{
    if (a.content.index() != b.content.index())
        return false;
    if (const auto* number = a.As<JsonNumber>())
        return number->value == b.As<JsonNumber>()->value;
    if (const auto* array = a.As<JsonValue::Array>()) {
        const auto& left = (*array)->elements;
        const auto& right = (*b.As<JsonValue::Array>())->elements;
        return std::equal(left.begin(), left.end(), right.begin(), right.end(), AreEqual);
    }
    if (const auto* object = a.As<JsonValue::Object>()) {
        const JsonObject& other = **b.As<JsonValue::Object>();
        const auto& members = (*object)->GetMembers();
        return members.size() == other.GetMembers().size() &&
               std::all_of(members.begin(), members.end(), [&other](const auto& member) {
                   const JsonValue* value = other.Find(member.first);
                   return value && AreEqual(member.second, *value);
               });
    }
    if (const auto* text = a.As<std::string>())
        return *text == *b.As<std::string>();
    if (const auto* flag = a.As<bool>())
        return *flag == *b.As<bool>();
    return true;
}

} // namespace LumetraHost
