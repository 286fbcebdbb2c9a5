// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonException.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// One remark about a catalogue file.
struct CatalogueReport
{
    enum class Severity
    {
        Note,    ///< something that is not used
        Warning, ///< loaded, but hardly what was meant
        Error    ///< skipped
    };

    Severity severity = Severity::Error;
    JsonPlace place;
    std::string path;    ///< inside the file, e.g. "groups[0]/items[3]/popular"; may be empty
    std::string message; ///< without place and path

    /// "file:line:column: error: path: message", one line.
    std::string ToText() const;
};

/// The remarks of one parse, in the order in which they were made.
class CatalogueReports
{
public:
    void Add(const CatalogueReport& report);
    std::size_t GetErrorCount() const { return m_errorCount; }
    const std::vector<CatalogueReport>& GetAll() const { return m_reports; }
    /// Sorts by place: files in the order of `files`, then line and column.
    void Sort(const std::vector<std::string>& files);

private:
    std::vector<CatalogueReport> m_reports;
    std::size_t m_errorCount = 0;
};

} // namespace LumetraHost
