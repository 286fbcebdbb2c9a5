// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CheckedNode.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonSerializer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

using Severity = CatalogueReport::Severity;

std::string Mismatch(const std::string& expected, const JsonValue& value)
{
    return "expected " + expected + ", found " + value.GetKindName();
}

/// The first line: some exceptions carry a call stack below it.
std::string FirstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

} // namespace

CheckedNode::CheckedNode(const JsonValue::Object& object, const std::string& file,
                         CatalogueReports& reports)
    : m_object(object), m_reports(&reports), m_file(file)
{
}

CheckedNode::CheckedNode(const CheckedNode& parent, const JsonValue& value, const std::string& name,
                         const std::string& path)
    : m_object(*value.As<JsonValue::Object>()), m_reports(parent.m_reports), m_file(parent.m_file),
      m_name(name), m_path(path), m_line(value.line), m_column(value.column)
{
}

JsonPlace CheckedNode::GetPlace() const
{
    return {m_file, m_line, m_column};
}

JsonPlace CheckedNode::PlaceOf(const JsonValue& value) const
{
    return {m_file, value.line, value.column};
}

Zorvik::Brassel::SerializerPtr CheckedNode::GetSerializer() const
{
    return JsonSerializer::Create(m_object, m_file, m_path, m_name);
}

std::string CheckedNode::PathOf(const std::string& key) const
{
    return m_path.empty() ? key : m_path + "/" + key;
}

bool CheckedNode::Has(const std::string& key) const
{
    return m_object->Find(key) != nullptr;
}

template <class T>
const T* CheckedNode::Read(const std::string& key, const char* expected) const
{
    const JsonValue* value = m_object->Find(key);
    if (!value)
        return nullptr;
    const T* typed = value->As<T>();
    if (!typed)
        ErrorAt(key, Mismatch(expected, *value));
    return typed;
}

std::optional<bool> CheckedNode::Bool(const std::string& key) const
{
    const bool* value = Read<bool>(key, "bool");
    return value ? std::optional<bool>(*value) : std::nullopt;
}

std::optional<double> CheckedNode::Number(const std::string& key) const
{
    const JsonNumber* value = Read<JsonNumber>(key, "number");
    return value ? std::optional<double>(value->value) : std::nullopt;
}

std::optional<int> CheckedNode::Int(const std::string& key) const
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

std::optional<std::string> CheckedNode::Text(const std::string& key) const
{
    const std::string* value = Read<std::string>(key, "string");
    return value ? std::optional<std::string>(*value) : std::nullopt;
}

std::optional<CheckedNode> CheckedNode::Node(const std::string& key) const
{
    if (!Read<JsonValue::Object>(key, "node"))
        return std::nullopt;
    return CheckedNode(*this, *m_object->Find(key), key, PathOf(key));
}

void CheckedNode::AddElement(std::vector<CheckedNode>& nodes, const JsonValue& value,
                             const std::string& name, const std::string& path) const
{
    if (value.As<JsonValue::Object>())
        nodes.push_back(CheckedNode(*this, value, name, path));
    else
        Report(Severity::Error, PlaceOf(value), path, Mismatch("node", value));
}

std::vector<CheckedNode> CheckedNode::Elements(const std::string& key) const
{
    std::vector<CheckedNode> nodes;
    const JsonValue* value = m_object->Find(key);
    if (!value)
        return nodes;
    const std::string path = PathOf(key);
    if (const auto* array = value->As<JsonValue::Array>()) {
        std::size_t i = 0;
        for (const JsonValue& element : (*array)->elements)
            AddElement(nodes, element, {}, path + "[" + std::to_string(i++) + "]");
    } else if (const auto* object = value->As<JsonValue::Object>()) {
        for (const auto& [name, element] : (*object)->GetMembers())
            AddElement(nodes, element, name, path + "/" + name);
    } else {
        ErrorAt(key, Mismatch("collection", *value));
    }
    return nodes;
}

void CheckedNode::Report(Severity severity, const JsonPlace& place, const std::string& path,
                         const std::string& message) const
{
    m_reports->Add({severity, place, path, message});
}

void CheckedNode::Error(const std::string& message) const
{
    Report(Severity::Error, GetPlace(), m_path, message);
}

void CheckedNode::Warning(const std::string& message) const
{
    Report(Severity::Warning, GetPlace(), m_path, message);
}

void CheckedNode::ErrorAt(const std::string& key, const std::string& message) const
{
    const JsonValue* value = m_object->Find(key);
    Report(Severity::Error, value ? PlaceOf(*value) : GetPlace(), PathOf(key), message);
}

void CheckedNode::WarningAt(const std::string& key, const std::string& message) const
{
    const JsonValue* value = m_object->Find(key);
    Report(Severity::Warning, value ? PlaceOf(*value) : GetPlace(), PathOf(key), message);
}

void CheckedNode::Error(const std::exception& exception) const
{
    const auto* json = dynamic_cast<const JsonException*>(&exception);
    if (!json || json->GetPlace().line == 0)
        return Error(FirstLine(exception.what()));
    std::string path = json->GetDescription();
    path.resize(path.size() - std::min(path.size(), json->GetMessage().size() + 2));
    path.erase(0, std::min(path.size(), m_file.size() + 1));
    Report(Severity::Error, json->GetPlace(), path, json->GetMessage());
}

void CheckedNode::NoteUnknownKeys(std::initializer_list<const char*> known) const
{
    for (const auto& [key, value] : m_object->GetMembers())
        if (std::find(known.begin(), known.end(), key) == known.end())
            Report(Severity::Note, PlaceOf(value), PathOf(key), "this key is not used");
}

} // namespace LumetraHost
