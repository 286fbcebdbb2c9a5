// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CheckedNode.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/ErrorText.h"
#include "storage/IJsonLocation.h"
#include "storage/JsonSerializer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

std::string Mismatch(const std::string& expected, const JsonValue& value)
{
    return "expected " + expected + ", found " + value.GetKindName();
}

} // namespace

/// Points into the file's values, which the top keeps alive.
struct CheckedNode::State : IJsonLocation
{
    const JsonObject& GetObject() const { return **object; }
    std::string GetFile() const override;
    std::string GetPath() const;
    std::string GetFullPath() const override;
    std::shared_ptr<const ContentFolder> GetContents() const override;

    std::shared_ptr<const State> parent; // null at the top
    const Top* top = nullptr;            // of the file, which the parents keep
    const JsonValue::Object* object = nullptr;
    const std::string* key = nullptr;     // in the parent
    const std::string* element = nullptr; // in the collection under that key, if it is an object,
    std::size_t index = NoIndex;          // or an array
    std::uint32_t line = 1;
    std::uint32_t column = 1;

    static constexpr std::size_t NoIndex = ~std::size_t(0);
};

/// The file's uppermost node, with what concerns the file as a whole.
struct CheckedNode::Top : State
{
    Top(const JsonValue::Object& content, const std::string& fileName, CatalogueReports& target,
        const std::shared_ptr<const ContentFolder>& folder,
        const std::shared_ptr<const TableFolder>& tableFolder)
        : root(content), file(fileName), reports(target), contents(folder), tables(tableFolder)
    {
        object = &root;
        top = this;
    }

    JsonValue::Object root;
    std::string file;
    CatalogueReports& reports;
    std::shared_ptr<const ContentFolder> contents;
    std::shared_ptr<const TableFolder> tables;
};

std::string CheckedNode::State::GetFile() const
{
    return top->file;
}

std::string CheckedNode::State::GetPath() const
{
    if (!parent)
        return {};
    std::string path = parent->GetPath();
    path += (path.empty() ? "" : "/") + *key;
    if (element)
        path += "/" + *element;
    if (index != NoIndex)
        path += "[" + std::to_string(index) + "]";
    return path;
}

std::string CheckedNode::State::GetFullPath() const
{
    return GetFile() + "/" + GetPath();
}

std::shared_ptr<const ContentFolder> CheckedNode::State::GetContents() const
{
    return top->contents;
}

CheckedNode::CheckedNode(const JsonValue::Object& object, const std::string& file,
                         CatalogueReports& reports,
                         const std::shared_ptr<const ContentFolder>& contents,
                         const std::shared_ptr<const TableFolder>& tables)
    : m_state(std::make_shared<const Top>(object, file, reports, contents, tables))
{
}

CheckedNode::CheckedNode(std::shared_ptr<const State> state) : m_state(std::move(state)) {}

const std::string& CheckedNode::GetName() const
{
    static const std::string none;
    if (m_state->element)
        return *m_state->element;
    return m_state->key && m_state->index == State::NoIndex ? *m_state->key : none;
}

JsonPlace CheckedNode::GetPlace() const
{
    return {m_state->GetFile(), m_state->line, m_state->column};
}

std::string CheckedNode::GetPath() const
{
    return m_state->GetPath();
}

CatalogueReports& CheckedNode::GetReports() const
{
    return m_state->top->reports;
}

const JsonObject& CheckedNode::GetObject() const
{
    return m_state->GetObject();
}

JsonPlace CheckedNode::PlaceOf(const JsonValue& value) const
{
    return {m_state->GetFile(), value.line, value.column};
}

Zorvik::Brassel::SerializerPtr CheckedNode::GetSerializer() const
{
    return JsonSerializer::Create(*m_state->object, m_state, GetName());
}

const TableFolder* CheckedNode::GetTables() const
{
    return m_state->top->tables.get();
}

std::string CheckedNode::PathOf(std::string_view key) const
{
    const std::string path = GetPath();
    return (path.empty() ? path : path + "/") + std::string(key);
}

bool CheckedNode::Has(std::string_view key) const
{
    return GetObject().Find(key) != nullptr;
}

template <class T>
const T* CheckedNode::Read(std::string_view key, const char* expected) const
{
    const JsonValue* value = GetObject().Find(key);
    if (!value)
        return nullptr;
    const T* typed = value->As<T>();
    if (!typed)
        ErrorAt(key, Mismatch(expected, *value));
    return typed;
}

std::optional<bool> CheckedNode::Bool(std::string_view key) const
{
    const bool* value = Read<bool>(key, "bool");
    return value ? std::optional<bool>(*value) : std::nullopt;
}

std::optional<double> CheckedNode::Number(std::string_view key) const
{
    const JsonNumber* value = Read<JsonNumber>(key, "number");
    return value ? std::optional<double>(value->value) : std::nullopt;
}

