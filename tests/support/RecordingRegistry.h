// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Lumetra/IWorkspaceController.h"

namespace LumetraTest {

class CallLog;

/// Records the lists of presets and keeps the last.
class RecordingRegistry : public Zorvik::Lumetra::IPresetRegistry
{
public:
    using List = std::vector<std::pair<std::string, std::string>>;

    explicit RecordingRegistry(CallLog& log);

    const List& GetPresets() const;

    void RegisterPresets(const List& idsAndStoreIds) override;

private:
    CallLog& m_log;
    List m_presets;
};

} // namespace LumetraTest
