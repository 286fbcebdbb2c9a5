// SPDX-License-Identifier: MIT
#include "support/RecordingRegistry.h"

#include "support/CallLog.h"

namespace LumetraTest {

RecordingRegistry::RecordingRegistry(CallLog& log) : m_log(log) {}

const RecordingRegistry::List& RecordingRegistry::GetPresets() const
{
    return m_presets;
}

void RecordingRegistry::RegisterPresets(const List& idsAndStoreIds)
{
    m_log.Call("registry.RegisterPresets", idsAndStoreIds);
    m_presets = idsAndStoreIds;
}

} // namespace LumetraTest