std::optional<int> CheckedNode::Int(std::string_view key) const
{
    const JsonNumber* value = Read<JsonNumber>(key, "number");
    if (!value)
        return std::nullopt;
    if (value->value == std::trunc(value->value) &&
        value->value >= std::numeric_limits<int>::min() &&
        value->value <= std::numeric_limits<int>::max())
        return static_cast<int>(value->value);
    ErrorAt(key, "expected a whole number from -2147483648 to 2147483647, found " +
                     value->text.substr(0, 40));
    return std::nullopt;
}

std::optional<std::string> CheckedNode::Text(std::string_view key) const
{
    const std::string* value = Read<std::string>(key, "string");
    return value ? std::optional<std::string>(*value) : std::nullopt;
}

std::optional<CheckedNode> CheckedNode::Node(std::string_view key) const
{
    const auto* object = Read<JsonValue::Object>(key, "node");
    if (!object)
        return std::nullopt;
    const auto& [name, value] = *GetObject().FindMember(key);
    const auto state = std::make_shared<State>();
    state->parent = m_state;
    state->top = m_state->top;
    state->object = object;
    state->key = &name;
    state->line = value.line;
    state->column = value.column;
    return CheckedNode(state);
}

/// Adds `value`, an element, as the node to which `step` leads from here.
void CheckedNode::AddElement(std::vector<CheckedNode>& nodes, const JsonValue& value,
                             const State& step) const
{
    const auto* object = value.As<JsonValue::Object>();
    if (!object)
        return Report(Severity::Error, PlaceOf(value), step.GetPath(), Mismatch("node", value));
    const auto state = std::make_shared<State>(step);
    state->object = object;
    state->line = value.line;
    state->column = value.column;
    nodes.push_back(CheckedNode(state));
}

std::vector<CheckedNode> CheckedNode::Elements(std::string_view key) const
{
    std::vector<CheckedNode> nodes;
    const JsonObject::Member* member = GetObject().FindMember(key);
    if (!member)
        return nodes;
    State step;
    step.parent = m_state;
    step.top = m_state->top;
    step.key = &member->first;
    if (const auto* array = member->second.As<JsonValue::Array>()) {
        nodes.reserve((*array)->elements.size());
        step.index = 0;
        for (const JsonValue& element : (*array)->elements) {
            AddElement(nodes, element, step);
            ++step.index;
        }
    } else if (const auto* object = member->second.As<JsonValue::Object>()) {
        for (const auto& [name, element] : (*object)->GetMembers()) {
            step.element = &name;
            AddElement(nodes, element, step);
        }
    } else {
        ErrorAt(key, Mismatch("collection", member->second));
    }
    return nodes;
}

void CheckedNode::Report(Severity severity, const JsonPlace& place, const std::string& path,
                         const std::string& message) const
{
    GetReports().Add({severity, place, path, message});
}

void CheckedNode::Error(const std::string& message) const
{
    Report(Severity::Error, GetPlace(), GetPath(), message);
}

void CheckedNode::Warning(const std::string& message) const
{
    Report(Severity::Warning, GetPlace(), GetPath(), message);
}

void CheckedNode::ReportAt(Severity severity, std::string_view key,
                           const std::string& message) const
{
    const JsonValue* value = GetObject().Find(key);
    Report(severity, value ? PlaceOf(*value) : GetPlace(), PathOf(key), message);
}

void CheckedNode::ErrorAt(std::string_view key, const std::string& message) const
{
    ReportAt(Severity::Error, key, message);
}

void CheckedNode::WarningAt(std::string_view key, const std::string& message) const
{
    ReportAt(Severity::Warning, key, message);
}

void CheckedNode::Error(const std::exception& exception) const
{
    const auto* json = dynamic_cast<const JsonException*>(&exception);
    if (!json || json->GetPlace().line == 0)
        return ErrorWithin(ErrorText::FirstLine(exception));
    std::string path = json->GetDescription();
    path.resize(path.size() - std::min(path.size(), json->GetMessage().size() + 2));
    path.erase(0, std::min(path.size(), m_state->GetFile().size() + 1));
    Report(Severity::Error, json->GetPlace(), path, json->GetMessage());
}

/// A message may begin with a place below this node, "file/path/key: ".
void CheckedNode::ErrorWithin(const std::string& message) const
{
    const std::string file = m_state->GetFile() + "/";
    const std::size_t colon = message.find(": ", file.size());
    if (message.compare(0, file.size() + GetPath().size(), file + GetPath()) != 0 ||
        colon == std::string::npos)
        return Error(message);
    Report(Severity::Error, GetPlace(), message.substr(file.size(), colon - file.size()),
           message.substr(colon + 2));
}

void CheckedNode::NoteUnknownKeys(std::initializer_list<std::string_view> known) const
{
    for (const auto& [key, value] : GetObject().GetMembers())
        if (std::find(known.begin(), known.end(), key) == known.end())
            Report(Severity::Note, PlaceOf(value), PathOf(key), "this key is not used");
}

} // namespace LumetraHost
