// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CatalogueReport.h"

#include <algorithm>
#include <tuple>

namespace LumetraHost {

std::string CatalogueReport::ToText() const
{
    static constexpr const char* severities[] = {"note", "warning", "error"};
    return place.ToText() + ": " + severities[static_cast<int>(severity)] + ": " +
           (path.empty() ? path : path + ": ") + message;
}

void CatalogueReports::Add(const CatalogueReport& report)
{
    m_reports.push_back(report);
    if (report.severity == CatalogueReport::Severity::Error)
        ++m_errorCount;
}

void CatalogueReports::Sort(const std::vector<std::string>& files)
{
    const auto key = [&files](const CatalogueReport& report) {
        const auto file = std::find(files.begin(), files.end(), report.place.file);
        return std::make_tuple(file - files.begin(), report.place.line, report.place.column);
    };
    std::stable_sort(m_reports.begin(), m_reports.end(),
                     [&key](const auto& a, const auto& b) { return key(a) < key(b); });
}

} // namespace LumetraHost
