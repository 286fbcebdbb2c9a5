// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/UserStoreMerge.h"

#include "core/userstore/UserStoreFormat.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace LumetraPlugin {
namespace {

using LumetraHost::JsonNumber;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
using Format = UserStoreFormat;

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
    if (!data.Find(Format::Presets))
        return Member<JsonValue::Array>(data, Format::Items);
    const auto holder = Member<JsonValue::Object>(data, Format::Presets);
    return holder ? Member<JsonValue::Array>(*holder, Format::Items) : nullptr;
}

/// The member under `key` as T, made where it is missing. A value of another type moves to a new
/// key, so that nothing is lost.
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
    return RequireMember<JsonValue::Array>(*RequireMember<JsonValue::Object>(data, Format::Presets),
                                           Format::Items);
}

/// Counts the keys of a list's elements, from its begin.
class KeyCounter
{
public:
    PresetKey KeyOf(const JsonValue& element)
    {
        const JsonObject& object = **element.As<JsonValue::Object>();
        const std::string id = Text(object, Format::ID, Text(object, Format::Name));
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

/// Collects the presets that the model wrote: all of them are usable.
Presets CollectWritten(const JsonObject& data)
{
    return CollectPresets(data, [](const JsonValue&) { return true; });
}

std::set<Mark> CollectMarks(const JsonObject& data)
{
    std::set<Mark> marks;
    if (const auto list = Member<JsonValue::Array>(data, Format::Favourites))
        for (const JsonValue& element : list->elements)
            if (const auto* mark = element.As<JsonValue::Object>())
                marks.emplace(Text(**mark, Format::Group), Text(**mark, Format::ID));
    return marks;
}

bool IsEqualOrAbsent(const JsonValue* a, const JsonValue* b)
{
    return a && b ? UserStoreMerge::AreEqual(*a, *b) : a == b;
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

/// One merge of the lists of presets: the list that this program knew, the one that it knows now,
/// and the one that the file is to have.
class PresetListMerge
{
public:
    using IsUsable = UserStoreMerge::IsUsable;

    PresetListMerge(const JsonObject& before, const JsonObject& after, const JsonObject& seen,
                    const IsUsable& isUsable)
        : m_after(after), m_isUsable(isUsable), m_known(CollectWritten(before)),
          m_wanted(CollectWritten(after)),
          m_read(IsAnyRemoved() ? CollectPresets(seen, isUsable) : Presets())
    {
    }

    /// True when the file has to be changed.
    bool Run(JsonObject& current);

private:
    bool IsAnyRemoved() const;
    void Keep(const JsonObject& current);
    void KeepUnlessRemoved(const JsonValue& element, const PresetKey& key);
    void AppendNew();

    const JsonObject& m_after;
    const IsUsable& m_isUsable;
    Presets m_known;
    Presets m_wanted;
    Presets m_read;
    std::set<PresetKey> m_present;
    std::vector<JsonValue> m_merged;
    bool m_isChanged = false;
};

bool PresetListMerge::IsAnyRemoved() const
{
    return std::any_of(m_known.begin(), m_known.end(),
                       [this](const auto& preset) { return m_wanted.count(preset.first) == 0; });
}

bool PresetListMerge::Run(JsonObject& current)
{
    Keep(current);
    AppendNew();
    if (m_isChanged)
        RequirePresetList(current)->elements = std::move(m_merged);
    return m_isChanged;
}

void PresetListMerge::Keep(const JsonObject& current)
{
    KeyCounter keys;
    const auto list = FindPresetList(current);
    if (!list)
        return;
    for (const JsonValue& element : list->elements)
        if (m_isUsable(element))
            KeepUnlessRemoved(element, keys.KeyOf(element));
        else
            m_merged.push_back(element);
}

void PresetListMerge::KeepUnlessRemoved(const JsonValue& element, const PresetKey& key)
{
    static const JsonObject nothing;
    m_present.insert(key);
    const JsonValue* was = Find(m_known, key);
    const JsonValue* is = Find(m_wanted, key);
    if (was && !is && IsEqualOrAbsent(Find(m_read, key), &element)) {
        m_isChanged = true;
        return;
    }
    if (is)
        m_isChanged |=
            CopyChangedMembers(was ? ObjectOf(*was) : nothing, ObjectOf(*is), ObjectOf(element));
    m_merged.push_back(element);
}

/// Appends new presets, and those that another program removed while they were changed here.
void PresetListMerge::AppendNew()
{
    KeyCounter keys;
    const auto list = FindPresetList(m_after);
    if (!list)
        return;
    for (const JsonValue& element : list->elements) {
        const PresetKey key = keys.KeyOf(element);
        if (m_present.count(key) != 0 || IsEqualOrAbsent(Find(m_known, key), &element))
            continue;
        m_merged.push_back(element);
        m_isChanged = true;
    }
}

} // namespace

UserStoreMerge::UserStoreMerge(IsUsable isUsable) : m_isUsable(std::move(isUsable)) {}

bool UserStoreMerge::Apply(const JsonObject& before, const JsonObject& after,
                           const JsonObject& seen, JsonObject& current) const
{
    const bool arePresetsChanged = MergePresets(before, after, seen, current);
    const bool areMarksChanged = MergeFavourites(before, after, current);
    return arePresetsChanged || areMarksChanged;
}

bool UserStoreMerge::MergePresets(const JsonObject& before, const JsonObject& after,
                                  const JsonObject& seen, JsonObject& current) const
{
    const IsUsable isUsable = [this](const JsonValue& element) {
        return element.As<JsonValue::Object>() && m_isUsable(element);
    };
    return PresetListMerge(before, after, seen, isUsable).Run(current);
}

bool UserStoreMerge::MergeFavourites(const JsonObject& before, const JsonObject& after,
                                     JsonObject& current) const
{
    const std::set<Mark> was = CollectMarks(before);
    const std::set<Mark> is = CollectMarks(after);
    const std::set<Mark> present = CollectMarks(current);

    bool isChanged = false;
    for (const Mark& mark : was) {
        if (is.count(mark) || !present.count(mark))
            continue;
        auto& elements = Member<JsonValue::Array>(current, Format::Favourites)->elements;
        elements.erase(std::remove_if(elements.begin(), elements.end(),
                                      [&mark](const JsonValue& element) {
                                          const auto* m = element.As<JsonValue::Object>();
                                          return m && Mark(Text(**m, Format::Group),
                                                           Text(**m, Format::ID)) == mark;
                                      }),
                       elements.end());
        isChanged = true;
    }
    for (const Mark& mark : is) {
        if (was.count(mark) || present.count(mark))
            continue;
        const auto object = std::make_shared<JsonObject>();
        object->Set(Format::Group, JsonValue(JsonValue::Content(mark.first)));
        object->Set(Format::ID, JsonValue(JsonValue::Content(mark.second)));
        RequireMember<JsonValue::Array>(current, Format::Favourites)
            ->elements.push_back(JsonValue(JsonValue::Content(object)));
        isChanged = true;
    }
    return isChanged;
}

bool UserStoreMerge::AreEqual(const JsonValue& a, const JsonValue& b)
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

} // namespace LumetraPlugin
