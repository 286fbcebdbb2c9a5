// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonReader.h"
#include "storage/JsonValue.h"

#include "Zorvik/Core/Property.h"

#include <cstddef>

namespace LumetraHost {

/// A panel's part of an edit: what the panel has given, or what was read from a file. A part that
/// was read is written to the digit as it stood, also where a tree of properties cannot hold it, so
/// that the parts of panels that are missing or out of use survive. Nobody changes a part once it
/// is made; copies share it.
class PanelEdit
{
public:
    /// Levels of nodes and lists. A file has two more above each part.
    static constexpr std::size_t MaxDepth = 60;
    static_assert(MaxDepth + 2 <= JsonReader::MaxDepth);
    static constexpr std::size_t MaxValues = 1'000'000;
    /// Bytes of a part in a file. Two parts leave room for others in one file.
    static constexpr std::size_t MaxSize = 24 * 1024 * 1024;

    // Keys of a part that tell which look was drawn, in words for the user. The plug-in interface
    // describes them.
    static constexpr char Preset[] = "preset";
    static constexpr char Name[] = "name";
    static constexpr char Intensity[] = "intensity";

    /// Nothing is applied.
    PanelEdit();
    /// Copies what a panel has given. Zorvik::Exception, with the place in it, for a null pointer,
    /// for what JsonProperty::Write() refuses, and for more than MaxSize.
    explicit PanelEdit(const Zorvik::Core::Property::Ptr& given);
    /// Keeps `stored`, which nobody may change any more.
    explicit PanelEdit(const JsonValue::Object& stored);

    /// Makes a tree of the part, for the caller to keep. Zorvik::Exception for a part in a file
    /// with too many keys in one node.
    Zorvik::Core::Property::Ptr MakeProperty() const;
    /// The part as it stands in a file.
    const JsonValue::Object& GetJson() const { return m_json; }

private:
    JsonValue::Object m_json;
};

/// True when both parts have the same keys in the same order with the same values. A number that
/// was read counts with its digits: 1.50 is not 1.5.
bool operator==(const PanelEdit& first, const PanelEdit& second);

} // namespace LumetraHost
