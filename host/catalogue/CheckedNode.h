// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "catalogue/CatalogueReport.h"
#include "storage/JsonValue.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// A node of a catalogue file while it is checked. Reads of a present value that does not fit add
/// an error to the reports and give nothing; so does a missing one, without an error.
/// The reports must outlive it.
class CheckedNode
{
public:
    /// The top of a file.
    CheckedNode(const JsonValue::Object& object, const std::string& file,
                CatalogueReports& reports);

    /// The key in the parent, or the name of the element; empty for an element without one.
    const std::string& GetName() const { return m_name; }
    JsonPlace GetPlace() const;
    const std::string& GetPath() const { return m_path; }
    CatalogueReports& GetReports() const { return *m_reports; }
    const JsonObject& GetObject() const { return *m_object; }
    Zorvik::Brassel::SerializerPtr GetSerializer() const;

    bool Has(const std::string& key) const;
    std::optional<bool> Bool(const std::string& key) const;
    std::optional<int> Int(const std::string& key) const;
    std::optional<double> Number(const std::string& key) const;
    std::optional<std::string> Text(const std::string& key) const;
    std::optional<CheckedNode> Node(const std::string& key) const;
    /// The elements of the collection under `key` that are nodes; an error for each other one.
    std::vector<CheckedNode> Elements(const std::string& key) const;

    void Error(const std::string& message) const;
    void Warning(const std::string& message) const;
    void ErrorAt(const std::string& key, const std::string& message) const;
    void WarningAt(const std::string& key, const std::string& message) const;
    /// An error that was thrown while something read this node. It keeps a place of its own.
    void Error(const std::exception& exception) const;
    /// A note for each key that is none of `known`.
    void NoteUnknownKeys(std::initializer_list<const char*> known) const;

private:
    CheckedNode(const CheckedNode& parent, const JsonValue& value, const std::string& name,
                const std::string& path);

    template <class T>
    const T* Read(const std::string& key, const char* expected) const;
    std::string PathOf(const std::string& key) const;
    void AddElement(std::vector<CheckedNode>& nodes, const JsonValue& value,
                    const std::string& name, const std::string& path) const;
    void Report(CatalogueReport::Severity severity, const JsonPlace& place, const std::string& path,
                const std::string& message) const;
    JsonPlace PlaceOf(const JsonValue& value) const;

    JsonValue::Object m_object;
    CatalogueReports* m_reports;
    std::string m_file;
    std::string m_name;
    std::string m_path;
    std::uint32_t m_line = 1;
    std::uint32_t m_column = 1;
};

} // namespace LumetraHost
