// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CatalogueReport.h"

#include <gtest/gtest.h>

using namespace LumetraHost;
using Severity = CatalogueReport::Severity;

TEST(CatalogueReport, isOneLineForEditorsToJumpTo)
{
    EXPECT_EQ((CatalogueReport{Severity::Warning, {"a.json", 3, 14}, "groups[0]", "odd"}).ToText(),
              "a.json:3:14: warning: groups[0]: odd");
    EXPECT_EQ((CatalogueReport{Severity::Note, {"a.json", 0, 0}, "", "odd"}).ToText(),
              "a.json: note: odd");
}

TEST(CatalogueReports, countsErrorsAndSortsByPlace)
{
    CatalogueReports reports;
    reports.Add({Severity::Error, {"a.json", 9, 1}, "", "third"});
    reports.Add({Severity::Note, {"b.json", 2, 1}, "", "first"});
    reports.Add({Severity::Error, {"a.json", 1, 5}, "", "second"});

    reports.Sort({"b.json", "a.json"});

    EXPECT_EQ(reports.GetErrorCount(), 2U);
    EXPECT_EQ(reports.GetAll()[0].message, "first");
    EXPECT_EQ(reports.GetAll()[1].message, "second");
    EXPECT_EQ(reports.GetAll()[2].message, "third");
}
