// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/PanelEdit.h"

#include "storage/FailWith.h"
#include "storage/JsonProperty.h"
#include "storage/JsonWriter.h"

#include <memory>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Core::Property;

constexpr char Place[] = "edit"; // begins the paths in messages

[[noreturn]] void Refuse(const std::string& expected)
{
    LumetraHost::FailWith(std::string(Place) + ": expected " + expected);
}

JsonValue::Object Write(const Property::Ptr& given)
{
    if (!given)
        Refuse("a node, found a null pointer");
    const auto json =
        JsonProperty::Write(*given, Place, {PanelEdit::MaxDepth, PanelEdit::MaxValues});
    const std::size_t size = JsonWriter::Write(*json).size();
    if (size > PanelEdit::MaxSize)
        Refuse("at most " + std::to_string(PanelEdit::MaxSize) + " bytes, found " +
               std::to_string(size));
    return json;
}

} // namespace

PanelEdit::PanelEdit() : m_json(std::make_shared<JsonObject>()) {}

PanelEdit::PanelEdit(const Property::Ptr& given) : m_json(Write(given)) {}

PanelEdit::PanelEdit(const JsonValue::Object& stored) : m_json(stored) {}

Property::Ptr PanelEdit::MakeProperty() const
{
    return JsonProperty::Read(*m_json, Place);
}

bool operator==(const PanelEdit& first, const PanelEdit& second)
{
    return first.GetJson() == second.GetJson() ||
           JsonWriter::Write(*first.GetJson()) == JsonWriter::Write(*second.GetJson());
}

} // namespace LumetraHost
