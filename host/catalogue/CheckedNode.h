// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "catalogue/CatalogueReport.h"
#include "storage/JsonValue.h"

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LumetraHost {

class ContentFolder;
class TableFolder;

/// A node of a catalogue file while it is checked. Reading a value that does not fit adds an error
/// to the reports and gives nothing; reading a missing value gives nothing without an error. A
/// handle: copies are the same node, which keeps the file's values alive. The values must not
/// change and the reports must outlive it.
class CheckedNode
{
public:
    /// The top of a file. `contents` holds the tables that the file names by their hash, `tables`
    /// those that it names by their files; null when the file has to hold everything itself.
    CheckedNode(const JsonValue::Object& object, const std::string& file, CatalogueReports& reports,
                const std::shared_ptr<const ContentFolder>& contents = nullptr,
                const std::shared_ptr<const TableFolder>& tables = nullptr);

    /// The key in the parent, or the name of the element; empty for an element without one.
    const std::string& GetName() const;
    JsonPlace GetPlace() const;
    /// The place inside the file, as in "groups[0]/settings"; empty at the top.
    std::string GetPath() const;
    CatalogueReports& GetReports() const;
    const JsonObject& GetObject() const;
    Zorvik::Brassel::SerializerPtr GetSerializer() const;
    /// The folder of the files with tables that the file may name; null when it may name none.
    const TableFolder* GetTables() const;

    bool Has(std::string_view key) const;
    std::optional<bool> Bool(std::string_view key) const;
    std::optional<int> Int(std::string_view key) const;
    std::optional<double> Number(std::string_view key) const;
    std::optional<std::string> Text(std::string_view key) const;
    std::optional<CheckedNode> Node(std::string_view key) const;
    /// The elements of the collection under `key` that are nodes; an error for each other one.
    std::vector<CheckedNode> Elements(std::string_view key) const;

    void Error(const std::string& message) const;
    void Warning(const std::string& message) const;
    void ErrorAt(std::string_view key, const std::string& message) const;
    void WarningAt(std::string_view key, const std::string& message) const;
    /// Reports an error that was thrown while something read this node. A place that the error
    /// itself names is kept.
    void Error(const std::exception& exception) const;
    /// A note for each key that is none of `known`.
    void NoteUnknownKeys(std::initializer_list<std::string_view> known) const;

private:
    using Severity = CatalogueReport::Severity;
    struct State;
    struct Top;

    explicit CheckedNode(std::shared_ptr<const State> state);

    template <class T>
    const T* Read(std::string_view key, const char* expected) const;
    std::string PathOf(std::string_view key) const;
    void AddElement(std::vector<CheckedNode>& nodes, const JsonValue& value,
                    const State& step) const;
    void ReportAt(Severity severity, std::string_view key, const std::string& message) const;
    void ErrorWithin(const std::string& message) const;
    void Report(Severity severity, const JsonPlace& place, const std::string& path,
                const std::string& message) const;
    JsonPlace PlaceOf(const JsonValue& value) const;

    std::shared_ptr<const State> m_state;
};

} // namespace LumetraHost
