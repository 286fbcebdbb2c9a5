// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "console/ExitCode.h"
#include "exporting/batch/PhotoJob.h"
#include "storage/JsonDocument.h"

#include <string>
#include <vector>

namespace LumetraCli {

class Console;
struct ChosenLook;

/// Reports the outcome for each photo: on stdout the names of written (in a dry run: planned) files
/// or one JSON text, on stderr failures and warnings.
class ApplyReport
{
public:
    ApplyReport(const std::vector<ChosenLook>& looks, int jobCount, bool isJson, Console& console);

    void Add(const LumetraHost::PhotoJob& job, const std::vector<std::string>& warnings);
    ExitCode Finish();

private:
    void AddJson(const LumetraHost::PhotoJob& job, const std::vector<std::string>& warnings);

    Console& m_console;
    LumetraHost::JsonDocument m_document;
    Zorvik::Brassel::CollectionPtr m_results;
    int m_jobCount;
    int m_endedCount = 0;
    bool m_isJson;
    bool m_hasFailures = false;
};

} // namespace LumetraCli
