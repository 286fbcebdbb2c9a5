// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonWriter.h"

#include "storage/FailWith.h"
#include "storage/JsonReader.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace LumetraHost {
namespace {

void Append(std::string& text, const JsonValue& value, std::size_t depth);

/// True for a text that stands in JSON as it is. Tables in base64 are megabytes, which the library
/// looks at letter by letter.
bool IsPlain(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char letter) {
        return letter >= ' ' && letter <= '~' && letter != '"' && letter != '\\';
    });
}

void AppendQuoted(std::string& text, const std::string& value)
{
    if (IsPlain(value))
        text.append(1, '"').append(value).append(1, '"');
    else
        text += JsonWriter::Quote(value);
}

void NewLine(std::string& text, std::size_t depth)
{
    text += '\n';
    text.append(2 * depth, ' ');
}

void RefuseDepth(std::size_t depth)
{
    if (depth >= JsonReader::MaxDepth)
        FailWith("expected nesting of at most " + std::to_string(JsonReader::MaxDepth) +
                 " levels to write");
}

void Append(std::string& text, const JsonObject& object, std::size_t depth)
{
    RefuseDepth(depth);
    const char* separator = "";
    text += '{';
    for (const auto& [key, value] : object.GetMembers()) {
        text += separator;
        NewLine(text, depth + 1);
        text += JsonWriter::Quote(key) + ": ";
        Append(text, value, depth + 1);
        separator = ",";
    }
    if (!object.GetMembers().empty())
        NewLine(text, depth);
    text += '}';
}

void Append(std::string& text, const JsonArray& array, std::size_t depth)
{
    RefuseDepth(depth);
    const char* separator = "";
    text += '[';
    for (const JsonValue& element : array.elements) {
        text += separator;
        NewLine(text, depth + 1);
        Append(text, element, depth + 1);
        separator = ",";
    }
    if (!array.elements.empty())
        NewLine(text, depth);
    text += ']';
}

void Append(std::string& text, const JsonValue& value, std::size_t depth)
{
    if (const auto* object = value.As<JsonValue::Object>())
        Append(text, **object, depth);
    else if (const auto* array = value.As<JsonValue::Array>())
        Append(text, **array, depth);
    else if (const auto* string = value.As<std::string>())
        AppendQuoted(text, *string);
    else if (const auto* number = value.As<JsonNumber>())
        text += number->text;
    else if (const auto* flag = value.As<bool>())
        text += *flag ? "true" : "false";
    else
        text += "null";
}

} // namespace

std::string JsonWriter::Write(const JsonObject& object)
{
    std::string text;
    Append(text, object, 0);
    text += '\n';
    return text;
}

std::string JsonWriter::NumberText(double value)
{
    return nlohmann::ordered_json(value).dump();
}

void JsonWriter::CheckText(const std::string& text)
{
    if (!IsPlain(text))
        Quote(text);
}

std::string JsonWriter::Quote(const std::string& text)
{
    if (IsPlain(text))
        return '"' + text + '"';
    try {
        return nlohmann::ordered_json(text).dump();
    } catch (const nlohmann::ordered_json::type_error&) {
        FailWith("expected text in valid UTF-8 to write");
    }
}

} // namespace LumetraHost
